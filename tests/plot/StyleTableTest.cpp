#include "plot/StyleTable.h"

#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "support/PlotStyleCount.h"

#include <gtest/gtest.h>

#include <set>

using Talmesh::plot::currentStyle;
using Talmesh::plot::StyleRow;
using Talmesh::plot::styleRow;
using Talmesh::plot::styleTable;

namespace
{

/// The numbers of the styles whose rows have something in `field`.
template <typename Field>
std::set<int> stylesWith(Field StyleRow::*field)
{
  std::set<int> styles;
  for (const StyleRow& row : styleTable())
    if (row.*field)
      styles.insert(row.style);
  return styles;
}

} // namespace

TEST(StyleTable, HasARowPerStyleInTheOrderOfTheirNumbers)
{
  ASSERT_EQ(styleTable().size(), static_cast<std::size_t>(plotStyleCount));
  for (int style = 0; style < plotStyleCount; ++style)
  {
    EXPECT_EQ(styleTable()[static_cast<std::size_t>(style)].style, style);
    EXPECT_EQ(&styleRow(static_cast<plotStyles>(style)),
              &styleTable()[static_cast<std::size_t>(style)]);
    EXPECT_NE(styleRow(static_cast<plotStyles>(style)).build, nullptr);
  }
}

TEST(StyleTable, TakesNumbersWithoutAStyleForReservedOnesWithoutIndices)
{
  const StyleRow& other = styleRow(static_cast<plotStyles>(plotStyleCount));
  const StyleRow& reserved = styleRow(reservedStyle1);
  EXPECT_EQ(other.build, reserved.build);
  EXPECT_EQ(other.showsXYChart, reserved.showsXYChart);
  EXPECT_EQ(other.drawsRows, reserved.drawsRows);
  EXPECT_NE(reserved.addSobolIndices, nullptr);
  EXPECT_EQ(other.addSobolIndices, nullptr);
}

TEST(StyleTable, SaysWhatEachStyleHas)
{
  using Styles = std::set<int>;
  EXPECT_EQ(stylesWith(&StyleRow::applyBorders), (Styles{xyPlot, multiPlot, selectionCdfPlot}));
  EXPECT_EQ(stylesWith(&StyleRow::resizeMarkers), (Styles{xyPlot, scatterPlotMatrix, multiPlot}));
  EXPECT_EQ(stylesWith(&StyleRow::widenLines), Styles{scatterWithErrorBars});
  EXPECT_EQ(stylesWith(&StyleRow::addSobolIndices), (Styles{reservedStyle1, reservedStyle2}));
  EXPECT_EQ(stylesWith(&StyleRow::showsXYChart),
            (Styles{xyPlot, reservedStyle1, reservedStyle2, multiPlot, selectionCdfPlot,
                    scatterWithErrorBars}));
  EXPECT_EQ(stylesWith(&StyleRow::drawsRows),
            (Styles{xyPlot, scatterPlotMatrix, xyzPlot, multiPlot, selectionCdfPlot,
                    scatterWithErrorBars, fitParameterDistribution, parallelCoordinates}));
  EXPECT_EQ(stylesWith(&StyleRow::ranksNewData), Styles{selectionCdfPlot});
  EXPECT_EQ(stylesWith(&StyleRow::selectsAcceptedRuns), Styles{selectionCdfPlot});
}

TEST(StyleTable, FollowsTheSettings)
{
  PlotContainer container(nullptr);
  for (const StyleRow& row : styleTable())
  {
    container.getMetaData()->blockSignals(true);
    container.getMetaData()->setPlotStyle(row.style);
    EXPECT_EQ(&currentStyle(stateOf(container)), &row) << row.style;
  }
}
