#include "app/SessionSettings.h"

#include "app/StyleNames.h"
#include "app/TranslatedText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

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
  const StyleName* style = findStyle(plot.getPlotStyle());
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

/// Reads single values of one JSON object.
class SettingsReader
{
public:
  SettingsReader(const QJsonObject& object_, int columns_)
      : object(object_)
      , columns(columns_)
  {
  }

  void read(PlotMetaData& plot) const
  {
    if (const StyleName* style = findStyle(object["style"].toString().toStdString()))
      plot.setPlotStyle(style->style);
    for (const Switch& option : switches)
      (plot.*option.set)(object[QLatin1String(option.name)].toBool((plot.*option.get)()));
    for (const Number& option : numbers)
      (plot.*option.set)(number(option.name, (plot.*option.get)(), option.lowest, option.highest));
    for (const ColumnListName& entry : columnLists)
      readColumns(entry.name, plot.*entry.list);
    for (const TextName& entry : texts)
      plot.*entry.text = readText(object[QLatin1String(entry.name)]);
    plot.setStride(whole("stride", plot.getStride(), 1, std::numeric_limits<int>::max()));
    plot.sourceId =
        whole("sourceId", 0, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    plot.colorColumn = whole("colorColumn", -1, -1, columns - 1);
    plot.markerStyle = whole("marker", plot.markerStyle, 0, lastMarker);
    plot.pointSize = number("pointSize", plot.pointSize, 0.0, largestSize);
    plot.solidColor = object["solidColor"].toBool(plot.solidColor);
    readColor(plot.color);
    readWindow(plot.storedCoordinateWindow);
  }

  int whole(const char* name, int fallback, int lowest, int highest) const
  {
    const double value = number(name, fallback, lowest, highest);
    return std::floor(value) == value ? static_cast<int>(value) : fallback;
  }

  void readColumns(const char* name, std::vector<int>& list) const
  {
    const QJsonArray array = object[QLatin1String(name)].toArray();
    if (array.isEmpty() && !list.empty())
      return;
    list.clear();
    std::set<int> listed;
    for (const QJsonValue value : array)
    {
      const double number = value.toDouble(-1.0);
      const bool exists = number >= 0.0 && number < columns && std::floor(number) == number;
      const int column = exists ? static_cast<int>(number) : -1;
      // A chart for each repetition would make much of a small file.
      if (listed.insert(column).second)
        list.push_back(column);
    }
  }

private:
  double number(const char* name, double fallback, double lowest, double highest) const
  {
    const double value = object[QLatin1String(name)].toDouble(fallback);
    return value >= lowest && value <= highest ? value : fallback;
  }

  void readColor(std::array<int, 4>& color) const
  {
    const QJsonArray array = object["color"].toArray();
    for (int i = 0; i < 4 && array.size() == 4; ++i)
      color[static_cast<std::size_t>(i)] = std::clamp(array.at(i).toInt(), 0, 255);
  }

  void readWindow(CoordinateWindow& window) const
  {
    const QJsonObject stored = object["window"].toObject();
    const auto limit = [&stored](const char* name)
    { return stored[QLatin1String(name)].toDouble(std::numeric_limits<double>::quiet_NaN()); };
    const CoordinateWindow read{limit("xMin"), limit("yMin"), limit("xMax"), limit("yMax"), true};
    if (isExtent(read.xMin, read.xMax) && isExtent(read.yMin, read.yMax))
      window = read;
  }

  const QJsonObject& object;
  int columns;
};

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
  object["legend"] = settings.legend;
  object["logY"] = settings.logY;
  object["windowLogX"] = settings.windowScales.xLog;
  object["windowLogY"] = settings.windowScales.yLog;
  object["plot"] = objectOf(*settings.plot);
  return QJsonDocument(object).toJson();
}

ReadSessionSettings readSettings(const QByteArray& text, int columns)
{
  ReadSessionSettings read;
  const QJsonDocument document = QJsonDocument::fromJson(text);
  if (!document.isObject())
  {
    read.error = translated("SessionFile", "the session's settings are damaged");
    return read;
  }
  const QJsonObject object = document.object();
  SessionSettings& settings = read.settings;
  settings.name = readText(object["name"]);
  settings.pointsPerRun =
      SettingsReader(object, columns).whole("pointsPerRun", 0, 0, std::numeric_limits<int>::max());
  settings.parameterRanges = readRanges(object["parameterRanges"].toArray(), columns);
  SettingsReader(object, columns).readColumns("normalised", settings.normalised);
  settings.legend = object["legend"].toBool();
  settings.logY = object["logY"].toBool();
  settings.windowScales = {object["windowLogX"].toBool(), object["windowLogY"].toBool()};
  const QJsonObject plot = object["plot"].toObject();
  SettingsReader(plot, columns).read(*settings.plot);
  return read;
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
