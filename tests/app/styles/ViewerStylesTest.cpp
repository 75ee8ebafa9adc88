#include "app/styles/ViewerStyles.h"

#include "external/PlotMetaData.h"
#include "plot/StyleTable.h"
#include "support/PlotStyleCount.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

using namespace Talmesh::app;

namespace
{

template <typename Predicate>
std::set<int> stylesThat(Predicate has)
{
  std::set<int> styles;
  for (const ViewerStyle& row : viewerStyles())
    if (has(row))
      styles.insert(row.style);
  return styles;
}

std::set<int> stylesWith(bool PlotControls::*control)
{
  return stylesThat([control](const ViewerStyle& row) { return row.controls.*control; });
}

std::set<int> stylesWith(bool ViewerStyle::*field)
{
  return stylesThat([field](const ViewerStyle& row) { return row.*field; });
}

using Styles = std::set<int>;

} // namespace

TEST(ViewerStyles, HaveARowPerStyleWithANameOfItsOwn)
{
  ASSERT_EQ(viewerStyles().size(), static_cast<std::size_t>(plotStyleCount));
  std::set<std::string> names;
  for (int style = 0; style < plotStyleCount; ++style)
  {
    const ViewerStyle& row = viewerStyle(static_cast<plotStyles>(style));
    EXPECT_EQ(row.style, style);
    EXPECT_EQ(findStyle(row.name), &row);
    names.insert(row.name);
  }
  EXPECT_EQ(names.size(), viewerStyles().size());
}

TEST(ViewerStyles, CountUnknownNumbersAsReserved)
{
  const auto unknown = static_cast<plotStyles>(plotStyleCount);
  EXPECT_EQ(findStyle(unknown), nullptr);
  EXPECT_FALSE(viewerStyle(unknown).offered);
}

TEST(ViewerStyles, OfferLegendAndLogarithmicXAxisWhereTheLibraryHasThem)
{
  for (const ViewerStyle& row : viewerStyles())
  {
    if (!row.offered)
      continue;
    EXPECT_EQ(row.controls.legend, Talmesh::plot::styleRow(row.style).showsXYChart) << row.name;
    EXPECT_EQ(row.controls.logX, Talmesh::plot::styleRow(row.style).showsXYChart) << row.name;
  }
}

TEST(ViewerStyles, SayWhichControlsAct)
{
  EXPECT_EQ(stylesWith(&PlotControls::x),
            (Styles{xyPlot, reservedStyle1, reservedStyle2, scatterPlotMatrix, xyzPlot, multiPlot,
                    selectionCdfPlot, scatterWithErrorBars, fitParameterDistribution}));
  EXPECT_EQ(stylesWith(&PlotControls::z), (Styles{xyzPlot, scatterWithErrorBars}));
  EXPECT_EQ(stylesWith(&PlotControls::lines), (Styles{xyPlot, selectionCdfPlot}));
  EXPECT_EQ(stylesWith(&PlotControls::logY), (Styles{xyPlot, multiPlot, selectionCdfPlot}));
}

TEST(ViewerStyles, SayWhatAPageHas)
{
  EXPECT_EQ(stylesThat([](const ViewerStyle& row) { return !row.offered; }),
            (Styles{reservedStyle1, reservedStyle2}));
  EXPECT_EQ(stylesWith(&ViewerStyle::hasSeries), Styles{xyPlot});
  EXPECT_EQ(stylesWith(&ViewerStyle::hasColumnsAsAxes), Styles{parallelCoordinates});
  EXPECT_EQ(stylesWith(&ViewerStyle::comparesRuns),
            (Styles{multiPlot, selectionCdfPlot, fitParameterDistribution}));
  EXPECT_EQ(stylesWith(&ViewerStyle::showsDistributions), Styles{selectionCdfPlot});
  EXPECT_EQ(stylesThat([](const ViewerStyle& row) { return row.room.right > PageRoom().right; }),
            Styles{scatterPlotMatrix});
}

// A table of 9 columns, 4 of them parameters: pairs are n (n - 1) / 2.
TEST(ViewerStyles, CountTheChartsOfAPageAndThePointsOfARow)
{
  struct Extent
  {
    plotStyles style;
    std::size_t charts;
    std::size_t points;
  };
  const PageColumns columns{9, 3, 4, false};
  for (const Extent& expected :
       {Extent{xyPlot, 1, 3}, Extent{scatterPlotMatrix, 81, 36}, Extent{xyzPlot, 1, 3},
        Extent{multiPlot, 16, 7}, Extent{selectionCdfPlot, 4, 1},
        Extent{scatterWithErrorBars, 1, 3}, Extent{fitParameterDistribution, 16, 10},
        Extent{parallelCoordinates, 3, 3}})
  {
    const ViewerStyle& style = viewerStyle(expected.style);
    EXPECT_EQ(style.charts(columns), expected.charts) << style.name;
    EXPECT_EQ(style.pointsOfRow(columns), expected.points) << style.name;
  }
}

TEST(ViewerStyles, CountWhatIsLeftOutAndWhatIsNotChosen)
{
  const PageColumns limited{9, 3, 4, true};
  EXPECT_EQ(viewerStyle(scatterPlotMatrix).charts(limited), 36u);
  EXPECT_EQ(viewerStyle(scatterPlotMatrix).pointsOfRow(limited), 15u);
  const PageColumns twoChosen{9, 2, 0, false};
  EXPECT_EQ(viewerStyle(parallelCoordinates).charts(twoChosen), 9u) << "all columns";
  EXPECT_EQ(viewerStyle(multiPlot).pointsOfRow(twoChosen), 0u);
  EXPECT_EQ(viewerStyle(xyPlot).pointsOfRow({9, 0, 0, false}), 1u);
}

TEST(ViewerStyles, ReadTheSettings)
{
  PlotMetaData settings(nullptr);
  settings.setPlotStyle(parallelCoordinates);
  settings.yColumns = {1, 2};
  settings.parameterColumns = {3, 4, 5};
  EXPECT_EQ(styleOf(settings).style, parallelCoordinates);
  const PageColumns columns = pageColumns(settings, 6);
  EXPECT_EQ(columns.all, 6u);
  EXPECT_EQ(columns.chosen, 2u);
  EXPECT_EQ(columns.parameters, 3u);
  EXPECT_EQ(columns.limited, settings.getLimitColumVisibility());
}
