#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "plot/SelectionNodes.h"
#include "support/CapturedOutput.h"
#include "support/PlotScene.h"
#include "support/SampleTables.h"

#include <vtkAxis.h>
#include <vtkContextMapper2D.h>
#include <vtkIdTypeArray.h>
#include <vtkPlotParallelCoordinates.h>
#include <vtkPlotPoints.h>
#include <vtkPlotPoints3D.h>
#include <vtkSelectionNode.h>
#include <vtkTextProperty.h>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QSignalSpy>

#include <cmath>
#include <limits>

namespace
{

const std::string invalidScene = "void PlotContainer::redraw(): invalid scene\n";

class Redraw : public ::testing::Test
{
protected:
  Redraw()
  {
    container.setPlotData(plainTable());
    container.setScene(scene.scene());
  }

  void setStyle(int style) { container.setPlotStyle(static_cast<plotStyles>(style)); }
  PlotMetaData& settings() { return *container.getMetaData(); }
  vtkAxis* bottom() { return container.getChartXY()->GetAxis(vtkAxis::BOTTOM); }
  vtkAxis* left() { return container.getChartXY()->GetAxis(vtkAxis::LEFT); }

  PlotScene scene;
  PlotContainer container{nullptr};
};

class ReservedStyles : public Redraw, public ::testing::WithParamInterface<int>
{
};

TEST_P(ReservedStyles, DrawNothingButTheTitle)
{
  setStyle(GetParam());
  container.redraw();
  ASSERT_NE(container.getChartXY(), nullptr);
  EXPECT_EQ(container.getItem(), container.getChartXY());
  EXPECT_EQ(container.getChartXY()->GetNumberOfPlots(), 0);
  EXPECT_EQ(container.getChartXY()->GetTitle(), "Not yet implemented");
  EXPECT_EQ(settings().title, "Not yet implemented");
  scene.render(container);
  EXPECT_GT(scene.paintedPixels(), 100) << "the title must be seen";
}

INSTANTIATE_TEST_SUITE_P(EveryReservedValue, ReservedStyles,
                         ::testing::Values(1, 2, 10, 11, 1000, -1));

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
  container.state().coordinateWindows[{0, 1, 0}] = {0.5, -2.25, 3.75, 99.0, true};
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
  container.state().coordinateWindows[{0, 2, 0}] = {0.5, -2.25, 3.75, 99.0, true};
  container.state().coordinateWindows[{0, 1, 3}] = {0.5, -2.25, 3.75, 99.0, true};
  container.redraw();
  EXPECT_EQ(bottom()->GetBehavior(), vtkAxis::AUTO);
}

