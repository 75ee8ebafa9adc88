#include "app/session/SessionSettings.h"

#include "app/import/TranslatedText.h"
#include "app/session/SettingsReader.h"
#include "app/styles/ViewerStyles.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Talmesh::app
{

namespace
{

constexpr double infinity = std::numeric_limits<double>::infinity();
/// Markers and lines of any larger size would cover the chart.
constexpr double largestSize = 100.0;
constexpr int lastMarker = 5;
/// No title or label of a readable plot is longer.
constexpr int mostCharacters = 1000;

struct Switch
{
  const char* name;
  bool (PlotMetaData::*get)() const;
  void (PlotMetaData::*set)(bool);
};

constexpr Switch switches[] = {
    {"lines", &PlotMetaData::getPlotLine, &PlotMetaData::setPlotLine},
    {"logX", &PlotMetaData::getLogX, &PlotMetaData::setLogX},
    {"logParameterAxes", &PlotMetaData::getLogParameterAxes, &PlotMetaData::setLogParameterAxes},
    {"useDensity", &PlotMetaData::getUseDensity, &PlotMetaData::setUseDensity},
    {"commonDensityScale", &PlotMetaData::getCommonDensityScale,
     &PlotMetaData::setCommonDensityScale},
    {"showQuantiles", &PlotMetaData::getShowQuantiles, &PlotMetaData::setShowQuantiles},
    {"chosenColumnsOnly", &PlotMetaData::getLimitColumVisibility,
     &PlotMetaData::setLimitColumVisibility}};

struct Number
{
  const char* name;
  double (PlotMetaData::*get)() const;
  void (PlotMetaData::*set)(double);
  double lowest;
  double highest;
};

constexpr Number numbers[] = {
    {"ksThreshold", &PlotMetaData::getKsThreshold, &PlotMetaData::setKsThreshold, 0.0, 1.0},
    {"pThreshold", &PlotMetaData::getPThreshold, &PlotMetaData::setPThreshold, 0.0, 1.0},
    {"lineWidth", &PlotMetaData::getLineWidth, &PlotMetaData::setLineWidth, 0.0, largestSize}};

struct ColumnListName
{
  const char* name;
  std::vector<int> PlotMetaDataValues::*list;
};

constexpr ColumnListName columnLists[] = {{"x", &PlotMetaDataValues::xColumns},
                                          {"y", &PlotMetaDataValues::yColumns},
                                          {"z", &PlotMetaDataValues::zColumns},
                                          {"parameters", &PlotMetaDataValues::parameterColumns}};

struct TextName
{
  const char* name;
  std::string PlotMetaDataValues::*text;
};

constexpr TextName texts[] = {{"title", &PlotMetaDataValues::title},
                              {"xLabel", &PlotMetaDataValues::xLabel},
                              {"yLabel", &PlotMetaDataValues::yLabel},
                              {"source", &PlotMetaDataValues::sourceName}};

template <typename List>
QJsonArray arrayOf(const List& list)
{
  QJsonArray array;
  for (const int value : list)
    array.append(value);
  return array;
}

/// JSON has no infinity, which bounds may be: null stands for it.
QJsonValue boundValue(double bound)
{
  return std::isfinite(bound) ? QJsonValue(bound) : QJsonValue();
}

QString shortText(const std::string& text)
{
  return QString::fromStdString(text).left(mostCharacters);
}

std::string readText(const QJsonValue& value)
{
  return value.toString().left(mostCharacters).toStdString();
}

QJsonObject objectOf(const CoordinateWindow& window)
{
  return {
      {"xMin", window.xMin}, {"yMin", window.yMin}, {"xMax", window.xMax}, {"yMax", window.yMax}};
}

QJsonObject objectOf(const PlotMetaData& plot)
{
  QJsonObject object;
  const ViewerStyle* style = findStyle(plot.getPlotStyle());
  object["style"] = QLatin1String(style ? style->name : "");
  for (const Switch& option : switches)
    object[QLatin1String(option.name)] = (plot.*option.get)();
  for (const Number& option : numbers)
    object[QLatin1String(option.name)] = (plot.*option.get)();
  for (const ColumnListName& entry : columnLists)
    object[QLatin1String(entry.name)] = arrayOf(plot.*entry.list);
  for (const TextName& entry : texts)
    object[QLatin1String(entry.name)] = shortText(plot.*entry.text);
  object["stride"] = plot.getStride();
  object["sourceId"] = plot.sourceId;
  object["colorColumn"] = plot.colorColumn;
  object["marker"] = plot.markerStyle;
  object["pointSize"] = plot.pointSize;
  object["color"] = arrayOf(plot.color);
  object["solidColor"] = plot.solidColor;
  if (plot.storedCoordinateWindow.valid)
    object["window"] = objectOf(plot.storedCoordinateWindow);
  return object;
}

/// Whether an axis can show a range: its length must be a number too.
bool isExtent(double lower, double upper)
{
  return lower < upper && std::isfinite(upper - lower);
}

void readColor(const QJsonArray& array, std::array<int, 4>& color)
{
  for (int i = 0; i < 4 && array.size() == 4; ++i)
    color[static_cast<std::size_t>(i)] = std::clamp(array.at(i).toInt(), 0, 255);
}

void readWindow(const QJsonObject& stored, CoordinateWindow& window)
{
  const auto limit = [&stored](const char* name)
  { return stored[QLatin1String(name)].toDouble(std::numeric_limits<double>::quiet_NaN()); };
  const CoordinateWindow read{limit("xMin"), limit("yMin"), limit("xMax"), limit("yMax"), true};
  if (isExtent(read.xMin, read.xMax) && isExtent(read.yMin, read.yMax))
    window = read;
}

void readPlot(const QJsonObject& object, int columns, PlotMetaData& plot)
{
  const SettingsReader reader(object, columns);
  if (const ViewerStyle* style = findStyle(object["style"].toString().toStdString()))
    plot.setPlotStyle(style->style);
  for (const Switch& option : switches)
    (plot.*option.set)(object[QLatin1String(option.name)].toBool((plot.*option.get)()));
  for (const Number& option : numbers)
    (plot.*
     option.set)(reader.number(option.name, (plot.*option.get)(), option.lowest, option.highest));
  for (const ColumnListName& entry : columnLists)
    reader.readColumns(entry.name, plot.*entry.list);
  for (const TextName& entry : texts)
    plot.*entry.text = readText(object[QLatin1String(entry.name)]);
  plot.setStride(reader.whole("stride", plot.getStride(), 1, std::numeric_limits<int>::max()));
  plot.sourceId =
      reader.whole("sourceId", 0, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
  plot.colorColumn = reader.whole("colorColumn", -1, -1, columns - 1);
  plot.markerStyle = reader.whole("marker", plot.markerStyle, 0, lastMarker);
  plot.pointSize = reader.number("pointSize", plot.pointSize, 0.0, largestSize);
  plot.solidColor = object["solidColor"].toBool(plot.solidColor);
  readColor(object["color"].toArray(), plot.color);
  readWindow(object["window"].toObject(), plot.storedCoordinateWindow);
}

std::vector<std::pair<double, double>> readRanges(const QJsonArray& array, int columns)
{
  std::vector<std::pair<double, double>> ranges;
  for (const QJsonValue range : array)
  {
    if (static_cast<int>(ranges.size()) >= columns)
      break;
    const QJsonArray bounds = range.toArray();
    ranges.emplace_back(bounds.at(0).toDouble(-infinity), bounds.at(1).toDouble(infinity));
  }
  return ranges;
}

} // namespace

QByteArray settingsText(const SessionSettings& settings)
{
  QJsonArray ranges;
  for (const auto& [lower, upper] : settings.parameterRanges)
    ranges.append(QJsonArray{boundValue(lower), boundValue(upper)});
  QJsonObject object;
  object["name"] = shortText(settings.name);
  object["pointsPerRun"] = settings.pointsPerRun;
  object["parameterRanges"] = ranges;
  object["normalised"] = arrayOf(settings.normalised);
  object["groups"] = objectOf(settings.groups);
  object["kept"] = arrayOf(settings.kept);
  object["words"] = wholeWords(settings.words);
  if (!settings.asked.empty())
    object["asked"] = arrayOfNames(settings.asked);
  if (!settings.steps.texts.empty() || settings.steps.forgotten > 0)
    object["steps"] = objectOf(settings.steps);
  object["views"] = objectOf(settings.views);
  if (const QJsonObject import = objectOf(settings.import); !import.isEmpty())
    object["import"] = import;
  if (const QJsonObject shown = objectOf(settings.shown); !shown.isEmpty())
    object["shown"] = shown;
  if (!settings.origin.path.isEmpty())
    object["origin"] = objectOf(settings.origin);
  object["legend"] = settings.legend;
  object["logY"] = settings.logY;
  object["tests"] = objectOf(settings.tests);
  object["windowLogX"] = settings.windowScales.xLog;
  object["windowLogY"] = settings.windowScales.yLog;
  object["plot"] = objectOf(*settings.plot);
  return QJsonDocument(object).toJson();
}

Result<SessionSettings> readSettings(const QByteArray& text, int columns)
{
  const QJsonDocument document = QJsonDocument::fromJson(text);
  if (!document.isObject())
    return Result<SessionSettings>::failed(
        translated("SessionFile", "the session's settings are damaged"));
  const QJsonObject object = document.object();
  SessionSettings settings;
  const SettingsReader reader(object, columns);
  settings.name = readText(object["name"]);
  settings.pointsPerRun = reader.whole("pointsPerRun", 0, 0, std::numeric_limits<int>::max());
  settings.parameterRanges = readRanges(object["parameterRanges"].toArray(), columns);
  reader.readColumns("normalised", settings.normalised);
  settings.groups = readGroups(object["groups"].toObject());
  settings.kept = readKeptSelections(object["kept"].toArray());
  settings.words = wholeWords(object["words"].toString().toStdString()).toStdString();
  settings.asked = readNames(object["asked"].toArray());
  settings.steps = readSteps(object["steps"].toObject());
  settings.views = readViews(object["views"].toObject(), columns);
  settings.import = readImport(object["import"].toObject());
  settings.shown = readSessionColumns(object["shown"].toObject(), columns);
  settings.origin = readOrigin(object["origin"].toObject());
  settings.legend = object["legend"].toBool();
  settings.logY = object["logY"].toBool();
  settings.tests = readTests(object["tests"].toObject());
  settings.windowScales = {object["windowLogX"].toBool(), object["windowLogY"].toBool()};
  readPlot(object["plot"].toObject(), columns, *settings.plot);
  return settings;
}

void copySettings(const PlotMetaData& from, PlotMetaData& to)
{
  const bool blocked = to.blockSignals(true);
  static_cast<PlotMetaDataValues&>(to) = from;
  to.setPlotStyle(from.getPlotStyle());
  to.setStride(from.getStride());
  for (const Switch& option : switches)
    (to.*option.set)((from.*option.get)());
  for (const Number& option : numbers)
    (to.*option.set)((from.*option.get)());
  to.blockSignals(blocked);
}

} // namespace Talmesh::app
