#include "app/session/StudyFile.h"

#include "app/formats/PlainText.h"
#include "app/import/ColumnTable.h"
#include "app/import/RunTableImport.h"
#include "app/import/TranslatedText.h"
#include "app/session/RunFiles.h"
#include "app/session/Session.h"
#include "app/session/SessionFile.h"
#include "app/session/TableFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <exception>
#include <new>
#include <optional>
#include <utility>

namespace Talmesh::app
{

namespace
{

/// The part of the progress that reading the bytes takes.
constexpr double readingPart = 0.1;

/// What collections of problems call the tables beside "measurementData_X.tsv":
/// "experimentalCondition_X.tsv" for conditions.tsv, "parameters_X.tsv" for parameters.tsv. Empty
/// beside tables of other names.
QString nameInCollection(const QString& table, const QString& beside)
{
  const QString start = QStringLiteral("measurementData");
  if (!table.startsWith(start))
    return {};
  const QString front = beside == QLatin1String("conditions.tsv")
                            ? QStringLiteral("experimentalCondition")
                            : beside.section(QLatin1Char('.'), 0, 0);
  return front + table.mid(start.size());
}

/// Reads small files that stand beside a table.
FileBeside besideOf(const QString& path)
{
  const QFileInfo table(path);
  return [table](const std::string& name) -> std::optional<std::string>
  {
    const QString plain = QString::fromStdString(name);
    for (const QString& beside : {plain, nameInCollection(table.fileName(), plain)})
    {
      if (beside.isEmpty())
        continue;
      const Result<std::string> read = readPlainText(table.dir().filePath(beside), {});
      if (read.hasValue())
        return read.value();
    }
    return std::nullopt;
  };
}

/// The part of the progress that is left for what follows the reading.
ImportProgress laterPart(const ImportProgress& progress)
{
  return [&progress](double done)
  { return !progress || progress(readingPart + (1.0 - readingPart) * done); };
}

Result<ImportedTable> importContent(FileContent& content, ImportTask task, ImportReport& report)
{
  const ImportProgress progress = task.progress;
  task.progress = laterPart(progress);
  if (!content.isText())
    return importTable(tableOf(std::move(content.columns), task.request), task, report);
  PassedPages pages(content.text);
  task.passed = [&pages](std::size_t passed) { pages.pass(passed); };
  return importTable(content.text, task, report);
}

/// A table of one file.
Result<ImportedTable> importFile(const QString& path, const ImportTask& task, ImportReport& report)
{
  const ImportProgress& progress = task.progress;
  Result<FileContent> content =
      readTableFile(path, task.request,
                    [&progress](double done) { return !progress || progress(readingPart * done); });
  if (!content.hasValue())
    return Result<ImportedTable>::without(content);
  ImportTask known = task;
  known.isScan = path.endsWith(QLatin1String(".scan"), Qt::CaseInsensitive) ||
                 path.endsWith(QLatin1String(".scan.gz"), Qt::CaseInsensitive);
  const std::vector<std::string>& notes = content.value().notes;
  report.warnings.insert(report.warnings.end(), notes.begin(), notes.end());
  return importContent(content.value(), known, report);
}

Result<OpenedStudy> openTable(const QStringList& paths, const ImportTask& task,
                              ImportReport& report)
{
  const bool several = paths.size() > 1 || !task.request.parameterTable.empty();
  const Result<ImportedTable> imported =
      several ? importFiles(paths, task, report) : importFile(paths.front(), task, report);
  if (!imported.hasValue())
    return Result<OpenedStudy>::without(imported);
  OpenedStudy opened;
  opened.study.runs = imported.value().runs;
  opened.study.table = imported.value().table;
  opened.study.categories = imported.value().categories;
  opened.study.measured = imported.value().measured;
  opened.study.reading = std::make_shared<const ImportRequest>(report.settled);
  opened.notes = imported.value().notes;
  return opened;
}

Result<OpenedStudy> openFromSession(const QString& path, const ImportProgress& progress)
{
  const Result<OpenedSession> session = openSession(path, progress);
  if (!session.hasValue())
    return Result<OpenedStudy>::without(session);
  OpenedStudy opened;
  opened.study = session.value().study;
  opened.session = session.value().session;
  return opened;
}

Result<OpenedStudy> open(const QStringList& paths, const ImportTask& task, ImportReport& report)
{
  if (paths.size() == 1 && isSessionFile(paths.front()))
    return openFromSession(paths.front(), task.progress);
  return openTable(paths, task, report);
}

/// What several files are called together.
std::string nameOf(const QStringList& files)
{
  return withValues(translated("StudyFile", "%1 files of %2"),
                    {std::to_string(files.size()),
                     QFileInfo(QFileInfo(files.front()).absolutePath()).fileName().toStdString()});
}

/// What is thrown becomes an error.
Result<OpenedStudy> openOrSayWhyNot(const QStringList& paths, const ImportTask& task,
                                    ImportReport& report)
{
  try
  {
    return open(paths, task, report);
  }
  catch (const std::bad_alloc&)
  {
    return Result<OpenedStudy>::failed(
        translated("StudyFile", "the table does not fit into memory"));
  }
  catch (const std::exception& failure)
  {
    return Result<OpenedStudy>::failed(
        withValues(translated("StudyFile", "cannot be opened: %1"), {failure.what()}));
  }
}

} // namespace

Result<OpenedStudy> openStudyFiles(const QStringList& paths, const ImportProgress& progress,
                                   const ImportRequest& request, ImportReport* report)
{
  ImportReport untold;
  const QString& first = paths.front();
  const QStringList files = namedFiles(paths);
  Result<OpenedStudy> opened =
      openOrSayWhyNot(files, {request, progress, {}, besideOf(first)}, report ? *report : untold);
  const bool several = files.size() > 1;
  if (!opened.error().empty())
    return Result<OpenedStudy>::failed(
        (several && paths.size() > 1 ? QFileInfo(first).path() : first).toStdString() + ": " +
        opened.error());
  if (opened.hasValue() && !opened.value().session)
    opened.value().study.name =
        several ? nameOf(files) : QFileInfo(files.front()).fileName().toStdString();
  return opened;
}

QStringList studyPaths(const std::string& file, const std::vector<std::string>& moreFiles)
{
  QStringList paths{QFile::decodeName(file.c_str())};
  for (const std::string& further : moreFiles)
    paths.append(QFile::decodeName(further.c_str()));
  return paths;
}

Result<OpenedStudy> openStudyFile(const QString& path, const ImportProgress& progress,
                                  const ImportRequest& request, ImportReport* report)
{
  return openStudyFiles({path}, progress, request, report);
}

} // namespace Talmesh::app
