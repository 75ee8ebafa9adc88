#include "plot/ContainerAccess.h"
#include "vtk/vtkPlotInvisiblePoints.h"
#include "vtk/vtkPlotLineSet.h"

#include <vtkLookupTable.h>

#include <gtest/gtest.h>

#include "PageProbes.h"
#include "SelectionPageFixture.h"

namespace
{

/// The plot of the runs on the page, and its colours.
class SelectionPageColors : public SelectionPageFixture
{
protected:
  vtkPlot* lastPlot()
  {
    return container.getChartXY()->GetPlot(container.getChartXY()->GetNumberOfPlots() - 1);
  }
  vtkPlotPoints* drawn() { return vtkPlotPoints::SafeDownCast(lastPlot()); }
  vtkLookupTable* lookup() { return vtkLookupTable::SafeDownCast(drawn()->GetLookupTable()); }

  void expectSelectionColors()
  {
    EXPECT_EQ(drawn()->GetScalarVisibility(), 1);
    EXPECT_EQ(drawn()->GetColorArrayName(), "vtkComplementSelection");
    ASSERT_EQ(lookup()->GetNumberOfTableValues(), 2);
    EXPECT_EQ(lookup()->GetRange()[0], 0.0);
    EXPECT_EQ(lookup()->GetRange()[1], 1.0);
    const double expected[2][4] = {{0.0, 0.0, 0.0, 1.0}, {0.05, 0.6, 0.9, 1.0}};
    for (int value = 0; value < 2; ++value)
    {
      double color[4];
      lookup()->GetTableValue(value, color);
      for (int component = 0; component < 4; ++component)
        EXPECT_NEAR(color[component], expected[value][component], 0.5 / 255.0);
    }
  }
};

TEST_F(SelectionPageColors, MarkSelectedRunsWhileTheColorColumnIsUnusable)
{
  draw(3);
  settings().solidColor = false;
  for (const int unusable : {-1, 1000})
  {
    settings().colorColumn = unusable;
    selectFirstRuns(5);
    expectSelectionColors();
    scene.render(container);
  }
}

TEST_F(SelectionPageColors, AreSwitchedOffByTheSolidColor)
{
  draw(3);
  settings().color = {10, 20, 30, 40};
  selectFirstRuns(5);
  EXPECT_EQ(drawn()->GetScalarVisibility(), 0);
  EXPECT_EQ(penColor(drawn()->GetPen()), (std::array<int, 4>{10, 20, 30, 40}));
}

TEST_F(SelectionPageColors, GiveWayToAUsableColorColumn)
{
  draw(3);
  settings().solidColor = false;
  settings().colorColumn = 3;
  selectFirstRuns(5);
  EXPECT_EQ(drawn()->GetScalarVisibility(), 1);
  EXPECT_EQ(drawn()->GetColorArrayName(), "Parameter: k1");
  EXPECT_EQ(lookup()->GetRange()[0], 1.0);
  EXPECT_EQ(lookup()->GetRange()[1], 20.0);
  scene.render(container);
}

TEST_F(SelectionPageColors, AreNotThereBeforeTheFirstSelection)
{
  draw(3);
  settings().solidColor = false;
  settings().colorColumn = -1;
  container.redraw();
  EXPECT_EQ(drawn()->GetScalarVisibility(), 0);
}

TEST_F(SelectionPageColors, BelongToRunsOfTheFirstColumnsOfTheTable)
{
  draw(3);
  for (const bool lines : {false, true})
  {
    settings().setPlotLine(lines);
    settings().xColumns = {1, 3};
    settings().yColumns = {4, 0};
    container.redraw();
    EXPECT_EQ(drawn()->GetInput(), container.getTable());
    EXPECT_EQ(plottedName(drawn(), 0), ": Time [s]");
    EXPECT_EQ(plottedName(drawn(), 1), "Parameter: k2");
  }
}

TEST_F(SelectionPageColors, BelongToRunsThatQuantileBandsHideUnlessSelected)
{
  draw(3);
  for (const bool quantiles : {false, true})
  {
    settings().setShowQuantiles(quantiles);
    settings().setPlotLine(true);
    auto* lines = vtkPlotLineSet::SafeDownCast(lastPlot());
    ASSERT_NE(lines, nullptr);
    EXPECT_EQ(lines->GetStride(), points);
    EXPECT_EQ(lines->GetOnlyShowSelected(), quantiles ? 1 : 0);
    settings().setPlotLine(false);
    auto* symbols = vtkPlotInvisiblePoints::SafeDownCast(lastPlot());
    ASSERT_NE(symbols, nullptr);
    EXPECT_EQ(symbols->GetOnlyShowSelected(), quantiles ? 1 : 0);
  }
}

TEST_F(SelectionPageColors, FillTheQuantileBands)
{
  draw(3);
  settings().setShowQuantiles(true);
  const std::array<int, 4> expected[] = {{148, 148, 255, 255}, {64, 64, 255, 255}, {0, 0, 0, 255}};
  ASSERT_EQ(container.getChartXY()->GetNumberOfPlots(), 4);
  for (int i = 0; i < 3; ++i)
  {
    vtkPlot* band = container.getChartXY()->GetPlot(i);
    EXPECT_EQ(penColor(band->GetPen()), expected[i]);
    EXPECT_EQ(penColor(band->GetSelectionPen()), expected[i]);
    EXPECT_EQ(band->GetInput(), stateOf(container).quartileTable);
  }
}

TEST_F(SelectionPageColors, NeedNoBandsWithoutQuartiles)
{
  draw(3);
  stateOf(container).quartileTable = nullptr;
  settings().setShowQuantiles(true);
  EXPECT_EQ(container.getChartXY()->GetNumberOfPlots(), 1);
  scene.render(container);
}

} // namespace
