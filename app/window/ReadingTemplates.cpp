#include "app/window/ReadingTemplates.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QSettings>
#include <QVariantMap>

#include <array>
#include <utility>
#include <vector>

namespace Talmesh::app
{

namespace
{

const QString group = QStringLiteral("readings");
const QString whenKept = QStringLiteral("kept");

using Text = std::string ImportRequest::*;
using Names = std::vector<std::string> ImportRequest::*;

/// A table of parameters belongs to its files, not to others with such a header.
constexpr std::array<std::pair<const char*, Text>, 7> texts = {{{"layout", &ImportRequest::layout},
                                                                {"time", &ImportRequest::time},
                                                                {"item", &ImportRequest::item},
                                                                {"value", &ImportRequest::value},
                                                                {"sheet", &ImportRequest::sheet},
                                                                {"files", &ImportRequest::files},
                                                                {"join", &ImportRequest::join}}};
constexpr std::array<std::pair<const char*, Names>, 5> lists = {
    {{"run", &ImportRequest::run},
     {"measured", &ImportRequest::measured},
     {"parameter", &ImportRequest::parameters},
     {"condition", &ImportRequest::conditions},
     {"ignore", &ImportRequest::ignored}}};
constexpr std::array<std::pair<const char*, std::optional<char> ImportRequest::*>, 2> marks = {
    {{"separator", &ImportRequest::separator}, {"decimal", &ImportRequest::decimalMark}}};

QVariantMap settingsOf(const ImportRequest& request)
{
  QVariantMap settings;
  for (const auto& [name, field] : texts)
    settings.insert(name, QString::fromStdString(request.*field));
  for (const auto& [name, field] : lists)
  {
    QStringList names;
    for (const std::string& column : request.*field)
      names.append(QString::fromStdString(column));
    settings.insert(name, names);
  }
  for (const auto& [name, field] : marks)
    settings.insert(name, request.*field ? QString(QLatin1Char(*(request.*field))) : QString());
  if (request.unequal)
    settings.insert(QStringLiteral("unequal"),
                    *request.unequal == UnequalRuns::Union ? "union" : "interpolate");
  return settings;
}

ImportRequest requestOf(const QVariantMap& settings)
{
  ImportRequest request;
  for (const auto& [name, field] : texts)
    request.*field = settings.value(name).toString().toStdString();
  for (const auto& [name, field] : lists)
    for (const QString& column : settings.value(name).toStringList())
      (request.*field).push_back(column.toStdString());
  for (const auto& [name, field] : marks)
    if (const QString mark = settings.value(name).toString(); mark.size() == 1)
      request.*field = mark.front().toLatin1();
  const QString unequal = settings.value(QStringLiteral("unequal")).toString();
  if (!unequal.isEmpty())
    request.unequal =
        unequal == QLatin1String("union") ? UnequalRuns::Union : UnequalRuns::Interpolate;
  return request;
}

/// Names of columns may hold what keys of settings may not.
QString settingsKey(const std::string& key)
{
  const QByteArray bytes(key.data(), static_cast<int>(key.size()));
  return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
}

void forgetOldest(QSettings& settings)
{
  QString oldest;
  qint64 since = 0;
  const QStringList keys = settings.childKeys();
  for (const QString& key : keys)
  {
    const qint64 when = settings.value(key).toMap().value(whenKept).toLongLong();
    if (oldest.isEmpty() || when < since)
    {
      oldest = key;
      since = when;
    }
  }
  if (keys.size() > ReadingTemplates::most)
    settings.remove(oldest);
}

} // namespace

std::string ReadingTemplates::keyOf(const TableSample& sample, bool several)
{
  const Result<FirstRows> rows = firstRowsOf(sample, {});
  if (!rows.hasValue() || rows.value().roles.headers.empty())
    return {};
  return (several ? "several\n" : "one\n") + headerKeyOf(rows.value());
}

ReadingTemplates ReadingTemplates::kept()
{
  ReadingTemplates templates;
  QSettings settings;
  settings.beginGroup(group);
  for (const QString& key : settings.childKeys())
    templates.requests[key.toStdString()] = requestOf(settings.value(key).toMap());
  return templates;
}

const ImportRequest* ReadingTemplates::find(const std::string& key) const
{
  const auto found = requests.find(settingsKey(key).toStdString());
  return found == requests.end() ? nullptr : &found->second;
}

const ImportRequest* ReadingTemplates::findFor(const QStringList& paths,
                                               const ImportProgress& progress) const
{
  if (isEmpty())
    return nullptr;
  const Result<TableSample> sample = readTableSample(paths, {}, progress);
  if (!sample.hasValue())
    return nullptr;
  const std::string key = keyOf(sample.value(), paths.size() > 1);
  return key.empty() ? nullptr : find(key);
}

void ReadingTemplates::keep(const std::string& key, const ImportRequest& request)
{
  QSettings settings;
  settings.beginGroup(group);
  QVariantMap kept = settingsOf(request);
  kept.insert(whenKept, QDateTime::currentMSecsSinceEpoch());
  settings.setValue(settingsKey(key), kept);
  forgetOldest(settings);
}

void ReadingTemplates::forget(const std::string& key)
{
  QSettings settings;
  settings.beginGroup(group);
  settings.remove(settingsKey(key));
}

} // namespace Talmesh::app
