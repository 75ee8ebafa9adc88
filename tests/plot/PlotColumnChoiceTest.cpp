#include "support/CapturedOutput.h"
#include "support/PlotFixture.h"

#include <gtest/gtest.h>

#include <climits>

namespace
{

using Columns = std::vector<int>;

class PlotColumnChoice : public PlotFixture
{
};

TEST_F(PlotColumnChoice, ReplacesAnEntryOfTheLists)
{
  settings().xColumns = {0, 1, 2};
  settings().yColumns = {3, 2, 1};
  container.setPlotCols(3, 0, 1, false);
  EXPECT_EQ(settings().xColumns, (Columns{0, 3, 2}));
  EXPECT_EQ(settings().yColumns, (Columns{3, 0, 1}));
}

TEST_F(PlotColumnChoice, ExtendsShortListsWithTheNewColumn)
{
  settings().xColumns = {1};
  settings().yColumns = {2};
  container.setPlotCols(3, 4, 2, false);
  EXPECT_EQ(settings().xColumns, (Columns{1, 3, 3}));
  EXPECT_EQ(settings().yColumns, (Columns{2, 4, 4}));
}

TEST_F(PlotColumnChoice, TreatsEachListByItsOwnLength)
{
  settings().xColumns = {};
  settings().yColumns = {0, 0, 0};
  container.setPlotCols(1, 2, 1, false);
  EXPECT_EQ(settings().xColumns, (Columns{1, 1}));
  EXPECT_EQ(settings().yColumns, (Columns{0, 2, 0}));
}

TEST_F(PlotColumnChoice, ExtendsByOneAtTheEnd)
{
  settings().xColumns = {0};
  settings().yColumns = {0};
  container.setPlotCols(1, 2, 1, false);
  EXPECT_EQ(settings().xColumns, (Columns{0, 1}));
  EXPECT_EQ(settings().yColumns, (Columns{0, 2}));
}

TEST_F(PlotColumnChoice, DrawsTheColumns)
{
  newDrawings();
  container.setPlotCols(3, 2, 0, false);
  EXPECT_EQ(newDrawings(), 1U);
  EXPECT_EQ(plottedColumn(chart()->GetPlot(0), 0), container.getTable()->GetColumn(3));
  EXPECT_EQ(plottedColumn(chart()->GetPlot(0), 1), container.getTable()->GetColumn(2));
}

TEST_F(PlotColumnChoice, LeavesNegativeAndAbsurdIndicesOut)
{
  settings().xColumns = {0};
  settings().yColumns = {1};
  const int choices[][3] = {{-1, 2, 0},      {2, -1, 0},      {2, 3, -1},      {INT_MIN, 1, 0},
                            {1, INT_MIN, 0}, {1, 1, INT_MIN}, {1, 1, INT_MAX}, {-1, -1, 5}};
  for (const auto& [x, y, index] : choices)
  {
    container.setPlotCols(x, y, index, false);
    EXPECT_EQ(settings().xColumns, Columns{0}) << x << ' ' << y << ' ' << index;
    EXPECT_EQ(settings().yColumns, Columns{1}) << x << ' ' << y << ' ' << index;
    scene.render(container);
  }
}

TEST_F(PlotColumnChoice, StoresTheColumnsOfATableThatIsYetToCome)
{
  container.setPlotData(vtkSmartPointer<vtkTable>::New());
  container.setPlotCols(3, 2, 0, false);
  EXPECT_EQ(settings().xColumns.front(), 3);
  EXPECT_EQ(settings().yColumns.front(), 2);
  scene.render(container);
}

TEST_F(PlotColumnChoice, TakesColumnsByName)
{
  container.setPlotCols(std::string("c"), std::string("a"), 0, false);
  EXPECT_EQ(settings().xColumns, Columns{2});
  EXPECT_EQ(settings().yColumns, Columns{0});
  container.setPlotCols("d", "b", 1, false);
  EXPECT_EQ(settings().xColumns, (Columns{2, 3}));
  EXPECT_EQ(settings().yColumns, (Columns{0, 1}));
}

TEST_F(PlotColumnChoice, ChangesNothingForAnUnknownName)
{
  container.setPlotCols("c", "nothing", 0, false);
  container.setPlotCols("nothing", "c", 0, false);
  container.setPlotCols("", "", 0, false);
  EXPECT_EQ(settings().xColumns, Columns{0});
  EXPECT_EQ(settings().yColumns, Columns{1});
}

TEST(PlotColumnChoiceWithoutScene, StoresTheColumns)
{
  PlotContainer container(nullptr);
  const CapturedOutput output(std::cout);
  container.setPlotCols(4, 5, 0, false);
  EXPECT_EQ(output.text(), "void PlotContainer::redraw(): invalid scene\n");
  EXPECT_EQ(container.getMetaData()->xColumns, Columns{4});
  EXPECT_EQ(container.getMetaData()->yColumns, Columns{5});
}

} // namespace