TEST_F(Redraw, IgnoresAWindowThatIsNotFinite)
{
  container.state().coordinateWindows[{0, 1, 0}] = {
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

TEST_F(Redraw, ShowsAllColumnsInTheScatterPlotMatrix)
{
  setStyle(3);
  EXPECT_EQ(container.getChartXY(), nullptr);
  auto* matrix = vtkScatterPlotMatrix::SafeDownCast(container.getItem());
  ASSERT_NE(matrix, nullptr);
  EXPECT_EQ(matrix->GetVisibleColumns()->GetNumberOfValues(), 4);
  EXPECT_EQ(matrix->GetSize().GetX(), 4);
  EXPECT_EQ(matrix->GetGutter(), vtkVector2f(28, 28));
  scene.render(container);
  EXPECT_GT(scene.paintedPixels(), 1000);
}

TEST_F(Redraw, SwapsTheGuttersOfTheScatterPlotMatrix)
{
  container.setHorizontalGutter(11);
  container.setVerticalGutter(22);
  setStyle(3);
  auto* matrix = vtkScatterPlotMatrix::SafeDownCast(container.getItem());
  EXPECT_EQ(matrix->GetGutter(), vtkVector2f(22, 11));
  int borders[4];
  matrix->GetBorders(borders);
  EXPECT_EQ(borders[vtkAxis::LEFT], 80);
  EXPECT_EQ(borders[vtkAxis::BOTTOM], 40);
  EXPECT_EQ(borders[vtkAxis::RIGHT], 20);
  EXPECT_EQ(borders[vtkAxis::TOP], 20);
}

TEST_F(Redraw, LimitsTheScatterPlotMatrixToTheChosenColumns)
{
  settings().xColumns = {3};
  settings().yColumns = {1};
  settings().parameterColumns = {2};
  settings().setLimitColumVisibility(true);
  setStyle(3);
  auto* matrix = vtkScatterPlotMatrix::SafeDownCast(container.getItem());
  ASSERT_EQ(matrix->GetVisibleColumns()->GetNumberOfValues(), 3);
  EXPECT_EQ(matrix->GetVisibleColumns()->GetValue(0), "d");
  EXPECT_EQ(matrix->GetVisibleColumns()->GetValue(1), "b");
  EXPECT_EQ(matrix->GetVisibleColumns()->GetValue(2), "c");
  const vtkVector2i active = matrix->GetActivePlot();
  EXPECT_EQ(matrix->GetColumnName(active.GetX()), "d");
  EXPECT_EQ(matrix->GetRowName(active.GetY()), "b");
  scene.render(container);

  settings().setLimitColumVisibility(false);
  EXPECT_EQ(matrix->GetVisibleColumns()->GetNumberOfValues(), 4);
  EXPECT_EQ(matrix->GetSize().GetX(), 4);
  scene.render(container);
}

TEST_F(Redraw, ActivatesNoPairOfOneColumn)
{
  settings().xColumns = {1};
  settings().yColumns = {1};
  settings().setLimitColumVisibility(true);
  setStyle(3);
  auto* matrix = vtkScatterPlotMatrix::SafeDownCast(container.getItem());
  EXPECT_EQ(matrix->GetVisibleColumns()->GetNumberOfValues(), 1);
  scene.render(container);
}

TEST_F(Redraw, DrawsPointsInSpace)
{
  settings().zColumns = {2};
  setStyle(4);
  EXPECT_EQ(container.getChartXY(), nullptr);
  EXPECT_EQ(container.getItem(), container.state().chartXYZ);
  scene.render(container);
  EXPECT_GT(scene.paintedPixels(), 500);
}

TEST_F(Redraw, ShowsAllAxesForTwoYColumnsAndOnlyThreeForThree)
{
  settings().yColumns = {1, 2};
  setStyle(9);
  vtkStringArray* shown = container.state().parallelCoordinates->GetVisibleColumns();
  EXPECT_EQ(shown->GetNumberOfValues(), 4);
  settings().yColumns = {3, 1, 2};
  container.redraw();
  ASSERT_EQ(shown->GetNumberOfValues(), 3);
  EXPECT_EQ(shown->GetValue(0), "d");
  EXPECT_EQ(shown->GetValue(2), "c");
  EXPECT_EQ(container.state().parallelCoordinates->GetNumberOfAxes(), 3);
  for (int i = 0; i < 3; ++i)
    EXPECT_EQ(
        container.state().parallelCoordinates->GetAxis(i)->GetLabelProperties()->GetOrientation(),
        -45.0);
  scene.render(container);
  EXPECT_GT(scene.paintedPixels(), 500);
}

TEST_F(Redraw, ColorsParallelCoordinatesByTheColorColumn)
{
  settings().colorColumn = 2;
  setStyle(9);
  auto* plot =
      vtkPlotParallelCoordinates::SafeDownCast(container.state().parallelCoordinates->GetPlot(0));
  EXPECT_EQ(plot->GetScalarVisibility(), 1);
  EXPECT_EQ(plot->GetColorArrayName(), "c");
  scene.render(container);
  settings().colorColumn = -1;
  container.redraw();
  EXPECT_EQ(
      vtkPlotParallelCoordinates::SafeDownCast(container.state().parallelCoordinates->GetPlot(0))
          ->GetScalarVisibility(),
      0);
}

TEST_F(Redraw, SwitchesThroughAllStylesInAnyOrder)
{
  for (int from = 0; from <= 11; ++from)
  {
    for (int to = 0; to <= 11; ++to)
    {
      setStyle(from);
      container.redraw();
      scene.render(container);
      setStyle(to);
      container.redraw();
      scene.render(container);
      ASSERT_NE(container.getItem(), nullptr);
      EXPECT_EQ(container.getItem()->GetScene(), scene.scene());
    }
  }
}

class RedrawOfOddData : public Redraw, public ::testing::WithParamInterface<int>
{
};

TEST_P(RedrawOfOddData, SurvivesColumnsThatDoNotExist)
{
  for (const int index : {-5, -1, 4, 1000})
  {
    settings().xColumns = {index};
    settings().yColumns = {index, index, index};
    settings().zColumns = {index};
    settings().colorColumn = index;
    settings().solidColor = false;
    setStyle(GetParam());
    container.redraw();
    scene.render(container);
  }
  settings().xColumns.clear();
  settings().yColumns.clear();
  settings().zColumns.clear();
  container.redraw();
  scene.render(container);
}

TEST_P(RedrawOfOddData, SurvivesTextAndUnnamedColumns)
{
  vtkSmartPointer<vtkTable> table = plainTable();
  addStringColumn(table, "words");
  table->AddColumn(Talmesh::plot::makeColumn("nameless", {1, 2, 3, 4, 5}));
  table->GetColumn(5)->SetName(nullptr);
  container.setPlotData(table);
  setStyle(GetParam());
  for (const int index : {4, 5})
  {
    settings().xColumns = {index};
    settings().yColumns = {index, 0, index};
    settings().zColumns = {index};
    settings().colorColumn = index;
    settings().solidColor = false;
    container.redraw();
    scene.render(container);
  }
}

TEST_P(RedrawOfOddData, SurvivesAnEmptyTable)
{
  setStyle(GetParam());
  container.redraw();
  scene.render(container);
  container.setPlotData(vtkSmartPointer<vtkTable>::New());
  container.redraw();
  scene.render(container);
  container.setPlotData(tableOf({{"a", {}}, {"b", {}}, {"c", {}}}));
  container.redraw();
  scene.render(container);
}

TEST_P(RedrawOfOddData, SurvivesValuesThatAreNotFinite)
{
  const double inf = std::numeric_limits<double>::infinity();
  const double nan = std::numeric_limits<double>::quiet_NaN();
  container.setPlotData(tableOf({{"a", {0, inf, 2, -inf, 4}},
                                 {"b", {nan, nan, nan, nan, nan}},
                                 {"c", {1, nan, 3, 4, 1e300}},
                                 {"d", {7, 7, 7, 7, 7}}}));
  setStyle(GetParam());
  for (int x = 0; x < 4; ++x)
  {
    for (int y = 0; y < 4; ++y)
    {
      settings().xColumns = {x};
      settings().yColumns = {y, 0, 3};
      settings().zColumns = {3};
      settings().colorColumn = x;
      settings().solidColor = false;
      container.redraw();
      scene.render(container);
    }
  }
}

TEST_P(RedrawOfOddData, SurvivesATableOfOneRow)
{
  container.setPlotData(tableOf({{"a", {1}}, {"b", {2}}, {"c", {3}}}));
  setStyle(GetParam());
  container.redraw();
  scene.render(container);
}

INSTANTIATE_TEST_SUITE_P(EveryStyle, RedrawOfOddData, ::testing::Range(0, 11));

TEST_F(Redraw, LeavesTheChartOfSobolResultsBehind)
{
  container.state().sobolChart = container.getChartXY();
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
    container.state().sobolChart = container.getChartXY();
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
  container.getAnnotationLink()->SetCurrentSelection(Talmesh::plot::wrapRowSelection(rows));
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
  container.state().columnItems = {{Talmesh::Parameter, "k"}};
  settings().parameterColumns = {0};
  settings().blockSignals(true);
  container.setPlotStyle(multiPlot);
  settings().blockSignals(false);
  CapturedOutput errors(std::cerr);
  clicked.setObjectName("now");
  EXPECT_EQ(errors.text().rfind("void PlotContainer::redraw(): ", 0), 0U) << errors.text();
  EXPECT_THROW(container.redraw(), std::out_of_range);
}

} // namespace
