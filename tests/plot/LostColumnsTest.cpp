#include "vtk/LostColumns.h"

#include "plot/TableColumns.h"
#include "support/ParameterStudy.h"
#include "support/PlotFixture.h"
#include "support/PlotStyleCount.h"
#include "support/VtkErrors.h"
#include "vtk/vtkSelectableChartXY.h"

#include <vtkChartParallelCoordinates.h>
#include <vtkDataSetAttributes.h>

#include <gtest/gtest.h>

#include <ctime>
#include <functional>
#include <string>
#include <vector>

#include "SobolFixture.h"

namespace
{

constexpr int parameters = 3;

/// Columns that go, lose their name or their rows under a chart that shows them.
class LostColumns : public UndrawnPlotFixture, public ::testing::WithParamInterface<int>
{
protected:
  void show()
  {
    container.setLinePlotTable(parameterStudy(6, 4, parameters), true);
    settings().solidColor = false;
    settings().setShowQuantiles(true);
    storeStyle(container, GetParam());
    container.redraw();
    scene.render(container);
  }

  /// Every column in turn, each under a new drawing.
  void expectSurvived(const std::function<void(vtkTable*, int)>& lose)
  {
    for (int column = 0; column < 3 + parameters; ++column)
    {
      show();
      vtkTable* table = container.getTable();
      lose(table, column);
      for (const bool announced : {false, true})
      {
        if (announced)
          table->Modified();
        scene.render(container);
      }
      // Announced, a drawing reports what pages throw for parameters without a full name.
      settings().setPThreshold(settings().getPThreshold() / 2.0);
      scene.render(container);
    }
  }
};

TEST_P(LostColumns, MayBeRemoved)
{
  expectSurvived([](vtkTable* table, int column) { table->GetRowData()->RemoveArray(column); });
}

TEST_P(LostColumns, MayLoseTheirNames)
{
  expectSurvived([](vtkTable* table, int column) { table->GetColumn(column)->SetName("other"); });
  expectSurvived([](vtkTable* table, int column) { table->GetColumn(column)->SetName(nullptr); });
}

TEST_P(LostColumns, MayLoseRows)
{
  expectSurvived([](vtkTable* table, int column)
                 { table->GetColumn(column)->SetNumberOfTuples(1); });
}

TEST_P(LostColumns, MayAllGo)
{
  expectSurvived([](vtkTable* table, int) { table->Initialize(); });
}

INSTANTIATE_TEST_SUITE_P(EveryStyle, LostColumns, ::testing::Range(0, plotStyleCount));

class LostSeries : public SobolFixture
{
};

TEST_F(LostSeries, OfBarsAndAreasMayBeRemoved)
{
  for (const plotStyles style : {reservedStyle1, reservedStyle2})
  {
    const bool bars = style == reservedStyle1;
    for (int column = 0; column < 3; ++column)
    {
      storeStyle(container, style);
      container.setSobolPostprocessResult(&result, bars, false, 0, 0);
      render();
      ASSERT_GT(container.getTable()->GetNumberOfColumns(), column);
      ASSERT_TRUE(container.getChartXY()->GetPlot(0)->GetVisible());
      container.getTable()->GetRowData()->RemoveArray(column);
      container.getTable()->Modified();
      render();
      container.redraw();
      render();
    }
  }
}

// The chart then shows a copy of the table, in which what it once had is not to be seen.
TEST_F(LostSeries, MayBeRemovedBeforeTheOtherColumnsAreReduced)
{
  for (const plotStyles style : {reservedStyle1, reservedStyle2})
  {
    storeStyle(container, style);
    container.setSobolPostprocessResult(&result, style == reservedStyle1, false, 0, 0);
    const vtkSmartPointer<vtkTable> table = container.getTable();
    table->GetRowData()->RemoveArray(1);
    container.shrinkToColumnSelection();
    ASSERT_NE(container.getChartXY()->GetPlot(0)->GetInput(), table);
    render();
    EXPECT_FALSE(container.getChartXY()->GetPlot(0)->GetVisible());
  }
}

class LostPlot : public PlotFixture
{
};

TEST_F(LostPlot, IsEmptyUntilTheNextDrawing)
{
  ASSERT_TRUE(points()->GetVisible());
  container.getTable()->GetRowData()->RemoveArray("b");
  scene.render(container);
  EXPECT_FALSE(points()->GetVisible());
  EXPECT_FALSE(chart()->GetPlot(0)->GetVisible());
  container.addColumn({1, 4, 9, 16, 25}, "b");
  settings().yColumns = {3};
  container.redraw();
  scene.render(container);
  EXPECT_TRUE(points()->GetVisible());
}

TEST_F(LostPlot, IsSeenBeforeItsScaleIsSettled)
{
  const VtkErrors vtkOutput;
  for (const bool lines : {false, true})
  {
    settings().setPlotLine(lines);
    container.setPlotData(plainTable());
    container.redraw();
    scene.render(container);
    container.getTable()->GetRowData()->RemoveArray("b");
    container.getTable()->Modified();
    container.setLogScaleY(true);
    EXPECT_FALSE(chart()->GetPlot(0)->GetVisible());
    container.redraw();
    container.setPlotData(plainTable());
    container.redraw();
    container.getTable()->GetRowData()->RemoveArray("b");
    container.getTable()->Modified();
    EXPECT_TRUE(container.showsLogScaleY()) << "nothing is shown that forbids it";
    EXPECT_FALSE(chart()->GetPlot(0)->GetVisible());
    container.setLogScaleY(false);
  }
  EXPECT_EQ(vtkOutput.text(), "");
}

TEST_F(LostPlot, DoesNotTakeOthersOfItsTableAlong)
{
  vtkTable* table = container.getTable();
  vtkPlot* other = chart()->AddPlot(vtkChart::POINTS);
  other->SetInputData(table, "a", "c");
  scene.render(container);
  table->GetColumnByName("b")->SetName("other");
  scene.render(container);
  EXPECT_FALSE(chart()->GetPlot(0)->GetVisible());
  EXPECT_TRUE(other->GetVisible());
  table->GetColumnByName("c")->SetNumberOfTuples(2);
  scene.render(container);
  EXPECT_FALSE(other->GetVisible());
}

/// Searched by name, columns cost their number for each plot: 40 s here.
TEST_F(LostPlot, IsLookedForInTimeInProportionToThousands)
{
  constexpr int series = 20000;
  const std::vector<double> values{1, 2};
  auto table = vtkSmartPointer<vtkTable>::New();
  table->GetRowData()->AllocateArrays(series);
  vtkNew<vtkSelectableChartXY> many;
  // A table compares the name of a new column with those of all others.
  for (int i = 0; i < series; ++i)
  {
    const auto column = Talmesh::plot::makeColumn("", values);
    column->SetName(nullptr);
    table->GetRowData()->AddArray(column);
  }
  for (int i = 0; i < series; ++i)
  {
    const std::string name = "series with a long name " + std::to_string(i);
    table->GetColumn(i)->SetName(name.c_str());
    vtkPlot* plot = many->AddPlot(vtkChart::POINTS);
    plot->SetUseIndexForXSeries(true);
    plot->SetInputData(table, name, name);
  }
  const std::clock_t start = std::clock();
  Talmesh::LostColumns lost;
  for (int painting = 0; painting < 3; ++painting)
    lost.hidePlots(many);
  EXPECT_LT(std::clock() - start, 5 * CLOCKS_PER_SEC);
  EXPECT_TRUE(many->GetPlot(series - 1)->GetVisible());
  table->GetColumn(series - 1)->SetName("gone");
  lost.hidePlots(many);
  EXPECT_FALSE(many->GetPlot(series - 1)->GetVisible());
  EXPECT_TRUE(many->GetPlot(0)->GetVisible());
}

TEST_F(LostPlot, OnlyLosesItsColorsWithTheColumnOfThose)
{
  settings().solidColor = false;
  settings().colorColumn = 2;
  container.redraw();
  scene.render(container);
  ASSERT_TRUE(points()->GetScalarVisibility());
  container.getTable()->GetRowData()->RemoveArray("c");
  container.getTable()->Modified();
  scene.render(container);
  EXPECT_TRUE(points()->GetVisible());
  EXPECT_FALSE(points()->GetScalarVisibility());
}

} // namespace
