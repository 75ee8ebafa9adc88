#include "external/PlotMetaData.h"
#include "plot/DistributionCell.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/CapturedOutput.h"
#include "support/ParameterStudy.h"
#include "support/PlotScene.h"
#include "support/SampleTables.h"

#include <vtkAxis.h>
#include <vtkCommand.h>
#include <vtkContextMapper2D.h>
#include <vtkContextMouseEvent.h>
#include <vtkIdTypeArray.h>
#include <vtkPlotFunctionalBag.h>
#include <vtkPlotPoints.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

constexpr int runs = 20;
constexpr int points = 5;

class SelectionPage : public ::testing::Test
{
protected:
  void draw(int parameters)
  {
    container.setScene(scene.scene());
    container.setPlotStyle(selectionCdfPlot);
    container.setLinePlotTable(parameterStudy(runs, points, parameters), true);
  }

  /// Selects all rows of the runs below `count`.
  void selectFirstRuns(int count)
  {
    vtkNew<vtkIdTypeArray> rows;
    for (int row = 0; row < count * points; ++row)
      rows->InsertNextValue(row);
    vtkNew<vtkSelectionNode> node;
    node->SetFieldType(vtkSelectionNode::ROW);
    node->SetContentType(vtkSelectionNode::INDICES);
    node->SetSelectionList(rows);
    vtkNew<vtkSelection> selection;
    selection->AddNode(node);
    container.getAnnotationLink()->SetCurrentSelection(selection);
  }

  PlotMetaData& settings() { return *container.getMetaData(); }
  vtkChartMatrix* matrix() { return container.getChartMatrix(); }
  vtkChart* cell(int column, int row) { return matrix()->GetChart(vtkVector2i(column, row)); }
  static std::string inputName(vtkPlot* plot, int axis)
  {
    return plot->GetData()->GetInputAbstractArrayToProcess(axis, plot->GetInput())->GetName();
  }
  static std::array<int, 3> colorOf(vtkPlot* plot)
  {
    unsigned char rgb[3];
    plot->GetColor(rgb);
    return {rgb[0], rgb[1], rgb[2]};
  }

  PlotScene scene{1000, 800};
  PlotContainer container{nullptr};
};

TEST_F(SelectionPage, ShowsFourParametersBelowTheTrajectories)
{
  draw(6);
  EXPECT_EQ(matrix()->GetSize(), vtkVector2i(4, 2));
  EXPECT_EQ(container.getChartXY(), cell(0, 1));
  EXPECT_EQ(matrix()->GetChartSpan(vtkVector2i(0, 1)), vtkVector2i(4, 1));
  for (int i = 0; i < 4; ++i)
  {
    EXPECT_EQ(cell(i, 0)->GetAxis(vtkAxis::BOTTOM)->GetTitle(), "k" + std::to_string(i + 1));
    EXPECT_EQ(cell(i, 0)->GetNumberOfPlots(), 1);
    EXPECT_EQ(cell(i, 0)->GetTitle(), "") << "no test, no p-value";
  }
  ASSERT_EQ(scene.scene()->GetNumberOfItems(), 1U);
  EXPECT_EQ(scene.scene()->GetItem(0), matrix());
  scene.render(container);
  EXPECT_GT(scene.paintedPixels(), 5000);
}

TEST_F(SelectionPage, FillsNoCellThatHasNoParameter)
{
  draw(2);
  EXPECT_EQ(matrix()->GetSize(), vtkVector2i(2, 2));
  EXPECT_EQ(matrix()->GetChartSpan(vtkVector2i(0, 1)), vtkVector2i(2, 1));
}

TEST_F(SelectionPage, ShowsOnlyTheTrajectoriesWithoutParameters)
{
  draw(0);
  EXPECT_EQ(matrix()->GetSize(), vtkVector2i(1, 2));
  EXPECT_EQ(container.getChartXY(), cell(0, 1));
  EXPECT_EQ(cell(0, 0)->GetNumberOfPlots(), 0);
  scene.render(container);
}

TEST_F(SelectionPage, PutsSignificantParametersFirst)
{
  draw(10);
  container.state().ksResults.assign(10, {0.5, 0.2});
  for (const std::size_t i : {1U, 3U, 5U, 7U, 9U})
    container.state().ksResults[i] = {0.001, 0.7};
  container.redraw();
  EXPECT_EQ(matrix()->GetSize(), vtkVector2i(4, 4));
  EXPECT_EQ(container.getChartXY(), cell(0, 2));
  EXPECT_EQ(matrix()->GetChartSpan(vtkVector2i(0, 2)), vtkVector2i(4, 2));
  const char* order[] = {"k2", "k4", "k6", "k8", "k10", "k1", "k3", "k5"};
  for (int i = 0; i < 8; ++i)
    EXPECT_EQ(cell(i % 4, i / 4)->GetAxis(vtkAxis::BOTTOM)->GetTitle(), order[i]);
  EXPECT_EQ(cell(0, 0)->GetTitle(), "p = 1.00e-03");
  EXPECT_EQ(cell(1, 1)->GetTitle(), "p = 0.50");
  scene.render(container);
}

