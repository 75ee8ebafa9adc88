#include "support/RecordingDevice.h"
#include "vtk/vtkGuardedAxis.h"

#include <vtkContext2D.h>
#include <vtkContextScene.h>
#include <vtkDoubleArray.h>
#include <vtkNew.h>
#include <vtkStringArray.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace
{

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double largest = std::numeric_limits<double>::max();

/// An axis of 400 pixels.
class GuardedAxis : public ::testing::Test
{
protected:
  GuardedAxis()
  {
    axis->SetScene(scene);
    axis->SetPosition(vtkAxis::LEFT);
    axis->SetPoint1(50.0F, 50.0F);
    axis->SetPoint2(50.0F, 450.0F);
  }

  void makeLogarithmic(double minimum, double maximum)
  {
    axis->SetRange(minimum, maximum);
    axis->SetLogScale(true);
    ASSERT_TRUE(axis->GetLogScaleActive());
  }

  std::vector<std::string> labels()
  {
    std::vector<std::string> texts;
    for (vtkIdType i = 0; i < axis->GetTickLabels()->GetNumberOfValues(); ++i)
      texts.push_back(axis->GetTickLabels()->GetValue(i));
    return texts;
  }

  /// The texts that it paints, without updating it before.
  std::vector<std::string> painted(RecordingPainter& recording)
  {
    recording.device->clear();
    axis->Paint(recording.painter);
    std::vector<std::string> texts;
    for (const auto& call : recording.device->calls(RecordingDevice::Kind::String))
      texts.push_back(call.text);
    return texts;
  }

  vtkNew<vtkContextScene> scene;
  vtkNew<vtkGuardedAxis> axis;
};

TEST_F(GuardedAxis, KeepsItsEndsWhenItIsGivenNone)
{
  axis->SetRange(1, 10);
  for (const double end : {infinity, -infinity, nan})
  {
    axis->SetRange(end, 5);
    axis->SetRange(5, end);
    axis->SetMinimum(end);
    axis->SetMaximum(end);
  }
  EXPECT_EQ(axis->GetMinimum(), 1);
  EXPECT_EQ(axis->GetMaximum(), 10);
}

TEST_F(GuardedAxis, TicksDecadesThatReachBelowTheNormalDoubles)
{
  makeLogarithmic(1e-310, 1.0);
  axis->AutoScale();
  axis->Update();
  EXPECT_EQ(axis->GetMinimum(), -307.0) << "as far as VTK's logarithms reach";
  EXPECT_EQ(axis->GetMaximum(), 0.0);
  EXPECT_TRUE(axis->GetLogScaleActive());
  EXPECT_EQ(labels(), (std::vector<std::string>{"1e-300", "1e-250", "1e-200", "1e-150", "1e-100",
                                                "1e-50", "1"}));
}

TEST_F(GuardedAxis, StaysLogarithmicHoweverFarItIsZoomed)
{
  makeLogarithmic(1e-5, 1e5);
  for (int i = 0; i < 200; ++i)
  {
    axis->SetRange(axis->GetMinimum() * 1.5, axis->GetMaximum() * 1.5);
    axis->RecalculateTickSpacing();
    axis->Update();
    ASSERT_TRUE(axis->GetLogScaleActive()) << i;
  }
  EXPECT_GE(axis->GetMinimum(), -308.0);
  EXPECT_LE(axis->GetMaximum(), 308.0);
  makeLogarithmic(axis->GetMinimum(), axis->GetMaximum());
  axis->SetRange(-300.0, -200.0);
  axis->Update();
  EXPECT_TRUE(axis->GetLogScaleActive()) << "the product of these ends is 0";
}

TEST_F(GuardedAxis, HasLabelsThatCanBeReadOverManyDecades)
{
  makeLogarithmic(1e-60, 1e40);
  axis->AutoScale();
  EXPECT_LE(labels().size(), 11U);
  EXPECT_GE(labels().size(), 5U);
  for (const std::string& label : labels())
    EXPECT_NE(label, "");
}

TEST_F(GuardedAxis, LeavesFewDecadesToVtk)
{
  vtkNew<vtkAxis> plain;
  plain->SetScene(scene);
  plain->SetPosition(vtkAxis::LEFT);
  plain->SetPoint1(50.0F, 50.0F);
  plain->SetPoint2(50.0F, 450.0F);
  for (vtkAxis* each : {plain.Get(), static_cast<vtkAxis*>(axis)})
  {
    each->SetRange(0.02, 700.0);
    each->SetLogScale(true);
    each->AutoScale();
    each->Update();
  }
  ASSERT_EQ(axis->GetTickPositions()->GetNumberOfValues(),
            plain->GetTickPositions()->GetNumberOfValues());
  for (vtkIdType i = 0; i < axis->GetTickPositions()->GetNumberOfValues(); ++i)
    EXPECT_EQ(axis->GetTickPositions()->GetValue(i), plain->GetTickPositions()->GetValue(i));
}

TEST_F(GuardedAxis, EndsTickingTheLargestDoubles)
{
  for (const double low : {0.0, -largest})
  {
    axis->SetRange(low, largest);
    axis->AutoScale();
    axis->Update();
    EXPECT_TRUE(std::isfinite(axis->GetMaximum() - axis->GetMinimum()));
    EXPECT_GE(axis->GetMaximum(), 0.49 * largest);
    EXPECT_GE(labels().size(), 2U);
  }
}

TEST_F(GuardedAxis, EndsTickingWhereAStepIsLostToRounding)
{
  axis->SetBehavior(vtkAxis::FIXED);
  for (const double start : {1e16, -1e16, 1.0})
  {
    axis->SetRange(start, start + 4.0 * std::fabs(start) * std::numeric_limits<double>::epsilon());
    axis->RecalculateTickSpacing();
    axis->Update();
    EXPECT_EQ(labels().size(), 2U) << start;
  }
  makeLogarithmic(10.0, 10.0 * (1.0 + 1e-14));
  axis->RecalculateTickSpacing();
  axis->Update();
  EXPECT_EQ(labels().size(), 2U);
}

TEST_F(GuardedAxis, TellsApartWhatIsWantedAndWhatTheDataAllow)
{
  makeLogarithmic(1.0, 100.0);
  axis->SetLogScaleAllowed(false);
  EXPECT_TRUE(axis->GetLogScale());
  EXPECT_FALSE(axis->GetLogScaleActive());
  axis->SetRange(-200.0, -100.0);
  axis->Update();
  EXPECT_FALSE(axis->GetLogScaleActive()) << "a range beside zero is not enough";
  axis->SetRange(1.0, 100.0);
  axis->SetLogScaleAllowed(true);
  EXPECT_TRUE(axis->GetLogScaleActive());
  EXPECT_EQ(axis->GetMaximum(), 2.0);
}

TEST_F(GuardedAxis, PaintsNoTickWithoutItsLabel)
{
  axis->SetRange(0.0, 10.0);
  axis->Update();
  ASSERT_GT(labels().size(), 3U);
  RecordingPainter recording;
  vtkNew<vtkDoubleArray> positions;
  vtkNew<vtkStringArray> names;
  for (const char* name : {"near", "far"})
  {
    positions->InsertNextValue(positions->GetNumberOfValues() == 0 ? 2.0 : 8.0);
    names->InsertNextValue(name);
  }
  axis->SetCustomTickPositions(positions, names);
  EXPECT_EQ(painted(recording), (std::vector<std::string>{"near", "far"}));
  axis->SetCustomTickPositions(positions, nullptr);
  EXPECT_EQ(painted(recording), (std::vector<std::string>{"2", "8"}));
}

TEST_F(GuardedAxis, KeepsTicksOfItsOwner)
{
  vtkNew<vtkDoubleArray> positions;
  positions->InsertNextValue(-100.0);
  vtkNew<vtkStringArray> names;
  names->InsertNextValue("here");
  makeLogarithmic(1e-300, 1.0);
  axis->SetCustomTickPositions(positions, names);
  axis->AutoScale();
  axis->Update();
  EXPECT_EQ(labels(), std::vector<std::string>{"here"});
}

} // namespace

