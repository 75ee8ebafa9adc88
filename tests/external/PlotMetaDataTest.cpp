#include "external/PlotMetaData.h"

#include <gtest/gtest.h>

#include <QObject>

#include <cmath>
#include <functional>
#include <limits>
#include <string>

namespace
{

const double notANumber = std::numeric_limits<double>::quiet_NaN();

class PlotMetaDataSignals : public testing::Test
{
protected:
  PlotMetaDataSignals()
  {
    QObject::connect(&settings, &PlotMetaData::redrawNeeded, [this]() { ++emitted; });
  }

  // The first call changes the option, the second repeats it.
  void expectOneSignal(const char* name, const std::function<void()>& set)
  {
    SCOPED_TRACE(name);
    emitted = 0;
    set();
    EXPECT_EQ(emitted, 1);
    set();
    EXPECT_EQ(emitted, 1);
  }

  PlotMetaData settings;
  int emitted = 0;
};

} // namespace

TEST(PlotMetaData, StartsWithTheDocumentedValues)
{
  const PlotMetaData settings(nullptr);
  EXPECT_EQ(settings.xColumns, std::vector<int>{0});
  EXPECT_EQ(settings.yColumns, std::vector<int>{1});
  EXPECT_EQ(settings.zColumns, std::vector<int>{2});
  EXPECT_EQ(settings.markerStyle, 4);
  EXPECT_EQ(settings.pointSize, 4.0);
  EXPECT_EQ(settings.title + settings.xLabel + settings.yLabel + settings.sourceName, "");
  EXPECT_EQ(settings.colorColumn, -1);
  EXPECT_TRUE(settings.parameterColumns.empty());
  EXPECT_FALSE(settings.storedCoordinateWindow.valid);
  EXPECT_EQ(settings.color, (std::array<int, 4>{0, 0, 0, 255}));
  EXPECT_TRUE(settings.solidColor);
  EXPECT_FALSE(settings.rankedDataCurrent);
  EXPECT_EQ(settings.sourceId, 0);
  EXPECT_EQ(settings.getPlotStyle(), xyPlot);
  EXPECT_EQ(settings.getStride(), 1);
  EXPECT_FALSE(settings.getPlotLine());
  EXPECT_FALSE(settings.getLogX());
  EXPECT_FALSE(settings.getLogParameterAxes());
  EXPECT_FALSE(settings.getUseDensity());
  EXPECT_FALSE(settings.getCommonDensityScale());
  EXPECT_FALSE(settings.getShowQuantiles());
  EXPECT_FALSE(settings.getLimitColumVisibility());
  EXPECT_EQ(settings.getKsThreshold(), 0.0);
  EXPECT_EQ(settings.getPThreshold(), 0.05);
  EXPECT_EQ(settings.getLineWidth(), 1.0);
}

TEST(PlotMetaData, CoordinateWindowStartsAsTheInvalidUnitSquare)
{
  const CoordinateWindow window;
  EXPECT_EQ(window.xMin, 0.0);
  EXPECT_EQ(window.yMin, 0.0);
  EXPECT_EQ(window.xMax, 1.0);
  EXPECT_EQ(window.yMax, 1.0);
  EXPECT_FALSE(window.valid);
}

TEST(PlotMetaData, StylesHaveTheStoredNumbers)
{
  EXPECT_EQ(int(xyPlot), 0);
  EXPECT_EQ(int(reservedStyle1), 1);
  EXPECT_EQ(int(reservedStyle2), 2);
  EXPECT_EQ(int(scatterPlotMatrix), 3);
  EXPECT_EQ(int(xyzPlot), 4);
  EXPECT_EQ(int(multiPlot), 5);
  EXPECT_EQ(int(selectionCdfPlot), 6);
  EXPECT_EQ(int(scatterWithErrorBars), 7);
  EXPECT_EQ(int(fitParameterDistribution), 8);
  EXPECT_EQ(int(parallelCoordinates), 9);
  EXPECT_TRUE((std::is_same_v<std::underlying_type_t<plotStyles>, int>));
}

TEST(PlotMetaData, IsDeletedWithItsParent)
{
  bool deleted = false;
  {
    QObject parent;
    auto* settings = new PlotMetaData(&parent);
    QObject::connect(settings, &QObject::destroyed, [&deleted]() { deleted = true; });
  }
  EXPECT_TRUE(deleted);
}

