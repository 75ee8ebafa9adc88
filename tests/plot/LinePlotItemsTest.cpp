#include "plot/ContainerAccess.h"
#include "support/CapturedOutput.h"
#include "support/PlotFixture.h"
#include "support/VtkErrors.h"

#include <vtkColorSeries.h>
#include <vtkPlotBar.h>
#include <vtkPlotLine.h>
#include <vtkWeakPointer.h>

#include <gtest/gtest.h>

using Talmesh::Complex;
using Talmesh::DataType;
using Talmesh::Parameter;
using Talmesh::TimeOrValue;

namespace
{

class LinePlotItems : public PlotFixture
{
protected:
  LinePlotItems()
  {
    container.setPlotData(tableOf(
        {{"Complex: A", {1, 2, 3}}, {": Time [s]", {10, 20, 30}}, {"Parameter: k", {7, 8, 9}}}));
    settings().xColumns = {1};
    container.redraw();
  }

  std::vector<Talmesh::TypedConcentrationName> items{{Complex, "A"}, {Parameter, "k"}};
};

TEST_F(LinePlotItems, ReplacesAllPlotsByOneLinePerItem)
{
  chart()->AddPlot(vtkChart::BAR);
  container.setLinePlotItems(&items);
  ASSERT_EQ(chart()->GetNumberOfPlots(), 2);
  for (int i = 0; i < 2; ++i)
  {
    vtkPlot* plot = chart()->GetPlot(i);
    EXPECT_STREQ(plot->GetClassName(), "vtkPlotLine");
    EXPECT_EQ(plot->GetInput(), container.getTable());
    EXPECT_EQ(plottedColumn(plot, 0), container.getTable()->GetColumn(1));
  }
  EXPECT_EQ(plottedColumn(chart()->GetPlot(0), 1), container.getTable()->GetColumn(0));
  EXPECT_EQ(plottedColumn(chart()->GetPlot(1), 1), container.getTable()->GetColumn(2));
}

TEST_F(LinePlotItems, GoesThroughTheColorsOfTheFourthSchemeAgainAndAgain)
{
  vtkNew<vtkColorSeries> colors;
  colors->SetColorScheme(4);
  const int count = 2 * colors->GetNumberOfColors() + 1;
  items.assign(static_cast<std::size_t>(count), {Complex, "A"});
  container.setLinePlotItems(&items);
  ASSERT_EQ(chart()->GetNumberOfPlots(), count);
  for (int i = 0; i < count; ++i)
  {
    unsigned char rgb[3];
    chart()->GetPlot(i)->GetColor(rgb);
    const vtkColor3ub expected = colors->GetColorRepeating(i);
    EXPECT_EQ(vtkColor3ub(rgb[0], rgb[1], rgb[2]), expected) << i;
  }
}

TEST_F(LinePlotItems, AddsAPlotWithoutInputForAnItemWithoutAColumn)
{
  items.insert(items.begin(), {Parameter, "A"});
  const CapturedOutput output(std::cout);
  const CapturedOutput errors(std::cerr);
  const VtkErrors messages;
  container.setLinePlotItems(&items);
  scene.render(container);
  ASSERT_EQ(chart()->GetNumberOfPlots(), 3);
  EXPECT_EQ(chart()->GetPlot(0)->GetInput(), nullptr);
  EXPECT_EQ(plottedColumn(chart()->GetPlot(1), 1), container.getTable()->GetColumn(0));
  EXPECT_EQ(output.text() + errors.text() + messages.text(), "");
}

TEST_F(LinePlotItems, FindsItemsOfEveryKindByTheirLabel)
{
  items = {{TimeOrValue, "Time [s]"}};
  container.setLinePlotItems(&items);
  EXPECT_EQ(plottedColumn(chart()->GetPlot(0), 1), container.getTable()->GetColumn(1));
  container.getTable()->GetColumn(0)->SetName(": odd");
  items = {{static_cast<DataType>(99), "odd"}};
  container.setLinePlotItems(&items);
  EXPECT_EQ(plottedColumn(chart()->GetPlot(0), 1), container.getTable()->GetColumn(0));
}

TEST_F(LinePlotItems, DrawsLinesWithoutInputWhenThereIsNoXColumn)
{
  for (const int x : {-2, 3, 1000})
  {
    settings().xColumns = {x};
    container.setLinePlotItems(&items);
    ASSERT_EQ(chart()->GetNumberOfPlots(), 2);
    EXPECT_EQ(chart()->GetPlot(0)->GetInput(), nullptr);
    scene.render(container);
  }
  settings().xColumns.clear();
  container.setLinePlotItems(&items);
  scene.render(container);
}

TEST_F(LinePlotItems, DrawsNoTextColumn)
{
  addStringColumn(container.getTable(), "Complex: words");
  items = {{Complex, "words"}};
  container.setLinePlotItems(&items);
  ASSERT_EQ(chart()->GetNumberOfPlots(), 1);
  EXPECT_EQ(chart()->GetPlot(0)->GetInput(), nullptr);
  scene.render(container);
}

TEST_F(LinePlotItems, RemovesAllPlotsForAnEmptyChoice)
{
  items.clear();
  container.setLinePlotItems(&items);
  EXPECT_EQ(chart()->GetNumberOfPlots(), 0);
  scene.render(container);
}

TEST_F(LinePlotItems, FitsTheAxesToTheLines)
{
  container.setLinePlotItems(&items);
  scene.render(container);
  EXPECT_LE(bottom()->GetMinimum(), 10.0);
  EXPECT_GE(bottom()->GetMaximum(), 30.0);
  EXPECT_LE(left()->GetMinimum(), 1.0);
  EXPECT_GE(left()->GetMaximum(), 9.0);
  EXPECT_GT(scene.paintedPixels(), 500);
}

TEST_F(LinePlotItems, DrawsWithoutARedrawAndLeavesSettingsAlone)
{
  for (const bool blocked : {true, false})
  {
    settings().blockSignals(blocked);
    newDrawings();
    container.setLinePlotItems(&items);
    EXPECT_EQ(newDrawings(), 0U);
    EXPECT_EQ(settings().signalsBlocked(), blocked);
    EXPECT_EQ(settings().xColumns, std::vector<int>{1});
    EXPECT_EQ(settings().yColumns, std::vector<int>{1});
  }
}

TEST_F(LinePlotItems, DoNothingWhileNoXYChartIsShown)
{
  for (const int style : {3, 4})
  {
    drawStyle(style);
    ASSERT_EQ(chart(), nullptr);
    container.setLinePlotItems(&items);
    scene.render(container);
  }
}

TEST_F(LinePlotItems, DrawIntoTheCellThatIsTheXYChartOfAPage)
{
  stateOf(container).columnItems = {{Complex, "A"}, {TimeOrValue, "Time [s]"}, {Parameter, "k"}};
  stateOf(container).parameterBounds = {{7.0, 9.0}, {7.0, 9.0}};
  settings().parameterColumns = {2, 2};
  for (const int style : {multiPlot, selectionCdfPlot})
  {
    drawStyle(style);
    scene.render(container);
    const vtkWeakPointer<vtkChartXY> cell = chart();
    vtkChartMatrix* page = container.getChartMatrix();
    ASSERT_EQ(cell->GetParent(), page) << style;
    vtkChart* other = page->GetChart(vtkVector2i(0, 0));
    ASSERT_NE(other, cell.Get()) << style;
    const vtkIdType otherPlots = other->GetNumberOfPlots();
    container.setLinePlotItems(&items);
    ASSERT_EQ(cell->GetNumberOfPlots(), 2) << style;
    for (int i = 0; i < 2; ++i)
      EXPECT_STREQ(cell->GetPlot(i)->GetClassName(), "vtkPlotLine") << style;
    EXPECT_EQ(other->GetNumberOfPlots(), otherPlots) << style;
    EXPECT_EQ(container.getItem(), page) << style;
    EXPECT_EQ(chart(), cell.Get()) << style;
    scene.render(container);
    drawStyle(xyPlot);
    EXPECT_NE(chart()->GetParent(), page) << style;
    EXPECT_EQ(chart()->GetNumberOfPlots(), 1) << style;
    scene.render(container);
  }
}

TEST_F(LinePlotItems, IgnoreANullChoice)
{
  container.setLinePlotItems(&items);
  const vtkSmartPointer<vtkPlot> line = chart()->GetPlot(1);
  container.setLinePlotItems(nullptr);
  ASSERT_EQ(chart()->GetNumberOfPlots(), 2);
  EXPECT_EQ(chart()->GetPlot(1), line);
}

} // namespace
