#include "app/session/SessionSettings.h"

#include "app/session/SessionFile.h"
#include "external/PlotMetaData.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Talmesh::app;

namespace
{

SessionSettings settingsIn(const QByteArray& text, int columns = 4)
{
  const Result<SessionSettings> read = readSettings(text, columns);
  EXPECT_EQ(read.error(), "");
  return read.value();
}

/// A window as a session has it.
bool isWindow(const QByteArray& limits)
{
  return settingsIn("{\"plot\": {\"window\": " + limits + "}}").plot->storedCoordinateWindow.valid;
}

} // namespace

TEST(SessionSettings, KeepFirstValuesInsteadOfWrongOnes)
{
  const QByteArray text = R"({"name": 3, "pointsPerRun": 1.5, "legend": "yes",
    "normalised": [2, 4, "1"], "plot": {
    "style": "no such style", "stride": 0, "x": [7, "1", 0.5, -3, 1], "y": [], "z": "2",
    "parameters": [1e300], "ksThreshold": 2, "pThreshold": -1, "lineWidth": 1e9, "pointSize": null,
    "marker": 99, "color": [300, -1, 5], "colorColumn": 4, "lines": 1,
    "window": {"xMin": 1, "xMax": 0, "yMin": 0, "yMax": 1}}})";
  const Result<SessionSettings> read = readSettings(text, 4);
  EXPECT_EQ(read.error(), "");
  EXPECT_EQ(read.value().name, "");
  EXPECT_EQ(read.value().pointsPerRun, 0);
  EXPECT_FALSE(read.value().legend);
  EXPECT_EQ(read.value().normalised, (std::vector<int>{2, -1}));
  EXPECT_TRUE(readSettings("{}", 4).value().normalised.empty());
  const PlotMetaData& plot = *read.value().plot;
  EXPECT_EQ(plot.getPlotStyle(), xyPlot);
  EXPECT_EQ(plot.getStride(), 1);
  EXPECT_EQ(plot.xColumns, (std::vector<int>{-1, 1}));
  EXPECT_EQ(plot.yColumns, std::vector<int>{1});
  EXPECT_EQ(plot.zColumns, std::vector<int>{2});
  EXPECT_EQ(plot.parameterColumns, std::vector<int>{-1});
  EXPECT_EQ(plot.getKsThreshold(), 0.0);
  EXPECT_EQ(plot.getPThreshold(), 0.05);
  EXPECT_EQ(plot.getLineWidth(), 1.0);
  EXPECT_EQ(plot.pointSize, 4.0);
  EXPECT_EQ(plot.markerStyle, 4);
  EXPECT_EQ(plot.color, (std::array<int, 4>{0, 0, 0, 255}));
  EXPECT_EQ(plot.colorColumn, -1);
  EXPECT_FALSE(plot.getPlotLine());
  EXPECT_FALSE(plot.storedCoordinateWindow.valid);
}

TEST(SessionSettings, NameEachColumnOnce)
{
  const SessionSettings settings =
      settingsIn(R"({"plot": {"x": [2, 2], "y": [3, 1, 3, 1], "parameters": [0, 1, 0, 9, 9]}})");
  EXPECT_EQ(settings.plot->xColumns, std::vector<int>{2});
  EXPECT_EQ(settings.plot->yColumns, (std::vector<int>{3, 1}));
  EXPECT_EQ(settings.plot->parameterColumns, (std::vector<int>{0, 1, -1}));
}

TEST(SessionSettings, HaveNoMoreRangesThanColumns)
{
  const QByteArray text = R"({"parameterRanges": [[0, 1], [2, 3], [4, 5]]})";
  using Ranges = std::vector<std::pair<double, double>>;
  EXPECT_EQ(settingsIn(text, 2).parameterRanges, (Ranges{{0, 1}, {2, 3}}));
  EXPECT_EQ(settingsIn(text, 3).parameterRanges, (Ranges{{0, 1}, {2, 3}, {4, 5}}));
}

