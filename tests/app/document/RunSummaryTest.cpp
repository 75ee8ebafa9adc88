#include "app/document/RunSummary.h"

#include "app/document/FeatureColumns.h"
#include "plot/TableColumns.h"
#include "support/SampleRuns.h"

#include <vtkChartParallelCoordinates.h>
#include <vtkStringArray.h>

#include "document/DocumentScene.h"

using namespace Talmesh::app;
using SampleRuns::valuesOf;

namespace
{

using Columns = std::vector<int>;
using Names = std::vector<std::string>;
using Values = std::vector<double>;

constexpr int itemX = 0;
constexpr int itemY = 1;
constexpr int timeColumn = 2;
constexpr int numberColumn = 3;
constexpr int parameterK = 4;
constexpr int parameterM = 5;

const int maxX = featureColumn(itemX, RunFeature::Max);
const int meanX = featureColumn(itemX, RunFeature::Mean);
const int finalX = featureColumn(itemX, RunFeature::Final);
const int minY = featureColumn(itemY, RunFeature::Min);

class SummaryOfRuns : public DocumentScene
{
protected:
  SummaryOfRuns() { EXPECT_EQ(open(), ""); }

  static PlotChoice choice(plotStyles style, int x, const Columns& y, int z = itemX)
  {
    PlotChoice made;
    made.style = style;
    made.x = x;
    made.y = y;
    made.z = z;
    return made;
  }

  bool draws(plotStyles style, int x, const Columns& y, int z = itemX)
  {
    return drawsRuns(container(), choice(style, x, y, z));
  }

  Columns axes(plotStyles style, int x, const Columns& y)
  {
    return axesOfRuns(container(), choice(style, x, y)).columns;
  }

  SummaryTable shown(const PlotChoice& wanted)
  {
    document.choose(wanted);
    return container().getSummary();
  }

  Names namesOf(const SummaryTable& summary)
  {
    Names names;
    for (const int column : summary.columns)
      names.push_back(Talmesh::plot::columnName(summary.table, column));
    return names;
  }

  Values column(const SummaryTable& summary, const std::string& name)
  {
    return valuesOf(summary.table, name);
  }
};

} // namespace

TEST_F(SummaryOfRuns, IsDrawnWhereAnAxisHasOneValueForARun)
{
  for (const plotStyles style : {xyPlot, multiPlot, selectionCdfPlot, scatterWithErrorBars})
  {
    for (const int x : {parameterK, numberColumn, maxX})
      EXPECT_TRUE(draws(style, x, {itemX})) << style << ' ' << x;
    for (const int x : {timeColumn, itemX})
      EXPECT_FALSE(draws(style, x, {parameterK, maxX})) << style << ' ' << x;
  }
  for (const plotStyles style : {scatterPlotMatrix, parallelCoordinates})
    EXPECT_TRUE(draws(style, timeColumn, {itemX})) << style;
  EXPECT_FALSE(draws(fitParameterDistribution, parameterK, {itemX}));
}

TEST_F(SummaryOfRuns, IsDrawnInThreeDimensionsUnlessAnAxisIsTime)
{
  EXPECT_TRUE(draws(xyzPlot, parameterK, {itemX}, itemY));
  EXPECT_TRUE(draws(xyzPlot, itemX, {itemY}, parameterK));
  EXPECT_FALSE(draws(xyzPlot, timeColumn, {itemX}, parameterK));
  EXPECT_FALSE(draws(xyzPlot, parameterK, {timeColumn}, itemX));
  EXPECT_FALSE(draws(xyzPlot, parameterK, {itemX}, timeColumn));
}

TEST_F(SummaryOfRuns, IsNotDrawnOfATableWithoutRuns)
{
  ASSERT_EQ(open("a,b,c\n1,2,3\n4,5,7\n2,8,4\n"), "");
  for (const plotStyles style : {xyPlot, scatterPlotMatrix, xyzPlot, parallelCoordinates})
    EXPECT_FALSE(draws(style, 0, {1, 2})) << style;
}

TEST_F(SummaryOfRuns, HasParametersAndTheLeadingFeaturesOfTheItemsChosen)
{
  for (const plotStyles style : {scatterPlotMatrix, parallelCoordinates})
  {
    EXPECT_EQ(axes(style, timeColumn, {itemX}),
              (Columns{parameterK, parameterM, maxX, meanX, finalX}));
    EXPECT_EQ(axes(style, timeColumn, {minY, itemX, maxX}),
              (Columns{parameterK, parameterM, minY, maxX, meanX, finalX}));
    EXPECT_EQ(axes(style, timeColumn, {}), (Columns{parameterK, parameterM}));
  }
}