TEST_F(GuardedAxis, PaintsBeginningAndEndOfATitleThatIsWiderThanItself)
{
  // The recording device has 6 pixels for each byte, so 66 of them fit.
  const std::string title =
      "rate of phosphorylation " + std::string(200, 'x') + "\u00e4\u00e4 [1/s]";
  RecordingPainter recording;
  const auto paintedTitle = [&](const std::string& text, int position)
  {
    axis->SetPosition(position);
    axis->SetPoint2(position == vtkAxis::BOTTOM ? 450.0F : 50.0F,
                    position == vtkAxis::BOTTOM ? 50.0F : 450.0F);
    axis->SetTitle(text);
    axis->Update();
    for (const std::string& shown : painted(recording))
      if (shown.size() > 10)
        return shown;
    return std::string();
  };
  const std::string cut = paintedTitle(title, vtkAxis::BOTTOM);
  EXPECT_LE(cut.size(), 66U);
  EXPECT_GT(cut.size(), 55U) << "no shorter than it must be";
  EXPECT_EQ(cut.rfind("rate of phosphorylation ", 0), 0U) << cut;
  EXPECT_NE(cut.find("..."), std::string::npos) << cut;
  EXPECT_EQ(cut.substr(cut.size() - 6), " [1/s]") << cut;
  EXPECT_EQ(axis->GetTitle(), title) << "what is painted is no change of the axis";
  const std::string fits(66, 'x');
  EXPECT_EQ(paintedTitle(fits, vtkAxis::BOTTOM), fits);
  const std::string upright = paintedTitle(title, vtkAxis::LEFT);
  EXPECT_LE(upright.size(), 70U) << "ten pixels more at either end";
  EXPECT_GT(upright.size(), 60U);
  EXPECT_EQ(upright.substr(upright.size() - 6), " [1/s]") << upright;
  for (std::size_t length = 60; length < 80; ++length)
  {
    std::string wide;
    while (wide.size() < 2 * length)
      wide += "\u00e4";
    const std::string shown = paintedTitle(wide, vtkAxis::BOTTOM);
    EXPECT_LE(shown.size(), 66U);
    EXPECT_EQ(shown.size() % 2, 1U) << "a character is cut in two: " << shown;
  }
}