TEST(SessionSettings, TakeMistypedRangesForInfiniteOnes)
{
  constexpr double infinity = std::numeric_limits<double>::infinity();
  using Ranges = std::vector<std::pair<double, double>>;
  EXPECT_EQ(settingsIn(R"({"parameterRanges": 3})").parameterRanges, Ranges());
  EXPECT_EQ(
      settingsIn(R"({"parameterRanges": ["a", [null, "b"], [1], [1, 2, 3]]})").parameterRanges,
      (Ranges{{-infinity, infinity}, {-infinity, infinity}, {1, infinity}, {1, 2}}));
}

TEST(SessionSettings, TakeNoWindowThatNoAxisCanShow)
{
  EXPECT_TRUE(isWindow(R"({"xMin": 0, "xMax": 1, "yMin": -1e300, "yMax": 1e300})"));
  EXPECT_FALSE(isWindow(R"({"xMin": 0, "xMax": 1, "yMin": -1e308, "yMax": 1e308})"));
  EXPECT_FALSE(isWindow(R"({"xMin": -1e308, "xMax": 1e308, "yMin": 0, "yMax": 1})"));
  EXPECT_FALSE(isWindow(R"({"xMin": 0, "xMax": 1, "yMin": 1, "yMax": 1})"));
  EXPECT_FALSE(isWindow(R"({"xMin": 0, "xMax": 1, "yMin": 0})"));
  EXPECT_FALSE(isWindow(R"({"xMin": "0", "xMax": 1, "yMin": 0, "yMax": 1})"));
  EXPECT_FALSE(isWindow("[0, 1, 0, 1]"));
}

TEST(SessionSettings, TakeMistypedScalesOfAWindowForLinearOnes)
{
  const SessionSettings settings = settingsIn(R"({"windowLogX": "true", "windowLogY": 1})");
  EXPECT_FALSE(settings.windowScales.xLog);
  EXPECT_FALSE(settings.windowScales.yLog);
}

TEST(SessionSettings, IgnoreWhatTheyDoNotKnow)
{
  const SessionSettings settings = settingsIn(
      R"({"later": {"a": [1]}, "legend": true, "plot": {"later": 2, "marker": 2}, "": null})");
  EXPECT_TRUE(settings.legend);
  EXPECT_EQ(settings.plot->markerStyle, 2);
}

TEST(SessionSettings, CutTextsThatNoPlotShows)
{
  SessionSettings settings;
  settings.name = std::string(5000, 'n');
  for (std::string* text : {&settings.plot->title, &settings.plot->xLabel, &settings.plot->yLabel,
                            &settings.plot->sourceName})
    *text = std::string(5000, 'a');
  const QByteArray written = settingsText(settings);
  EXPECT_LT(written.size(), 8000);
  EXPECT_EQ(settingsIn(written).plot->title, std::string(1000, 'a'));
  // Another program may have written more.
  const QByteArray longer(5000, 'b');
  const SessionSettings read =
      settingsIn("{\"name\": \"" + longer + R"(", "plot": {"yLabel": ")" + longer + "\"}}");
  EXPECT_EQ(read.name, std::string(1000, 'b'));
  EXPECT_EQ(read.plot->yLabel, std::string(1000, 'b'));
}

TEST(SessionSettings, OfTheLargestTableFitIntoAFile)
{
  const int columns = 20100;
  SessionSettings settings;
  settings.plot->yColumns.clear();
  for (int i = 0; i < columns; ++i)
  {
    settings.parameterRanges.emplace_back(-1.2345678901234567e-300, 1.2345678901234567e300);
    settings.plot->yColumns.push_back(i);
    settings.plot->parameterColumns.push_back(i);
  }
  const QByteArray text = settingsText(settings);
  EXPECT_LE(text.size(), largestSettings);
  EXPECT_EQ(settingsIn(text, columns).parameterRanges, settings.parameterRanges);
}

TEST(SessionSettings, SayHowManyStepsAreForgottenThoughNoneIsLeft)
{
  SessionSettings settings;
  settings.steps.forgotten = 3;
  EXPECT_EQ(settingsIn(settingsText(settings)).steps.forgotten, 3);
}
