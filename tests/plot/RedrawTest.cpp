#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/CapturedOutput.h"
#include "support/PlotFixture.h"
#include "support/SampleTables.h"
#include "vtk/RowSelections.h"

#include <vtkAxis.h>
#include <vtkContextMapper2D.h>
#include <vtkIdTypeArray.h>
#include <vtkPlotPoints.h>
#include <vtkSelectionNode.h>

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <limits>

namespace
{

const std::string invalidScene = "void PlotContainer::redraw(): invalid scene\n";

class Redraw : public UndrawnPlotFixture
{
};

TEST(RedrawWithoutScene, SaysSoAndLeavesTheSettingsSilent)
{
  PlotContainer container(nullptr);
  CapturedOutput output(std::cout);
  container.redraw();
  EXPECT_EQ(output.text(), invalidScene);
  EXPECT_TRUE(container.getMetaData()->signalsBlocked());

  container.getMetaData()->setStride(7);
  EXPECT_EQ(output.text(), invalidScene) << "silenced settings start no redraw";
  container.getMetaData()->blockSignals(false);
  container.getMetaData()->setStride(8);
  EXPECT_EQ(output.text(), invalidScene + invalidScene);
}

TEST(RedrawWithoutScene, CountsASceneThatIsGoneAsNone)
{
  PlotContainer container(nullptr);
  auto* scene = vtkContextScene::New();
  container.setScene(scene);
  container.redraw();
  EXPECT_FALSE(container.getMetaData()->signalsBlocked());
  scene->Delete();
  CapturedOutput output(std::cout);
  container.redraw();
  EXPECT_EQ(output.text(), invalidScene);
  container.dirty();
}

TEST_F(Redraw, FollowsEverySettingThatIsAnnounced)
{
  container.getMetaData()->xLabel = "time";
  container.getMetaData()->setStride(3);
  EXPECT_EQ(bottom()->GetTitle(), "time");
}

TEST_F(Redraw, UnblocksTheSettings)
{
  container.getMetaData()->blockSignals(true);
  container.redraw();
  EXPECT_FALSE(container.getMetaData()->signalsBlocked());
}

TEST_F(Redraw, DrawsOnePointPlotFromTheFirstColumns)
{
  settings().xColumns = {1, 0};
  settings().yColumns = {2, 3};
  settings().title = "title";
  settings().pointSize = 7.0;
  settings().markerStyle = vtkPlotPoints::SQUARE;
  settings().color = {10, 20, 30, 40};
  container.setLeftMargin(81);
  container.redraw();
  ASSERT_EQ(container.getChartXY()->GetNumberOfPlots(), 1);
  auto* plot = vtkPlotPoints::SafeDownCast(container.getChartXY()->GetPlot(0));
  ASSERT_NE(plot, nullptr);
  EXPECT_FLOAT_EQ(plot->GetMarkerSize(), 7.0F);
  EXPECT_EQ(plot->GetMarkerStyle(), vtkPlotPoints::SQUARE);
  EXPECT_EQ(plot->GetInput(), container.getTable());
  EXPECT_EQ(plot->GetData()->GetInputAbstractArrayToProcess(0, plot->GetInput()),
            container.getTable()->GetColumn(1));
  EXPECT_EQ(plot->GetData()->GetInputAbstractArrayToProcess(1, plot->GetInput()),
            container.getTable()->GetColumn(2));
  unsigned char rgb[3];
  plot->GetColor(rgb);
  EXPECT_EQ(rgb[0], 10);
  EXPECT_EQ(rgb[2], 30);
  EXPECT_EQ(container.getChartXY()->GetTitle(), "title");
  EXPECT_EQ(container.getChartXY()->GetAnnotationLink(), container.getAnnotationLink());
}

TEST_F(Redraw, EndsWithAutomaticAxesWhenNoWindowIsRemembered)
{
  container.redraw();
  EXPECT_EQ(bottom()->GetBehavior(), vtkAxis::AUTO);
  EXPECT_EQ(left()->GetBehavior(), vtkAxis::AUTO);
}

TEST_F(Redraw, ShowsExactlyTheRememberedWindow)
{
  stateOf(container).coordinateWindows[{0, 1, 0}] = {0.5, -2.25, 3.75, 99.0, true};
  container.redraw();
  for (int i = 0; i < 2; ++i)
  {
    EXPECT_EQ(bottom()->GetBehavior(), vtkAxis::FIXED);
    EXPECT_EQ(bottom()->GetMinimum(), 0.5);
    EXPECT_EQ(bottom()->GetMaximum(), 3.75);
    EXPECT_EQ(left()->GetMinimum(), -2.25);
    EXPECT_EQ(left()->GetMaximum(), 99.0);
    scene.render(container);
  }
}

TEST_F(Redraw, IgnoresTheWindowOfAnotherConfiguration)
{
  stateOf(container).coordinateWindows[{0, 2, 0}] = {0.5, -2.25, 3.75, 99.0, true};
  stateOf(container).coordinateWindows[{0, 1, 3}] = {0.5, -2.25, 3.75, 99.0, true};
  container.redraw();
  EXPECT_EQ(bottom()->GetBehavior(), vtkAxis::AUTO);
}

TEST_F(Redraw, IgnoresAWindowThatIsNotFinite)
{
  stateOf(container).coordinateWindows[{0, 1, 0}] = {
      0.0, 0.0, std::numeric_limits<double>::infinity(), 1.0, true};
  container.redraw();
  EXPECT_EQ(bottom()->GetBehavior(), vtkAxis::AUTO);
  scene.render(container);
}

TEST_F(Redraw, PutsTickLabelsAtTheirIndexUnlessTheyHavePositions)
{
  container.setXTickLabels({"low", "mid", "high"});
  container.redraw();
  ASSERT_EQ(bottom()->GetTickPositions()->GetNumberOfValues(), 3);
  EXPECT_EQ(bottom()->GetTickPositions()->GetValue(2), 2.0);
  EXPECT_EQ(bottom()->GetTickLabels()->GetValue(1), "mid");

  container.setXTickPosition({1.5, 2.5, 3.5});
  container.redraw();
  EXPECT_EQ(bottom()->GetTickPositions()->GetValue(2), 3.5);
  scene.render(container);
}

TEST_F(Redraw, DrawsRunsAsLinesWhenTheSettingsSaySo)
{
  settings().setStride(2);
  settings().setPlotLine(true);
  ASSERT_EQ(container.getChartXY()->GetNumberOfPlots(), 1);
  EXPECT_STREQ(container.getChartXY()->GetPlot(0)->GetClassName(), "vtkPlotLineSet");
}

TEST_F(Redraw, LeavesTheChartOfSobolResultsBehind)
{
  stateOf(container).sobolChart = container.getChartXY();
  setStyle(0);
  container.redraw();
  setStyle(1);
  EXPECT_EQ(container.getChartXY()->GetNumberOfPlots(), 0);
  EXPECT_EQ(container.getChartXY()->GetTitle(), "Not yet implemented");
}

TEST_F(Redraw, DrawsDecorationsOnceHoweverOftenItRuns)
{
  container.setDecorations(plainTable(), true);
  for (const int style : {9, 0, 1})
  {
    stateOf(container).sobolChart = container.getChartXY();
    setStyle(style);
    container.redraw();
    const vtkIdType plots = container.getChartXY()->GetNumberOfPlots();
    container.redraw();
    container.redraw();
    EXPECT_EQ(container.getChartXY()->GetNumberOfPlots(), plots) << style;
  }
}

TEST_F(Redraw, KeepsTheCellsOfAReplacedMatrixUntilTheEventLoop)
{
  setStyle(3);
  scene.render(container);
  auto* matrix = vtkScatterPlotMatrix::SafeDownCast(container.getItem());
  const vtkWeakPointer<vtkChart> cell = matrix->GetChart(vtkVector2i(0, 0));
  container.redraw();
  EXPECT_NE(cell, nullptr);
  EXPECT_EQ(cell->GetScene(), scene.scene());
  QCoreApplication::processEvents();
  EXPECT_EQ(cell, nullptr);
}

TEST_F(Redraw, CutsASelectionThatNamesRowsBeyondTheTable)
{
  vtkNew<vtkIdTypeArray> rows;
  for (const vtkIdType row : {1, 4, 5, 1000000})
    rows->InsertNextValue(row);
  container.getAnnotationLink()->SetCurrentSelection(Talmesh::wrapRowSelection(rows));
  scene.render(container);
  EXPECT_EQ(rows->GetNumberOfValues(), 4) << "the client's own list stays";
  auto* kept = vtkIdTypeArray::SafeDownCast(
      container.getAnnotationLink()->GetCurrentSelection()->GetNode(0)->GetSelectionList());
  ASSERT_EQ(kept->GetNumberOfValues(), 2);
  EXPECT_EQ(kept->GetValue(1), 4);
}

TEST_F(Redraw, ReportsInsteadOfThrowingWhateverSignalStartsIt)
{
  QObject clicked;
  QObject::connect(&clicked, SIGNAL(objectNameChanged(QString)), &container, SLOT(redraw()));
  settings().parameterColumns = {0, 1};
  settings().blockSignals(true);
  container.setPlotStyle(multiPlot);
  settings().blockSignals(false);
  CapturedOutput errors(std::cerr);
  clicked.setObjectName("now");
  EXPECT_EQ(errors.text().rfind("void PlotContainer::redraw(): ", 0), 0U) << errors.text();
  EXPECT_THROW(container.redraw(), std::out_of_range);
}

} // namespace
