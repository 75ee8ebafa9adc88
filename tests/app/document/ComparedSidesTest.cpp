#include "app/document/ComparedSides.h"

#include "app/comparison/ComparisonChoice.h"
#include "app/document/SelectionComparison.h"
#include "plot/TableColumns.h"

#include <vtkAxis.h>
#include <vtkChart.h>
#include <vtkChartMatrix.h>
#include <vtkPlot.h>
#include <vtkTable.h>

#include <algorithm>
#include <cmath>
#include <map>

#include "document/ComparedRuns.h"

using namespace Talmesh::app;

namespace
{

/// Every level of k with every level of m, so many runs of each; X rises with k.
std::string levels(int ofK, int ofM, int replicates)
{
  std::ostringstream text;
  text << "run,time,k,m,X\n";
  for (int run = 0; run < ofK * ofM * replicates; ++run)
    for (int point = 0; point < 3; ++point)
      text << run << ',' << point << ',' << run / replicates % ofK << ','
           << run / replicates / ofK * 0.1 << ',' << run * 7 % 11 + point << '\n';
  return text.str();
}

/// A staircase as a chart draws it: up at every place.
using Staircase = std::map<double, double>;

double heightAt(const Staircase& staircase, double x)
{
  const auto behind = staircase.upper_bound(x);
  return behind == staircase.begin() ? 0.0 : std::prev(behind)->second;
}

double greatestGap(const Staircase& one, const Staircase& other)
{
  double gap = 0.0;
  for (const Staircase* places : {&one, &other})
    for (const auto& [x, height] : *places)
      gap = std::max(gap, std::abs(heightAt(one, x) - heightAt(other, x)));
  return gap;
}

Staircase drawnIn(vtkChart* chart, vtkIdType which)
{
  vtkTable* table = chart->GetPlot(which)->GetInput();
  Staircase staircase;
  for (vtkIdType row = 0; row < table->GetNumberOfRows(); ++row)
  {
    double& height = staircase[table->GetValue(row, 0).ToDouble()];
    height = std::max(height, table->GetValue(row, 1).ToDouble());
  }
  return staircase;
}

/// The page of distributions of a study, with its comparison.
class DrawnComparison : public ComparedRuns
{
protected:
  explicit DrawnComparison(const std::string& text)
      : ComparedRuns(text)
  {
    comparison.follow(&container());
    container().setPlotStyle(selectionCdfPlot);
  }

  vtkChart* chartOf(const std::string& parameter)
  {
    auto* matrix = vtkChartMatrix::SafeDownCast(container().getItem());
    for (int column = 0; column < matrix->GetSize().GetX(); ++column)
    {
      vtkChart* chart = matrix->GetChart(vtkVector2i(column, 0));
      if (chart->GetAxis(vtkAxis::BOTTOM)->GetTitle() == parameter)
        return chart;
    }
    ADD_FAILURE() << "no chart of " << parameter;
    return nullptr;
  }

  /// That the selected runs' curve, the second one, is as far from the others' as D says.
  void expectGapsOfTheTable()
  {
    const Comparison& found = comparison.current();
    ASSERT_EQ(found.state, Comparison::State::compared);
    for (const ComparedParameter& parameter : found.parameters)
    {
      vtkChart* chart = chartOf(parameter.name);
      ASSERT_EQ(chart->GetNumberOfPlots(), 3);
      EXPECT_NEAR(greatestGap(drawnIn(chart, 1), drawnIn(chart, 2)), parameter.result.distance,
                  1e-12)
          << parameter.name;
    }
  }

  std::set<int> everyThirdAndTheFirst(int count)
  {
    std::set<int> runs = firstRuns(count);
    for (int run = 0; run < 48; run += 3)
      runs.insert(run);
    return runs;
  }

  SelectionComparison comparison;
};

class DrawnGrid : public DrawnComparison
{
protected:
  DrawnGrid()
      : DrawnComparison(levels(6, 8, 1))
  {
  }
};

class DrawnReplicates : public DrawnComparison
{
protected:
  DrawnReplicates()
      : DrawnComparison(levels(3, 4, 4))
  {
  }
};

/// One row per run.
std::string runsWithoutTime()
{
  std::ostringstream text;
  text << "Run,Parameter: k,Parameter: m,Molecule: X\n";
  for (int run = 0; run < 48; ++run)
    text << run << ',' << 0.5 * run << ',' << run * 7 % 48 << ',' << run % 5 << '\n';
  return text.str();
}

class DrawnWithoutTime : public DrawnComparison
{
protected:
  DrawnWithoutTime()
      : DrawnComparison(runsWithoutTime())
  {
  }
};

} // namespace

TEST_F(DrawnWithoutTime, HasTheGapsOfTheTableAndNoComplaints)
{
  testing::internal::CaptureStderr();
  selectRows({0, 1, 2, 3, 4, 20, 30, 41});
  const std::string complaints = testing::internal::GetCapturedStderr();
  EXPECT_EQ(complaints.find("TimeColumnIndex"), std::string::npos) << complaints;
  ASSERT_EQ(comparison.current().parameters[0].result.selected, 8U);
  expectGapsOfTheTable();
}

TEST_F(DrawnGrid, HasTheGapsOfTheTable)
{
  select(everyThirdAndTheFirst(20));
  expectGapsOfTheTable();
  EXPECT_GT(comparison.current().parameters[0].result.distance, 0.0);
  EXPECT_GT(comparison.current().parameters[1].result.distance, 0.1);
}

TEST_F(DrawnReplicates, HaveTheGapsOfTheTable)
{
  select(everyThirdAndTheFirst(17));
  expectGapsOfTheTable();
  EXPECT_GT(comparison.current().parameters[1].result.distance, 0.1);
}

TEST_F(DrawnGrid, ShowsTheHalfThatIsTested)
{
  ComparisonChoice choice = comparisonChoiceOf(container());
  choice.halves = true;
  writeComparisonChoice(container(), choice);
  select(everyThirdAndTheFirst(20));
  expectGapsOfTheTable();
  const auto& row = comparison.current().parameters[0].result;
  EXPECT_EQ(row.selected + row.others, 24U);
}

TEST_F(DrawnGrid, FollowsTheSelectionAndItsEnd)
{
  select(firstRuns(48));
  EXPECT_EQ(chartOf("k")->GetNumberOfPlots(), 2) << "all runs, and all of them selected";
  select(firstRuns(9));
  expectGapsOfTheTable();
  select({});
  ASSERT_EQ(chartOf("k")->GetNumberOfPlots(), 1);
  EXPECT_EQ(drawnIn(chartOf("k"), 0).size(), 6U);
}

TEST_F(DrawnGrid, HasDensitiesOfTheSameRuns)
{
  ComparisonChoice choice = comparisonChoiceOf(container());
  choice.density = true;
  writeComparisonChoice(container(), choice);
  select(firstRuns(24));
  ASSERT_EQ(chartOf("m")->GetNumberOfPlots(), 3);
  // The lower four of eight levels: the mean of a density is that of the runs.
  double weight = 0.0;
  double mean = 0.0;
  for (const auto& [x, height] : drawnIn(chartOf("m"), 1))
  {
    weight += height;
    mean += x * height;
  }
  EXPECT_NEAR(mean / weight, 0.15, 0.03);
}
