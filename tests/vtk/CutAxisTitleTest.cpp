#include "support/RecordingDevice.h"
#include "vtk/vtkGuardedAxis.h"

#include <vtkContext2D.h>
#include <vtkContextScene.h>
#include <vtkNew.h>
#include <vtkObjectFactory.h>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace
{

/// Counts how often it measures texts of x, in a font of a width of its own, and may fail in
/// drawing.
class MeasuringDevice : public RecordingDevice
{
public:
  static MeasuringDevice* New();
  TALMESH_VTK_TYPE(MeasuringDevice, RecordingDevice);

  using RecordingDevice::ComputeStringBounds;
  void ComputeStringBounds(const vtkStdString& string, float bounds[4]) override
  {
    measured += string.rfind("xx", 0) == 0 ? 1 : 0;
    RecordingDevice::ComputeStringBounds(string, bounds);
    bounds[2] *= stretch;
  }

  using RecordingDevice::DrawString;
  void DrawString(float* point, const vtkStdString& string) override
  {
    if (fails)
      throw std::runtime_error("no font");
    RecordingDevice::DrawString(point, string);
  }

  int measured = 0;
  float stretch = 1.0F;
  bool fails = false;

protected:
  MeasuringDevice() = default;
  ~MeasuringDevice() override = default;
};

vtkStandardNewMacro(MeasuringDevice);

/// Of an axis of 400 pixels along the bottom, and five times as wide.
class CutAxisTitle : public ::testing::Test
{
protected:
  CutAxisTitle()
  {
    axis->SetScene(scene);
    axis->SetPosition(vtkAxis::BOTTOM);
    axis->SetPoint1(50.0F, 50.0F);
    axis->SetPoint2(450.0F, 50.0F);
    axis->SetTitle(title);
    axis->Update();
    painter->Begin(device);
  }
  ~CutAxisTitle() override { painter->End(); }

  std::string shown()
  {
    device->clear();
    device->measured = 0;
    axis->Paint(painter);
    for (const auto& call : device->calls(RecordingDevice::Kind::String))
      if (call.text.front() == 'x')
        return call.text;
    return {};
  }

  const std::string title = std::string(2000 / 6, 'x');
  vtkNew<vtkContextScene> scene;
  vtkNew<vtkGuardedAxis> axis;
  vtkNew<MeasuringDevice> device;
  vtkNew<vtkContext2D> painter;
};

} // namespace

TEST_F(CutAxisTitle, IsWholeAgainWhenPaintingFails)
{
  device->fails = true;
  EXPECT_THROW(axis->Paint(painter), std::runtime_error);
  EXPECT_EQ(axis->GetTitle(), title);
}

TEST_F(CutAxisTitle, IsMeasuredOnceWhileNothingChanges)
{
  const std::string first = shown();
  EXPECT_LE(first.size(), 66U);
  ASSERT_GT(device->measured, 10);
  EXPECT_EQ(shown(), first);
  EXPECT_LE(device->measured, 2) << "the whole title, and by VTK what it paints";
}

TEST_F(CutAxisTitle, FollowsTextFontAndWidth)
{
  const std::size_t first = shown().size();
  device->stretch = 2.0F;
  EXPECT_LE(shown().size(), 33U);
  device->stretch = 1.0F;
  EXPECT_EQ(shown().size(), first);
  axis->SetPoint2(250.0F, 50.0F);
  axis->Update();
  EXPECT_LE(shown().size(), 33U);
  axis->SetTitle(title.substr(1) + "!");
  axis->Update();
  EXPECT_EQ(shown().back(), '!');
}
