#include "support/PlotFixture.h"
#include "support/RecordingDevice.h"
#include "vtk/vtkSelectableScatterPlotMatrix.h"

#include <vtkAbstractContextItem.h>
#include <vtkContext2D.h>
#include <vtkObjectFactory.h>
#include <vtkTooltipItem.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace
{

class UnpaintableItem : public vtkAbstractContextItem
{
public:
  static UnpaintableItem* New();
  TALMESH_VTK_TYPE(UnpaintableItem, vtkAbstractContextItem);

  bool Paint(vtkContext2D*) override { throw std::runtime_error("no memory"); }
};

vtkStandardNewMacro(UnpaintableItem);

TEST(MatrixPainting, LeavesTheMatrixInItsSceneWhenItFails)
{
  const PlotScene scene;
  vtkNew<vtkSelectableScatterPlotMatrix> matrix;
  scene.scene()->AddItem(matrix);
  matrix->SetInput(plainTable());
  RecordingPainter recording;
  recording.device->setSize(640, 480);
  EXPECT_TRUE(matrix->Paint(recording.painter));
  matrix->AddItem(vtkNew<UnpaintableItem>());
  EXPECT_THROW(matrix->Paint(recording.painter), std::runtime_error);
  EXPECT_EQ(matrix->GetScene(), scene.scene());
}

// What was set aside is freed later.
TEST(MatrixPainting, ShowsTheTooltipAfterAFormerLargeChartHasDied)
{
  const PlotScene scene;
  vtkNew<vtkSelectableScatterPlotMatrix> matrix;
  scene.scene()->AddItem(matrix);
  RecordingPainter recording;
  recording.device->setSize(640, 480);
  matrix->SetInput(plainTable());
  matrix->Paint(recording.painter);
  vtkSmartPointer<vtkChart> former = matrix->GetMainChart();
  matrix->SetInput(plainTable());
  matrix->Paint(recording.painter);
  ASSERT_NE(matrix->GetMainChart(), former);
  former = nullptr;
  matrix->GetTooltip()->SetText("A, B: 1, 2");
  matrix->GetTooltip()->SetVisible(true);
  recording.device->clear();
  matrix->Paint(recording.painter);
  const auto texts = recording.device->calls(RecordingDevice::Kind::String);
  EXPECT_EQ(std::count_if(texts.begin(), texts.end(),
                          [](const auto& call) { return call.text == "A, B: 1, 2"; }),
            1);
}

TEST(MatrixPainting, ShowsNoFrameOfATooltipWithoutText)
{
  const PlotScene scene;
  vtkNew<vtkSelectableScatterPlotMatrix> matrix;
  scene.scene()->AddItem(matrix);
  RecordingPainter recording;
  recording.device->setSize(640, 480);
  matrix->SetInput(plainTable());
  matrix->Paint(recording.painter);
  const auto texts = recording.device->calls(RecordingDevice::Kind::String);
  EXPECT_FALSE(texts.empty());
  EXPECT_EQ(
      std::count_if(texts.begin(), texts.end(), [](const auto& call) { return call.text.empty(); }),
      0);
  EXPECT_FALSE(matrix->GetTooltip()->GetVisible());
}

} // namespace
