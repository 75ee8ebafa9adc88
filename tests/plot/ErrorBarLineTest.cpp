#include "plot/ContainerAccess.h"
#include "support/PlotFixture.h"
#include "support/VtkErrors.h"

namespace
{

/// The second series of style 7, from four plain columns.
class ErrorBarLine : public PlotFixture
{
protected:
  ErrorBarLine() { drawStyle(scatterWithErrorBars); }

  vtkPlot* lineOf(int x, int y)
  {
    settings().xColumns = {0, x};
    settings().yColumns = {1, y};
    container.redraw();
    return chart()->GetPlot(1);
  }
};

TEST_F(ErrorBarLine, NeedsBothColumnsOverTheRowIndexToo)
{
  VtkErrors errors;
  container.setUseIndexForXSeries(true);
  for (const auto& [x, y] : {std::pair{4, 2}, {99, 2}, {-1, 2}, {3, 4}, {3, -1}})
  {
    vtkPlot* line = lineOf(x, y);
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->GetInput(), nullptr) << x << ' ' << y;
    EXPECT_TRUE(line->GetUseIndexForXSeries());
    EXPECT_NE(chart()->GetPlot(0)->GetInput(), nullptr) << "the first series stands on its own";
    scene.render(container);
  }
  EXPECT_EQ(errors.text(), "");
}

TEST_F(ErrorBarLine, LiesOverTheRowIndexWithBothColumns)
{
  container.setUseIndexForXSeries(true);
  vtkPlot* line = lineOf(3, 2);
  ASSERT_NE(line, nullptr);
  EXPECT_EQ(line->GetInput(), container.getTable());
  EXPECT_TRUE(line->GetUseIndexForXSeries());
  EXPECT_STREQ(plottedColumn(line, 1)->GetName(), "c");
}

TEST_F(ErrorBarLine, TakesAnXColumnOfTextWhereTheRowIndexStandsInForIt)
{
  addStringColumn(container.getTable(), "text");
  EXPECT_EQ(lineOf(4, 2)->GetInput(), nullptr);
  container.setUseIndexForXSeries(true);
  EXPECT_EQ(lineOf(4, 2)->GetInput(), container.getTable());
}

TEST_F(ErrorBarLine, CountsTheColumnsOfItsOwnTable)
{
  container.setUseIndexForXSeries(true);
  const auto curve = tableOf({{"u", {0, 10, 20}}, {"v", {3, 4, 5}}});
  stateOf(container).derivedTables = {curve};
  EXPECT_EQ(lineOf(2, 1)->GetInput(), nullptr);
  EXPECT_EQ(lineOf(0, 1)->GetInput(), curve);
}

} // namespace
