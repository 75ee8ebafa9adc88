#include "app/import/ImportReport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

#include <utility>

namespace Talmesh::app
{

namespace
{

QJsonArray listOf(const std::vector<std::string>& texts)
{
  QJsonArray list;
  for (const std::string& text : texts)
    list.append(QString::fromStdString(text));
  return list;
}

QJsonValue numberOf(std::size_t count)
{
  return static_cast<double>(count);
}

QJsonValue textOrNull(const std::string& text)
{
  return text.empty() ? QJsonValue() : QJsonValue(QString::fromStdString(text));
}

QJsonValue pointsOf(const ImportReport& report)
{
  if (report.fewestPoints == report.mostPoints)
    return numberOf(report.mostPoints);
  return QJsonArray{numberOf(report.fewestPoints), numberOf(report.mostPoints)};
}

QJsonArray candidatesOf(const ImportReport& report)
{
  QJsonArray list;
  for (const ImportCandidate& candidate : report.candidates)
    list.append(QJsonObject{{"layout", textOrNull(candidate.layout)},
                            {"option", QString::fromStdString(candidate.option)},
                            {"score", candidate.score},
                            {"reason", QString::fromStdString(candidate.reason)}});
  return list;
}

/// Qt writes objects and lists only.
std::string textOf(const QJsonValue& value)
{
  const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
  return list.mid(1, list.size() - 2).toStdString();
}

} // namespace

std::string jsonOf(const ImportReport& report)
{
  // An object of Qt would sort its keys.
  std::vector<std::pair<const char*, QJsonValue>> entries = {
      {"layout", textOrNull(report.layout)},
      {"runs", numberOf(report.runs)},
      {"points", pointsOf(report)},
      {"time", textOrNull(report.time)},
      {"items", listOf(report.items)},
      {"parameters", listOf(report.parameters)},
      {"categories", listOf(report.categories)},
      {"ignored", listOf(report.ignored)},
      {"warnings", listOf(report.warnings)},
      {"reasons", listOf(report.reasons)}};
  if (report.isUnsure())
    entries.emplace_back("candidates", candidatesOf(report));
  std::string json = "{";
  for (const auto& [key, value] : entries)
    json += std::string(json.size() == 1 ? "\n" : ",\n") + "  \"" + key + "\": " + textOf(value);
  return json + "\n}\n";
}

} // namespace Talmesh::app