TEST(PlotMetaData, TakesAStyleBeyondTheEnumerators)
{
  PlotMetaData settings;
  settings.setPlotStyle(plotStyles(42));
  EXPECT_EQ(int(settings.getPlotStyle()), 42);
}

TEST_F(PlotMetaDataSignals, EveryOptionAnnouncesItsChangeOnce)
{
  expectOneSignal("style", [this]() { settings.setPlotStyle(multiPlot); });
  expectOneSignal("stride", [this]() { settings.setStride(7); });
  expectOneSignal("line", [this]() { settings.setPlotLine(true); });
  expectOneSignal("log x", [this]() { settings.setLogX(true); });
  expectOneSignal("log parameters", [this]() { settings.setLogParameterAxes(true); });
  expectOneSignal("density", [this]() { settings.setUseDensity(true); });
  expectOneSignal("density scale", [this]() { settings.setCommonDensityScale(true); });
  expectOneSignal("quantiles", [this]() { settings.setShowQuantiles(true); });
  expectOneSignal("KS threshold", [this]() { settings.setKsThreshold(0.25); });
  expectOneSignal("p threshold", [this]() { settings.setPThreshold(0.01); });
  expectOneSignal("columns", [this]() { settings.setLimitColumVisibility(true); });
  expectOneSignal("line width", [this]() { settings.setLineWidth(2.5); });

  EXPECT_EQ(settings.getPlotStyle(), multiPlot);
  EXPECT_EQ(settings.getStride(), 7);
  EXPECT_TRUE(settings.getPlotLine());
  EXPECT_TRUE(settings.getLogX());
  EXPECT_TRUE(settings.getLogParameterAxes());
  EXPECT_TRUE(settings.getUseDensity());
  EXPECT_TRUE(settings.getCommonDensityScale());
  EXPECT_TRUE(settings.getShowQuantiles());
  EXPECT_EQ(settings.getKsThreshold(), 0.25);
  EXPECT_EQ(settings.getPThreshold(), 0.01);
  EXPECT_TRUE(settings.getLimitColumVisibility());
  EXPECT_EQ(settings.getLineWidth(), 2.5);
}

TEST_F(PlotMetaDataSignals, SettingTheInitialValuesIsNoChange)
{
  settings.setPlotStyle(xyPlot);
  settings.setStride(1);
  settings.setPlotLine(false);
  settings.setLogX(false);
  settings.setLogParameterAxes(false);
  settings.setUseDensity(false);
  settings.setCommonDensityScale(false);
  settings.setShowQuantiles(false);
  settings.setKsThreshold(0.0);
  settings.setPThreshold(0.05);
  settings.setLimitColumVisibility(false);
  settings.setLineWidth(1.0);
  EXPECT_EQ(emitted, 0);
}

TEST_F(PlotMetaDataSignals, NaNAfterNaNIsNoChange)
{
  expectOneSignal("KS threshold", [this]() { settings.setKsThreshold(notANumber); });
  expectOneSignal("p threshold", [this]() { settings.setPThreshold(notANumber); });
  expectOneSignal("line width", [this]() { settings.setLineWidth(notANumber); });
  EXPECT_TRUE(std::isnan(settings.getPThreshold()));
  expectOneSignal("back to a number", [this]() { settings.setPThreshold(0.05); });
}

TEST_F(PlotMetaDataSignals, TheValueIsAlreadyNewWhenTheSignalArrives)
{
  int seen = 0;
  QObject::connect(&settings, &PlotMetaData::redrawNeeded, [&]() { seen = settings.getStride(); });
  settings.setStride(9);
  EXPECT_EQ(seen, 9);
}

TEST_F(PlotMetaDataSignals, BlockedSignalsStillStoreTheValue)
{
  settings.blockSignals(true);
  settings.setStride(3);
  EXPECT_EQ(emitted, 0);
  EXPECT_EQ(settings.getStride(), 3);
}

TEST_F(PlotMetaDataSignals, PublicValuesChangeSilently)
{
  settings.title = "A title";
  settings.xColumns = {4};
  EXPECT_EQ(emitted, 0);
}