TEST_F(SelectionPage, MakesRoomForTheHeadings)
{
  draw(4);
  EXPECT_EQ(matrix()->GetGutter(), vtkVector2f(28, 28 + 25));
  int borders[4];
  matrix()->GetBorders(borders);
  EXPECT_EQ(borders[vtkAxis::TOP], 45);
  container.setTopMargin(30);
  matrix()->GetBorders(borders);
  EXPECT_EQ(borders[vtkAxis::TOP], 55);
}

TEST_F(SelectionPage, DrawsStepLinesOfTheRanksFromZeroToOne)
{
  draw(3);
  vtkPlot* curve = cell(1, 0)->GetPlot(0);
  EXPECT_STREQ(curve->GetClassName(), "vtkPlotStepLine");
  EXPECT_EQ(inputName(curve, 0), "Sorted Parameter: k2");
  EXPECT_EQ(inputName(curve, 1), "Rank of Parameter: k2");
  vtkAxis* left = cell(1, 0)->GetAxis(vtkAxis::LEFT);
  EXPECT_EQ(left->GetTitle(), "Ecdf");
  EXPECT_FALSE(left->GetLabelsVisible());
  scene.render(container);
  EXPECT_EQ(left->GetMinimum(), 0.0);
  EXPECT_EQ(left->GetMaximum(), 1.0);
}

TEST_F(SelectionPage, DrawsDensitiesEachOnItsOwnScale)
{
  draw(3);
  settings().setUseDensity(true);
  for (int i = 0; i < 3; ++i)
  {
    vtkPlot* curve = cell(i, 0)->GetPlot(0);
    EXPECT_EQ(inputName(curve, 1), "Density of Parameter: k" + std::to_string(i + 1));
    EXPECT_EQ(inputName(curve, 0), "Locations of Parameter: k" + std::to_string(i + 1));
    vtkAxis* left = cell(i, 0)->GetAxis(vtkAxis::LEFT);
    EXPECT_EQ(left->GetTitle(), "Density");
    scene.render(container);
    EXPECT_EQ(left->GetMinimum(), 0.0);
    EXPECT_NEAR(left->GetMaximum(), Talmesh::plot::highestBound(cell(i, 0)), 1e-6);
  }
}

TEST_F(SelectionPage, DrawsDensitiesOnOneScaleWithRoomAbove)
{
  draw(3);
  settings().setUseDensity(true);
  settings().setCommonDensityScale(true);
  double highest = 0.0;
  for (int i = 0; i < 3; ++i)
    highest = std::max(highest, Talmesh::plot::highestBound(cell(i, 0)));
  ASSERT_GT(highest, 0.0);
  scene.render(container);
  for (int i = 0; i < 3; ++i)
    EXPECT_NEAR(cell(i, 0)->GetAxis(vtkAxis::LEFT)->GetMaximum(), 1.05 * highest, 1e-6);
}

TEST_F(SelectionPage, SplitsTheRunsOfASelectionIntoTwoCurves)
{
  draw(3);
  selectFirstRuns(5);
  ASSERT_EQ(container.getDerivedTables().size(), 8U);
  ASSERT_EQ(container.getKsResults().size(), 3U);
  vtkChart* first = cell(0, 0);
  ASSERT_EQ(first->GetNumberOfPlots(), 3);
  EXPECT_EQ(colorOf(first->GetPlot(0)), (std::array<int, 3>{0, 0, 0}));
  EXPECT_EQ(colorOf(first->GetPlot(1)), (std::array<int, 3>{255, 51, 0}));
  EXPECT_EQ(colorOf(first->GetPlot(2)), (std::array<int, 3>{12, 153, 229}));
  EXPECT_EQ(first->GetPlot(1)->GetInput(), container.getDerivedTables()[3]);
  EXPECT_EQ(first->GetPlot(2)->GetInput(), container.getDerivedTables()[6]);
  EXPECT_EQ(first->GetTitle(), Talmesh::plot::pValueLabel(container.getKsResults()[0].pValue));
  EXPECT_FALSE(settings().signalsBlocked());
  scene.render(container);
}

