#include "app/session/RunSelectionFile.h"

#include "widgets/FileWriter.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <limits>

namespace Talmesh::app
{

namespace
{

const QString formatName = QStringLiteral("talmesh-runs");
constexpr int formatVersion = 1;
/// More than ten million run indices take; a larger file was not written here.
constexpr qint64 largestFile = 128 * 1024 * 1024;

QByteArray textOf(const ParameterSelection& selection)
{
  QJsonArray runs;
  for (const int run : selection.runs)
    runs.append(run);
  QJsonObject object;
  object["format"] = formatName;
  object["version"] = formatVersion;
  object["source"] = QString::fromStdString(selection.sourceName);
  object["sourceId"] = selection.sourceId;
  object["label"] = QString::fromStdString(selection.label);
  object["runs"] = runs;
  return QJsonDocument(object).toJson();
}

bool isInteger(const QJsonValue& value)
{
  const double number = value.toDouble(std::numeric_limits<double>::quiet_NaN());
  return std::floor(number) == number && number >= std::numeric_limits<int>::min() &&
         number <= std::numeric_limits<int>::max();
}

/// @return why the array is no list of runs; empty on success
QString readRuns(const QJsonArray& array, std::set<int>& runs)
{
  for (int i = 0; i < array.size(); ++i)
  {
    const QJsonValue value = array.at(i);
    if (!isInteger(value))
      return QCoreApplication::translate("RunSelectionFile",
                                         "entry %1 of its runs is not a whole number")
          .arg(i + 1);
    runs.insert(static_cast<int>(value.toDouble()));
  }
  return {};
}

/// @return why the text is no selection; empty on success
QString readText(const QByteArray& text, ParameterSelection& selection)
{
  QJsonParseError problem;
  const QJsonDocument document = QJsonDocument::fromJson(text, &problem);
  if (problem.error != QJsonParseError::NoError)
    return QCoreApplication::translate("RunSelectionFile", "not a JSON file: %1 at byte %2")
        .arg(problem.errorString())
        .arg(problem.offset);
  const QJsonObject object = document.object();
  if (object["format"].toString() != formatName)
    return QCoreApplication::translate("RunSelectionFile", "not a selection of runs");
  if (object["version"].toDouble() != formatVersion)
    return QCoreApplication::translate(
        "RunSelectionFile", "a selection of runs in a version that this program does not know");
  if (!object["runs"].isArray())
    return QCoreApplication::translate("RunSelectionFile", "a selection without a list of runs");
  selection.sourceName = object["source"].toString().toStdString();
  selection.sourceId = object["sourceId"].toInt();
  selection.label = object["label"].toString().toStdString();
  return readRuns(object["runs"].toArray(), selection.runs);
}

} // namespace

std::string saveRunSelection(const QString& path, const ParameterSelection& selection)
{
  const QByteArray text = textOf(selection);
  const QString reason = writeFile(path, text.constData(), text.size());
  if (reason.isEmpty())
    return {};
  return QCoreApplication::translate("RunSelectionFile", "%1: cannot be written: %2")
      .arg(path, reason)
      .toStdString();
}

Result<ParameterSelection> loadRunSelection(const QString& path)
{
  const auto failure = [&path](const QString& reason)
  { return Result<ParameterSelection>::failed(QString("%1: %2").arg(path, reason).toStdString()); };
  QFile file(path);
  // Opening a folder succeeds, and reading a pipe may never end.
  if (QFileInfo::exists(path) && !QFileInfo(path).isFile())
    return failure(QCoreApplication::translate("RunSelectionFile", "not a file"));
  if (!file.open(QIODevice::ReadOnly))
    return failure(QCoreApplication::translate("RunSelectionFile", "cannot be read: %1")
                       .arg(file.errorString()));
  const QByteArray text = file.read(largestFile + 1);
  if (file.error() != QFileDevice::NoError)
    return failure(QCoreApplication::translate("RunSelectionFile", "cannot be read: %1")
                       .arg(file.errorString()));
  if (text.size() > largestFile)
    return failure(
        QCoreApplication::translate("RunSelectionFile", "too large for a selection of runs"));
  ParameterSelection selection;
  const QString reason = readText(text, selection);
  return reason.isEmpty() ? Result<ParameterSelection>(selection) : failure(reason);
}

} // namespace Talmesh::app
