#include "plot/SummaryTable.h"

#include "external/PlotMetaData.h"
#include "plot/AxisWindows.h"
#include "plot/ContainerAccess.h"
#include "plot/DrawnRows.h"
#include "plot/PlotState.h"
#include "plot/TableColumns.h"
#include "support/PlotScene.h"
#include "support/SampleRuns.h"
#include "vtk/RowSelections.h"
#include "vtk/vtkPlotLineSet.h"
#include "vtk/vtkSelectableScatterPlotMatrix.h"

#include <vtkAxis.h>
#include <vtkIdTypeArray.h>
#include <vtkPlot.h>
#include <vtkPlotParallelCoordinates.h>
#include <vtkStringArray.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

using SampleRuns::selectedRows;
using SampleRuns::valuesOf;
using Talmesh::makeRowSelection;
using Talmesh::plot::makeColumn;

namespace
{

using Names = std::vector<std::string>;
using Rows = std::set<vtkIdType>;
using Values = std::vector<double>;

constexpr plotStyles summarising[] = {xyPlot, scatterPlotMatrix, xyzPlot, parallelCoordinates};

Names namesOf(vtkStringArray* array)
{
  Names names;
  for (vtkIdType i = 0; i < array->GetNumberOfValues(); ++i)
    names.push_back(array->GetValue(i));
  return names;
}

/// Three runs of three points, and a table of what they reach: "k", "top" and "end", a row per run.
class SummarisedRuns : public ::testing::Test
{
protected:
  SummarisedRuns()
  {
    SampleRuns::load(container, SampleRuns::runs(3, 3));
    container.setScene(scene.scene());
    summary.table = vtkSmartPointer<vtkTable>::New();
    summary.table->AddColumn(makeColumn("k", {1, 2, 3}));
    summary.table->AddColumn(makeColumn("top", {2, 12, 22}));
    summary.table->AddColumn(makeColumn("end", {5, 7, 6}));
    summary.rowsEach = 3;
    summary.x = 0;
    summary.y = 1;
    summary.z = 2;
    summary.columns = {2, 0, 1};
    container.setSummary(summary);
  }

  void draw(plotStyles style)
  {
    container.setPlotStyle(style);
    container.redraw();
    scene.render(container);
  }

  vtkPlot* points() { return container.getChartXY()->GetPlot(0); }
  vtkAnnotationLink* summaryLink() { return stateOf(container).summaryLink; }
  void select(vtkAnnotationLink* link, const std::vector<vtkIdType>& rows)
  {
    link->SetCurrentSelection(makeRowSelection(rows));
  }

  PlotScene scene;
  PlotContainer container{nullptr};
  SummaryTable summary;
};

} // namespace

TEST_F(SummarisedRuns, AreDrawnAsPointsInTheXYChart)
{
  container.getMetaData()->setPlotLine(true);
  draw(xyPlot);
  EXPECT_TRUE(container.showsSummary());
  EXPECT_FALSE(vtkPlotLineSet::SafeDownCast(points()));
  EXPECT_EQ(points()->GetInput(), summary.table);
  double bounds[4];
  points()->GetBounds(bounds);
  EXPECT_EQ(Values(bounds, bounds + 4), Values({1, 3, 2, 22}));
}

TEST_F(SummarisedRuns, AreDrawnAsPointsInTheMainChartsOfPages)
{
  container.getMetaData()->setPlotLine(true);
  for (const plotStyles style : {multiPlot, selectionCdfPlot, scatterWithErrorBars})
  {
    draw(style);
    EXPECT_TRUE(container.showsSummary()) << style;
    EXPECT_FALSE(vtkPlotLineSet::SafeDownCast(points())) << style;
    EXPECT_EQ(points()->GetInput(), summary.table) << style;
    container.setSummary({});
    draw(style);
    EXPECT_EQ(points()->GetInput(), container.getTable()) << style;
    container.setSummary(summary);
  }
}

TEST_F(SummarisedRuns, AreShownByTheColumnsNamedInTheirOrder)
{
  container.getMetaData()->yColumns = {0, 1, 2, 3, 4};
  draw(parallelCoordinates);
  vtkChartParallelCoordinates* parallel = stateOf(container).parallelCoordinates;
  EXPECT_EQ(namesOf(parallel->GetVisibleColumns()), Names({"end", "k", "top"}));
  EXPECT_EQ(parallel->GetPlot(0)->GetInput()->GetNumberOfRows(), 3);
  draw(scatterPlotMatrix);
  auto* matrix = vtkSelectableScatterPlotMatrix::SafeDownCast(container.getItem());
  ASSERT_TRUE(matrix);
  EXPECT_EQ(namesOf(matrix->GetVisibleColumns()), Names({"end", "k", "top"}));
  EXPECT_EQ(matrix->GetShownTable(), summary.table);
  // "k" over "top" is the cell of the second column from the left, first row from below.
  EXPECT_EQ(matrix->GetActivePlot(), vtkVector2i(1, 0));
}