TEST_F(SelectionPage, RanksSlopesOfSelectedRunsAsTheSignificantParameter)
{
  draw(3);
  settings().setKsThreshold(0.5);
  selectFirstRuns(8);
  // Runs 0 to 7 have k1 = 1 to 8 and the others 9 to 20: the samples do not overlap, so D is 1.
  EXPECT_DOUBLE_EQ(container.getKsResults()[0].statistic, 1.0);
  EXPECT_EQ(cell(0, 0)->GetAxis(vtkAxis::BOTTOM)->GetTitle(), "k1");
}

TEST_F(SelectionPage, BindsSelectionAndWindowMemoryToTheTrajectories)
{
  draw(3);
  EXPECT_EQ(container.getChartXY()->GetAnnotationLink(), container.getAnnotationLink());
  EXPECT_EQ(container.getChartXY()->GetActionToButton(vtkChart::SELECT),
            vtkContextMouseEvent::RIGHT_BUTTON);
  EXPECT_EQ(cell(0, 0)->GetActionToButton(vtkChart::PAN), -1);
  EXPECT_EQ(cell(0, 0)->GetActionToButton(vtkChart::ZOOM), -1);
  container.getChartXY()->InvokeEvent(vtkCommand::InteractionEvent);
  EXPECT_EQ(container.state().coordinateWindows.size(), 1U);
}

TEST_F(SelectionPage, FixesTheTimeAxisJustBeyondTheData)
{
  draw(3);
  vtkAxis* bottom = container.getChartXY()->GetAxis(vtkAxis::BOTTOM);
  EXPECT_EQ(bottom->GetBehavior(), vtkAxis::FIXED);
  EXPECT_DOUBLE_EQ(bottom->GetMinimum(), 0.995 * 10.0);
  EXPECT_DOUBLE_EQ(bottom->GetMaximum(), 1.005 * 14.0);
  EXPECT_EQ(container.getChartXY()->GetAxis(vtkAxis::LEFT)->GetBehavior(), vtkAxis::AUTO);
}

TEST_F(SelectionPage, ShowsTheRememberedWindow)
{
  draw(3);
  container.state().coordinateWindows[{1, 0, 6}] = {11, 2, 12, 5, true};
  container.redraw();
  scene.render(container);
  EXPECT_EQ(container.getChartXY()->GetAxis(vtkAxis::BOTTOM)->GetMinimum(), 11.0);
  EXPECT_EQ(container.getChartXY()->GetAxis(vtkAxis::LEFT)->GetMaximum(), 5.0);
}

TEST_F(SelectionPage, DrawsQuantileBandsBehindTheRuns)
{
  draw(3);
  settings().setShowQuantiles(true);
  vtkChartXY* chart = container.getChartXY();
  ASSERT_EQ(chart->GetNumberOfPlots(), 4);
  const char* columns[] = {"Range", "QRange", "Median"};
  for (int i = 0; i < 3; ++i)
  {
    auto* band = vtkPlotFunctionalBag::SafeDownCast(chart->GetPlot(i));
    ASSERT_NE(band, nullptr);
    EXPECT_EQ(inputName(band, 0), "Time");
    EXPECT_EQ(inputName(band, 1), columns[i]);
    EXPECT_FALSE(band->GetSelectable());
  }
  EXPECT_EQ(colorOf(chart->GetPlot(0)), (std::array<int, 3>{148, 148, 255}));
  EXPECT_EQ(colorOf(chart->GetPlot(1)), (std::array<int, 3>{64, 64, 255}));
  selectFirstRuns(5);
  scene.render(container);
}

TEST_F(SelectionPage, DrawsRunsAsALineSetOrAsPoints)
{
  draw(3);
  EXPECT_STREQ(container.getChartXY()->GetPlot(0)->GetClassName(), "vtkPlotInvisiblePoints");
  settings().setPlotLine(true);
  EXPECT_STREQ(container.getChartXY()->GetPlot(0)->GetClassName(), "vtkPlotLineSet");
}

TEST_F(SelectionPage, RunsAPendingUpdateOnceAndFillsThePageOnce)
{
  draw(3);
  selectFirstRuns(5);
  container.state().derivedTables.resize(2);
  container.state().ksResults.clear();
  container.state().selectionUpdatePending = true;
  container.redraw();
  EXPECT_FALSE(container.state().selectionUpdatePending);
  EXPECT_EQ(container.getKsResults().size(), 3U);
  EXPECT_EQ(cell(0, 0)->GetNumberOfPlots(), 3);
  EXPECT_EQ(container.getChartXY()->GetNumberOfPlots(), 1);
  EXPECT_EQ(scene.scene()->GetNumberOfItems(), 1U);
  EXPECT_FALSE(settings().signalsBlocked());
}