namespace
{

void fillWithUnusualValues(PlotMetaData& settings)
{
  settings.xColumns = {3, 4};
  settings.yColumns = {5};
  settings.zColumns = {};
  settings.markerStyle = 2;
  settings.pointSize = 6.5;
  settings.title = "title";
  settings.xLabel = "x";
  settings.yLabel = "y";
  settings.colorColumn = 8;
  settings.parameterColumns = {9, 10};
  settings.storedCoordinateWindow = {1.0, 2.0, 3.0, 4.0, true};
  settings.color = {1, 2, 3, 4};
  settings.solidColor = false;
  settings.rankedDataCurrent = true;
  settings.sourceName = "study";
  settings.sourceId = 17;
  settings.setPlotStyle(parallelCoordinates);
  settings.setStride(11);
  settings.setPlotLine(true);
  settings.setLogX(true);
  settings.setLogParameterAxes(true);
  settings.setUseDensity(true);
  settings.setCommonDensityScale(true);
  settings.setShowQuantiles(true);
  settings.setLimitColumVisibility(true);
  settings.setKsThreshold(0.5);
  settings.setPThreshold(0.001);
  settings.setLineWidth(3.0);
}

void expectUnusualValues(const PlotMetaData& settings)
{
  EXPECT_EQ(settings.xColumns, (std::vector<int>{3, 4}));
  EXPECT_EQ(settings.yColumns, std::vector<int>{5});
  EXPECT_TRUE(settings.zColumns.empty());
  EXPECT_EQ(settings.markerStyle, 2);
  EXPECT_EQ(settings.pointSize, 6.5);
  EXPECT_EQ(settings.title, "title");
  EXPECT_EQ(settings.xLabel, "x");
  EXPECT_EQ(settings.yLabel, "y");
  EXPECT_EQ(settings.colorColumn, 8);
  EXPECT_EQ(settings.parameterColumns, (std::vector<int>{9, 10}));
  EXPECT_EQ(settings.storedCoordinateWindow.xMin, 1.0);
  EXPECT_EQ(settings.storedCoordinateWindow.yMin, 2.0);
  EXPECT_EQ(settings.storedCoordinateWindow.xMax, 3.0);
  EXPECT_EQ(settings.storedCoordinateWindow.yMax, 4.0);
  EXPECT_TRUE(settings.storedCoordinateWindow.valid);
  EXPECT_EQ(settings.color, (std::array<int, 4>{1, 2, 3, 4}));
  EXPECT_FALSE(settings.solidColor);
  EXPECT_TRUE(settings.rankedDataCurrent);
  EXPECT_EQ(settings.sourceName, "study");
  EXPECT_EQ(settings.sourceId, 17);
  EXPECT_EQ(settings.getPlotStyle(), parallelCoordinates);
  EXPECT_EQ(settings.getStride(), 11);
  EXPECT_TRUE(settings.getPlotLine());
  EXPECT_TRUE(settings.getLogX());
  EXPECT_TRUE(settings.getLogParameterAxes());
  EXPECT_TRUE(settings.getUseDensity());
  EXPECT_TRUE(settings.getCommonDensityScale());
  EXPECT_TRUE(settings.getShowQuantiles());
  EXPECT_TRUE(settings.getLimitColumVisibility());
  EXPECT_EQ(settings.getKsThreshold(), 0.5);
  EXPECT_EQ(settings.getPThreshold(), 0.001);
  EXPECT_EQ(settings.getLineWidth(), 3.0);
}

} // namespace

TEST(PlotMetaDataCopy, HasEveryValue)
{
  PlotMetaData original;
  fillWithUnusualValues(original);
  expectUnusualValues(original);
  expectUnusualValues(PlotMetaData(original));
}

TEST(PlotMetaDataCopy, HasNeitherParentNorConnectionsNorBlockedSignals)
{
  QObject parent;
  auto* original = new PlotMetaData(&parent);
  int fromOriginal = 0;
  QObject::connect(original, &PlotMetaData::redrawNeeded, [&]() { ++fromOriginal; });
  original->blockSignals(true);

  PlotMetaData copy(*original);
  int fromCopy = 0;
  QObject::connect(&copy, &PlotMetaData::redrawNeeded, [&]() { ++fromCopy; });
  copy.setStride(5);

  EXPECT_EQ(copy.parent(), nullptr);
  EXPECT_FALSE(copy.signalsBlocked());
  EXPECT_EQ(fromCopy, 1);
  EXPECT_EQ(fromOriginal, 0);
  EXPECT_EQ(original->getStride(), 1);
}