TEST_F(SummaryOfRuns, HasOfTheParametersOnlyThoseChosenIfAnyIs)
{
  EXPECT_EQ(axes(parallelCoordinates, timeColumn, {minY, parameterM}), (Columns{parameterM, minY}));
}

TEST_F(SummaryOfRuns, NeverHasTimesAndRunNumbersAsAxes)
{
  for (const plotStyles style : {scatterPlotMatrix, parallelCoordinates})
    EXPECT_EQ(axes(style, numberColumn, {timeColumn, numberColumn, maxX}),
              (Columns{parameterK, parameterM, maxX}))
        << style;
}

TEST_F(SummaryOfRuns, HasTheNumbersOfTheRuns)
{
  const SummaryTable summary = shown(choice(parallelCoordinates, timeColumn, {itemX}));
  EXPECT_EQ(summary.rowsEach, 8);
  EXPECT_EQ(namesOf(summary), (Names{"k", "m", "max(X)", "mean(X)", "final(X)"}));
  EXPECT_EQ(column(summary, "k"), (Values{1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(column(summary, "max(X)"), (Values{8, 16, 24, 32, 40, 48}));
  // 8 points from run + 1 to 8 (run + 1), or back.
  EXPECT_EQ(column(summary, "mean(X)"), (Values{4.5, 9, 13.5, 18, 22.5, 27}));
  EXPECT_EQ(column(summary, "final(X)"), (Values{8, 2, 24, 4, 40, 6}));
}

TEST_F(SummaryOfRuns, IsComputedOfWhatIsChosenAndOnce)
{
  const SummaryTable first = shown(choice(parallelCoordinates, timeColumn, {minY}));
  EXPECT_EQ(first.table->GetNumberOfColumns(), 3);
  vtkAbstractArray* values = first.table->GetColumnByName("min(Y)");
  const vtkMTimeType computed = values->GetMTime();
  const SummaryTable second = shown(choice(scatterPlotMatrix, maxX, {minY}));
  EXPECT_EQ(second.table, first.table);
  EXPECT_EQ(second.table->GetNumberOfColumns(), 4);
  EXPECT_EQ(second.table->GetColumnByName("min(Y)"), values);
  EXPECT_EQ(values->GetMTime(), computed);
}

TEST_F(SummaryOfRuns, FollowsValuesThatAreNormalised)
{
  const PlotChoice wanted = choice(xyPlot, parameterK, {maxX});
  EXPECT_EQ(column(shown(wanted), "max(X)").back(), 48);
  document.groups().normalise(true);
  EXPECT_EQ(column(container().getSummary(), "max(X)"), Values(6, 1.0));
  document.selection().undoStack().undo();
  EXPECT_EQ(column(container().getSummary(), "max(X)").back(), 48);
}

TEST_F(SummaryOfRuns, GoesOverParametersAsPointsOnePerRun)
{
  PlotChoice wanted = choice(xyPlot, parameterK, {parameterM, itemX});
  wanted.lines = true;
  const SummaryTable summary = shown(wanted);
  ASSERT_EQ(chart().GetNumberOfPlots(), 2);
  EXPECT_EQ(chart().GetPlot(0)->GetInput(), summary.table);
  EXPECT_EQ(chart().GetPlot(1)->GetLabel(), "max(X)");
  double bounds[4];
  chart().GetPlot(1)->GetBounds(bounds);
  EXPECT_EQ(Values(bounds, bounds + 4), (Values{1, 6, 8, 48}));
  EXPECT_EQ(chart().GetAxis(vtkAxis::LEFT)->GetTitle(), "m, max(X)");
  EXPECT_EQ(chart().GetAxis(vtkAxis::BOTTOM)->GetTitle(), "k");
  EXPECT_EQ(document.remark(), "");
}

TEST_F(SummaryOfRuns, IsWhatTheMainChartsOfPagesDrawOverParameters)
{
  for (const plotStyles style : {multiPlot, selectionCdfPlot, scatterWithErrorBars})
  {
    const SummaryTable summary = shown(choice(style, parameterK, {maxX}));
    ASSERT_TRUE(summary.table) << style;
    vtkPlot* points = chart().GetPlot(0);
    ASSERT_EQ(points->GetInput(), summary.table) << style;
    double bounds[4];
    points->GetBounds(bounds);
    EXPECT_EQ(Values(bounds, bounds + 2), (Values{1, 6})) << style;
    EXPECT_EQ(chart().GetAxis(vtkAxis::BOTTOM)->GetTitle(), "k") << style;
    EXPECT_EQ(chart().GetAxis(vtkAxis::LEFT)->GetTitle(), "max(X)") << style;
    EXPECT_EQ(document.remark(), "") << style;
    document.choose(choice(style, timeColumn, {itemX}));
    EXPECT_EQ(chart().GetPlot(0)->GetInput(), container().getTable()) << style;
  }
}

TEST_F(SummaryOfRuns, NamesOnTheLeftAxisWhatIsDrawnOverX)
{
  document.choose(choice(xyPlot, timeColumn, {itemX, itemY}));
  EXPECT_EQ(chart().GetAxis(vtkAxis::LEFT)->GetTitle(), "X, Y");
  for (const plotStyles style : {multiPlot, selectionCdfPlot, scatterWithErrorBars})
    for (const int x : {timeColumn, parameterK})
    {
      document.choose(choice(style, x, {itemX, itemY}));
      EXPECT_EQ(chart().GetAxis(vtkAxis::LEFT)->GetTitle(), x == timeColumn ? "X" : "max(X)")
          << style;
    }
}

TEST_F(SummaryOfRuns, TellsWhatHasNoPlaceInTheChart)
{
  document.choose(choice(xyPlot, timeColumn, {maxX}));
  EXPECT_EQ(document.remark(),
            "max(X) is one value for a run: shown only over parameters and other such values");
  document.choose(choice(xyPlot, parameterK, {itemX, timeColumn}));
  EXPECT_EQ(document.remark(), "time has no single value for a run: not shown");
}

TEST_F(SummaryOfRuns, ShowsAPairOfAParameterAndAFeatureLargeInTheMatrix)
{
  const RunAxes any = axesOfRuns(container(), choice(scatterPlotMatrix, timeColumn, {itemX}));
  EXPECT_EQ(any.x, parameterK);
  EXPECT_EQ(any.y, maxX);
  const RunAxes chosen = axesOfRuns(container(), choice(scatterPlotMatrix, parameterM, {finalX}));
  EXPECT_EQ(chosen.x, parameterM);
  EXPECT_EQ(chosen.y, finalX);
  const RunAxes plain = axesOfRuns(container(), choice(scatterPlotMatrix, timeColumn, {}));
  EXPECT_EQ(plain.x, parameterK);
  EXPECT_EQ(plain.y, parameterM);
}

TEST_F(SummaryOfRuns, KeepsTheOrderOfAxesThatWereMoved)
{
  PlotChoice wanted = choice(parallelCoordinates, timeColumn, {itemX});
  wanted.axes = {finalX, parameterM};
  const SummaryTable summary = shown(wanted);
  EXPECT_EQ(namesOf(summary), (Names{"final(X)", "m", "k", "max(X)", "mean(X)"}));
  auto* lines = vtkChartParallelCoordinates::SafeDownCast(container().getItem());
  ASSERT_TRUE(lines);
  EXPECT_EQ(lines->GetVisibleColumns()->GetValue(0), "final(X)");
}

TEST_F(SummaryOfRuns, ColoursGroupsOfRunsThatArePoints)
{
  document.choose(choice(xyPlot, parameterK, {maxX}));
  document.groups().setGrouping(2, byCourse);
  group();
  ASSERT_EQ(document.groups().groups().names.size(), 2u);
  document.setLook({true, true, true});
  EXPECT_EQ(document.drawingError(), "");
  std::size_t points = 0;
  for (vtkIdType i = 0; i < chart().GetNumberOfPlots(); ++i)
    if (chart().GetPlot(i)->GetInput() != container().getSummary().table)
      points += static_cast<std::size_t>(chart().GetPlot(i)->GetInput()->GetNumberOfRows());
  EXPECT_EQ(points, 6u) << "a point for each run in the colour of its group, and nothing else";
}

TEST_F(SummaryOfRuns, TellsItemsOfOneNameApart)
{
  ASSERT_EQ(open("run,time,Molecule: A,Complex: A,k\n0,0,1,5,1\n0,1,2,6,1\n1,0,3,7,2\n1,1,4,8,2\n"),
            "");
  const auto column = [this](const char* name) { return findColumn(container(), name).value(); };
  const SummaryTable summary =
      shown(choice(parallelCoordinates, timeColumn, {column("Molecule: A"), column("Complex: A")}));
  const Names names = namesOf(summary);
  ASSERT_EQ(names.size(), 7u);
  EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), 7u);
  EXPECT_EQ(names[1], "max(A)");
  EXPECT_EQ(names[4].find("max(A) ("), 0u) << names[4];
}
