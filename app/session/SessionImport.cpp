#include "app/session/SessionImport.h"

#include "app/session/SessionReading.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QString>
#include <QtEndian>

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

namespace Talmesh::app
{

namespace
{

constexpr std::size_t mostBytes = std::size_t{1} << 20;

std::size_t bytesOf(const Category& category)
{
  std::size_t bytes = category.column.size();
  for (const std::string& level : category.levels)
    bytes += level.size();
  return bytes;
}

/// Times as doubles of big-endian bytes, like those of the dump.
QString packed(const std::vector<double>& times)
{
  QByteArray bytes(static_cast<int>(times.size() * sizeof(double)), '\0');
  qToBigEndian<double>(times.data(), static_cast<qsizetype>(times.size()), bytes.data());
  return QString::fromLatin1(bytes.toBase64());
}

std::vector<double> unpacked(const QString& text)
{
  const QByteArray bytes = QByteArray::fromBase64(text.toLatin1());
  std::vector<double> times(static_cast<std::size_t>(bytes.size()) / sizeof(double));
  qFromBigEndian<double>(bytes.constData(), static_cast<qsizetype>(times.size()), times.data());
  return times;
}

QJsonObject objectOf(const MeasuredTimes& measured)
{
  QJsonArray starts;
  for (const std::size_t start : measured.starts)
    starts.append(static_cast<double>(start));
  return {{"starts", starts}, {"times", packed(measured.times)}};
}

/// Null unless the times are those of runs one after another.
std::shared_ptr<const MeasuredTimes> readMeasured(const QJsonObject& object)
{
  auto measured = std::make_shared<MeasuredTimes>();
  measured->times = unpacked(object["times"].toString());
  for (const QJsonValue start : object["starts"].toArray())
  {
    const double place = start.toDouble(-1.0);
    if (place < 0.0 || place > static_cast<double>(measured->times.size()))
      return nullptr;
    measured->starts.push_back(static_cast<std::size_t>(place));
  }
  const bool sound = measured->starts.size() > 1 && measured->starts.front() == 0 &&
                     measured->starts.back() == measured->times.size() &&
                     std::is_sorted(measured->starts.begin(), measured->starts.end());
  return sound ? measured : nullptr;
}

} // namespace

QJsonObject objectOf(const SessionImport& import)
{
  QJsonObject object;
  QJsonArray categories;
  std::size_t bytes = 0;
  for (const Category& category : import.categories)
  {
    bytes += bytesOf(category);
    if (bytes > mostBytes)
      break;
    QJsonArray levels;
    for (const std::string& level : category.levels)
      levels.append(QString::fromStdString(level));
    categories.append(
        QJsonObject{{"column", QString::fromStdString(category.column)}, {"levels", levels}});
  }
  if (!categories.isEmpty())
    object["categories"] = categories;
  if (import.measured && import.measured->times.size() * sizeof(double) <= mostBytes)
    object["measured"] = objectOf(*import.measured);
  if (import.reading)
  {
    const QJsonObject reading = objectOf(*import.reading);
    if (QJsonDocument(reading).toJson().size() <= static_cast<int>(mostBytes))
      object["reading"] = reading;
  }
  return object;
}

SessionImport readImport(const QJsonObject& object)
{
  SessionImport import;
  for (const QJsonValue value : object["categories"].toArray())
  {
    Category category;
    category.column = value.toObject()["column"].toString().toStdString();
    for (const QJsonValue level : value.toObject()["levels"].toArray())
      category.levels.push_back(level.toString().toStdString());
    if (!category.column.empty() && !category.levels.empty())
      import.categories.push_back(std::move(category));
  }
  if (object["measured"].isObject())
    import.measured = readMeasured(object["measured"].toObject());
  if (object["reading"].isObject())
    import.reading =
        std::make_shared<const ImportRequest>(readReading(object["reading"].toObject()));
  return import;
}

} // namespace Talmesh::app