TEST_F(SelectionPage, RebuildsMissingRankTables)
{
  draw(3);
  container.state().derivedTables.assign(2, nullptr);
  container.redraw();
  ASSERT_NE(container.getDerivedTables()[0], nullptr);
  EXPECT_EQ(cell(0, 0)->GetPlot(0)->GetInput(), container.getDerivedTables()[0]);
  container.state().derivedTables.clear();
  container.redraw();
  EXPECT_EQ(container.getDerivedTables().size(), 2U);
}

TEST_F(SelectionPage, LeavesCurvesOfForeignTablesEmpty)
{
  draw(3);
  container.state().derivedTables.resize(8, plainTable());
  container.state().derivedTables[4] = nullptr;
  container.redraw();
  ASSERT_EQ(cell(0, 0)->GetNumberOfPlots(), 3);
  EXPECT_EQ(cell(0, 0)->GetPlot(1)->GetInput(), nullptr);
  scene.render(container);
  settings().setUseDensity(true);
  scene.render(container);
}

TEST_F(SelectionPage, SkipsResultsOfParametersThatAreGone)
{
  draw(2);
  container.state().ksResults.assign(9, {0.001, 0.9});
  container.redraw();
  EXPECT_EQ(matrix()->GetSize(), vtkVector2i(2, 2));
  scene.render(container);
}

TEST_F(SelectionPage, RefusesAShortParameterNameBeforeAnythingChanges)
{
  draw(3);
  container.getTable()->GetColumnByName("Parameter: k2")->SetName("k2");
  EXPECT_THROW(container.redraw(), std::out_of_range);
  EXPECT_FALSE(settings().signalsBlocked());
  EXPECT_EQ(matrix()->GetSize(), vtkVector2i(3, 2));
  EXPECT_EQ(cell(0, 0)->GetNumberOfPlots(), 1);
}

TEST_F(SelectionPage, TitlesTheTrajectories)
{
  draw(3);
  container.setPlotTitle("All runs");
  container.redraw();
  EXPECT_EQ(container.getChartXY()->GetTitle(), "All runs");
  EXPECT_EQ(container.getChartXY()->GetAxis(vtkAxis::BOTTOM)->GetTitle(), "Time [s]");
  EXPECT_EQ(container.getChartXY()->GetAxis(vtkAxis::LEFT)->GetTitle(), "A");
}

TEST_F(SelectionPage, DiffersFromOtherPagesInItsCells)
{
  draw(3);
  container.setPlotStyle(multiPlot);
  scene.render(container);
  EXPECT_EQ(matrix()->GetSize(), vtkVector2i(3, 3));
  EXPECT_EQ(cell(0, 0)->GetTitle(), "");
  EXPECT_TRUE(cell(0, 0)->GetAxis(vtkAxis::LEFT)->GetLabelsVisible());
  container.setPlotStyle(selectionCdfPlot);
  scene.render(container);
  container.setPlotStyle(xyPlot);
  EXPECT_NE(container.getChartXY()->GetParent(), matrix());
  scene.render(container);
}

TEST(PValueLabel, WritesSmallValuesInScientificNotation)
{
  EXPECT_EQ(Talmesh::plot::pValueLabel(0.5), "p = 0.50");
  EXPECT_EQ(Talmesh::plot::pValueLabel(0.001), "p = 1.00e-03");
  EXPECT_EQ(Talmesh::plot::pValueLabel(0.0), "p = 0.00");
  EXPECT_EQ(Talmesh::plot::pValueLabel(0.01), "p = 0.01");
  EXPECT_EQ(Talmesh::plot::pValueLabel(1.0), "p = 1.00");
}

TEST(DensityAxis, StaysAsItIsWithoutAUsableMaximum)
{
  vtkNew<vtkChartXY> chart;
  const int before = chart->GetAxis(vtkAxis::LEFT)->GetBehavior();
  for (const double maximum : {0.0, -1.0, HUGE_VAL, std::nan("")})
    Talmesh::plot::scaleDensityAxis(chart, maximum);
  EXPECT_EQ(chart->GetAxis(vtkAxis::LEFT)->GetBehavior(), before);
  Talmesh::plot::scaleDensityAxis(chart, 2.0);
  EXPECT_EQ(chart->GetAxis(vtkAxis::LEFT)->GetMaximum(), 2.0);
}

} // namespace