TEST_F(SummarisedRuns, ArePointsInThreeDimensions)
{
  draw(xyzPlot);
  const int points = scene.paintedPixels();
  container.setSummary({});
  draw(xyzPlot);
  EXPECT_NE(scene.paintedPixels(), points) << "of nine rows";
}

TEST_F(SummarisedRuns, AreSelectedWhole)
{
  for (const plotStyles style : summarising)
  {
    draw(style);
    vtkAnnotationLink* link = style == scatterPlotMatrix
                                  ? stateOf(container).scatterPlotMatrix->GetAnnotationLink()
                                  : summaryLink();
    select(link, {0, 2});
    EXPECT_EQ(selectedRows(container), (Rows{0, 1, 2, 6, 7, 8})) << style;
    select(link, {});
    EXPECT_EQ(selectedRows(container), Rows()) << style;
  }
}

TEST_F(SummarisedRuns, AreSelectedWhereAnyOfTheirRowsIs)
{
  for (const plotStyles style : summarising)
  {
    select(container.getAnnotationLink(), {4, 5});
    draw(style);
    EXPECT_EQ(Talmesh::markedRows(summaryLink()->GetCurrentSelection(), summary.table),
              (std::vector<bool>{false, true, false}))
        << style;
    EXPECT_EQ(selectedRows(container), (Rows{4, 5})) << "showing selects nothing";
    select(container.getAnnotationLink(), {});
  }
  draw(parallelCoordinates);
  select(container.getAnnotationLink(), {1, 7, 8});
  scene.render(container);
  EXPECT_EQ(valuesOf(stateOf(container).parallelCoordinates->GetPlot(0)->GetSelection()),
            Values({0, 2}));
}

TEST_F(SummarisedRuns, LeaveRowsBehindThemAlone)
{
  summary.rowsEach = 4;
  container.setSummary(summary);
  draw(xyPlot);
  select(summaryLink(), {2});
  EXPECT_EQ(selectedRows(container), (Rows{8}));
  select(summaryLink(), {0});
  EXPECT_EQ(selectedRows(container), (Rows{0, 1, 2, 3}));
}

TEST_F(SummarisedRuns, HaveWindowsOfTheirOwn)
{
  container.setSummary({});
  container.getMetaData()->xColumns = {0};
  container.getMetaData()->yColumns = {1};
  draw(xyPlot);
  Talmesh::plot::PlotState& state = stateOf(container);
  const auto zoom = [&](double maximum)
  {
    vtkAxis* bottom = container.getChartXY()->GetAxis(vtkAxis::BOTTOM);
    bottom->SetRange(0, maximum);
    Talmesh::plot::rememberWindow(state, bottom, container.getChartXY()->GetAxis(vtkAxis::LEFT));
  };
  zoom(7);
  container.setSummary(summary);
  EXPECT_EQ(Talmesh::plot::rememberedWindow(state), nullptr);
  draw(xyPlot);
  zoom(2);
  EXPECT_EQ(Talmesh::plot::rememberedWindow(state)->xMax, 2);
  container.setSummary({});
  EXPECT_EQ(Talmesh::plot::rememberedWindow(state)->xMax, 7);
  container.setSummary(summary);
  // Values of a summary may come from any column.
  Talmesh::plot::forgetWindows(state, {5});
  EXPECT_EQ(Talmesh::plot::rememberedWindow(state), nullptr);
}

TEST_F(SummarisedRuns, AreNotDrawnByOtherStylesAndCopies)
{
  draw(xyPlot);
  draw(fitParameterDistribution);
  EXPECT_FALSE(container.showsSummary());
  select(container.getAnnotationLink(), {1});
  EXPECT_EQ(selectedRows(container), (Rows{1}));
  const PlotContainer copy(container);
  EXPECT_FALSE(copy.getSummary().table);
}

TEST_F(SummarisedRuns, EndWithTheirTable)
{
  draw(xyPlot);
  container.setPlotData(SampleRuns::table(SampleRuns::runs(2, 3)));
  EXPECT_FALSE(container.getSummary().table);
  draw(xyPlot);
  EXPECT_EQ(points()->GetInput(), container.getTable());
}

TEST_F(SummarisedRuns, AreNotColouredByAColumnOfTheTable)
{
  container.getMetaData()->colorColumn = 1;
  draw(parallelCoordinates);
  vtkPlot* lines = stateOf(container).parallelCoordinates->GetPlot(0);
  EXPECT_FALSE(vtkPlotParallelCoordinates::SafeDownCast(lines)->GetScalarVisibility());
  container.setSummary({});
  draw(parallelCoordinates);
  lines = stateOf(container).parallelCoordinates->GetPlot(0);
  EXPECT_TRUE(vtkPlotParallelCoordinates::SafeDownCast(lines)->GetScalarVisibility());
}
