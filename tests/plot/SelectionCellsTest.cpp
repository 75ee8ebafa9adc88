#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/DistributionCell.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/SampleRuns.h"
#include "support/SampleTables.h"

#include <vtkAxis.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "SelectionPageFixture.h"

namespace
{

constexpr double singlePrecision = 1e-6;

class SelectionCells : public SelectionPageFixture
{
protected:
  /// The largest density of parameter `k`, counted from 0, in the tables of these slots.
  double highestDensity(int k, const std::vector<std::size_t>& slotNumbers)
  {
    double highest = 0.0;
    for (const std::size_t slot : slotNumbers)
    {
      const auto densities = SampleRuns::valuesOf(
          container.getDerivedTables().at(slot), "Density of Parameter: k" + std::to_string(k + 1));
      highest = std::max(highest, *std::max_element(densities.begin(), densities.end()));
    }
    return highest;
  }

  double leftMaximum(int column) { return cell(column, 0)->GetAxis(vtkAxis::LEFT)->GetMaximum(); }
};

TEST_F(SelectionCells, DrawsStepLinesOfTheRanksFromZeroToOne)
{
  draw(3);
  vtkPlot* curve = cell(1, 0)->GetPlot(0);
  EXPECT_STREQ(curve->GetClassName(), "vtkPlotStepLine");
  EXPECT_EQ(plottedName(curve, 0), "Sorted Parameter: k2");
  EXPECT_EQ(plottedName(curve, 1), "Rank of Parameter: k2");
  vtkAxis* left = cell(1, 0)->GetAxis(vtkAxis::LEFT);
  EXPECT_EQ(left->GetTitle(), "Ecdf");
  EXPECT_FALSE(left->GetLabelsVisible());
  scene.render(container);
  EXPECT_EQ(left->GetMinimum(), 0.0);
  EXPECT_EQ(left->GetMaximum(), 1.0);
}

TEST_F(SelectionCells, DrawsDensitiesEachOnItsOwnScale)
{
  draw(3);
  settings().setUseDensity(true);
  for (int i = 0; i < 3; ++i)
  {
    vtkPlot* curve = cell(i, 0)->GetPlot(0);
    EXPECT_EQ(plottedName(curve, 1), "Density of Parameter: k" + std::to_string(i + 1));
    EXPECT_EQ(plottedName(curve, 0), "Locations of Parameter: k" + std::to_string(i + 1));
    vtkAxis* left = cell(i, 0)->GetAxis(vtkAxis::LEFT);
    EXPECT_EQ(left->GetTitle(), "Density");
    scene.render(container);
    EXPECT_EQ(left->GetMinimum(), 0.0);
    EXPECT_NEAR(left->GetMaximum(), highestDensity(i, {1}), singlePrecision);
  }
}

TEST_F(SelectionCells, DrawsDensitiesOfASelectionUpToTheHighestOfTheirChart)
{
  draw(3);
  settings().setUseDensity(true);
  selectFirstRuns(5);
  scene.render(container);
  for (int i = 0; i < 3; ++i)
    EXPECT_NEAR(leftMaximum(i), highestDensity(i, {1, 4, 7}), singlePrecision) << i;
}

TEST_F(SelectionCells, DrawsDensitiesOnOneScaleWithRoomAbove)
{
  draw(3);
  settings().setUseDensity(true);
  settings().setCommonDensityScale(true);
  scene.render(container);
  const double highest =
      std::max({highestDensity(0, {1}), highestDensity(1, {1}), highestDensity(2, {1})});
  for (int i = 0; i < 3; ++i)
    EXPECT_NEAR(leftMaximum(i), 1.05 * highest, singlePrecision) << i;
}

TEST_F(SelectionCells, DrawsAllDensitiesOfASelectionOnOneScale)
{
  draw(3);
  settings().setUseDensity(true);
  settings().setCommonDensityScale(true);
  selectFirstRuns(5);
  scene.render(container);
  double highest = 0.0;
  double highestOfAllRuns = 0.0;
  for (int i = 0; i < 3; ++i)
  {
    highest = std::max(highest, highestDensity(i, {1, 4, 7}));
    highestOfAllRuns = std::max(highestOfAllRuns, highestDensity(i, {1}));
  }
  ASSERT_GT(highest, 1.01 * highestOfAllRuns) << "the curve of a further data set decides";
  for (int i = 0; i < 3; ++i)
    EXPECT_NEAR(leftMaximum(i), 1.05 * highest, singlePrecision) << i;
}

TEST_F(SelectionCells, ShowsAParameterTwiceWhenResultsAreMissing)
{
  draw(6);
  stateOf(container).ksResults = {{0.5, 0.2}, {0.001, 0.7}};
  container.redraw();
  // k2 differs, k1 does not, and the row is filled from the first parameter on.
  const char* order[] = {"k2", "k1", "k1", "k2"};
  for (int i = 0; i < 4; ++i)
  {
    EXPECT_EQ(cell(i, 0)->GetAxis(vtkAxis::BOTTOM)->GetTitle(), order[i]);
    ASSERT_EQ(cell(i, 0)->GetNumberOfPlots(), 1);
    EXPECT_EQ(plottedName(cell(i, 0)->GetPlot(0), 0), std::string("Sorted Parameter: ") + order[i]);
    EXPECT_EQ(cell(i, 0)->GetTitle(), i == 0 || i == 3 ? "p = 1.00e-03" : "p = 0.50");
  }
  scene.render(container);
}

TEST_F(SelectionCells, HasNoButtonForPanAndZoomInAnyChart)
{
  draw(6);
  stateOf(container).ksResults.assign(6, {0.001, 0.7});
  container.redraw();
  ASSERT_EQ(matrix()->GetSize(), vtkVector2i(4, 4));
  for (int i = 0; i < 6; ++i)
  {
    // Button 0 would match every move of the mouse without a button.
    EXPECT_LT(cell(i % 4, i / 4)->GetActionToButton(vtkChart::PAN), 0) << i;
    EXPECT_LT(cell(i % 4, i / 4)->GetActionToButton(vtkChart::ZOOM), 0) << i;
  }
}

TEST_F(SelectionCells, SplitsTheRunsOfASelectionIntoTwoCurves)
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

TEST_F(SelectionCells, RanksSlopesOfSelectedRunsAsTheSignificantParameter)
{
  draw(3);
  settings().setKsThreshold(0.5);
  selectFirstRuns(8);
  // Runs 0 to 7 have k1 = 1 to 8 and the others 9 to 20: the samples do not overlap, so D is 1.
  EXPECT_DOUBLE_EQ(container.getKsResults()[0].statistic, 1.0);
  EXPECT_EQ(cell(0, 0)->GetAxis(vtkAxis::BOTTOM)->GetTitle(), "k1");
}

TEST_F(SelectionCells, RebuildsMissingRankTables)
{
  draw(3);
  stateOf(container).derivedTables.assign(2, nullptr);
  container.redraw();
  ASSERT_NE(container.getDerivedTables()[0], nullptr);
  EXPECT_EQ(cell(0, 0)->GetPlot(0)->GetInput(), container.getDerivedTables()[0]);
  stateOf(container).derivedTables.clear();
  container.redraw();
  EXPECT_EQ(container.getDerivedTables().size(), 2U);
}

TEST_F(SelectionCells, LeavesCurvesOfForeignTablesEmpty)
{
  draw(3);
  stateOf(container).derivedTables.resize(8, plainTable());
  stateOf(container).derivedTables[4] = nullptr;
  container.redraw();
  ASSERT_EQ(cell(0, 0)->GetNumberOfPlots(), 3);
  EXPECT_EQ(cell(0, 0)->GetPlot(1)->GetInput(), nullptr);
  scene.render(container);
  settings().setUseDensity(true);
  scene.render(container);
}

TEST(PValueLabel, WritesSmallValuesInScientificNotation)
{
  EXPECT_EQ(Talmesh::plot::pValueLabel(0.5), "p = 0.50");
  EXPECT_EQ(Talmesh::plot::pValueLabel(0.001), "p = 1.00e-03");
  EXPECT_EQ(Talmesh::plot::pValueLabel(0.0), "p = 0.00");
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(Talmesh::plot::pValueLabel(nan), "p = nan");
  EXPECT_EQ(Talmesh::plot::pValueLabel(-nan), "p = nan") << "the sign of a NaN means nothing";
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
