#include "app/session/StudyFile.h"

#include "app/formats/FileFormats.h"
#include "app/formats/PlainText.h"
#include "app/import/ColumnTable.h"
#include "app/import/RunTableImport.h"
#include "app/import/TranslatedText.h"
#include "app/session/Session.h"
#include "app/session/SessionFile.h"

#include <QDir>
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

/// Reads small files that stand beside a table.
FileBeside besideOf(const QString& path)
{
  const QDir folder = QFileInfo(path).dir();
  return [folder](const std::string& name) -> std::optional<std::string>
  {
    const Result<std::string> read =
        readPlainText(folder.filePath(QString::fromStdString(name)), {});
    return read.hasValue() ? std::make_optional(read.value()) : std::nullopt;
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

Result<FileContent> readContent(const QString& path, const ImportProgress& progress)
{
  const ImportProgress reading = [&progress](double done)
  { return !progress || progress(readingPart * done); };
  if (const FileFormat* format = formatOf(path))
    return readFormat(*format, path, {}, reading);
  Result<std::string> text = readPlainText(path, reading);
  if (!text.hasValue())
    return Result<FileContent>::without(text);
  FileContent content;
  content.text = std::move(text.value());
  return content;
}

Result<OpenedStudy> openTable(const QString& path, const ImportTask& task, ImportReport& report)
{
  Result<FileContent> content = readContent(path, task.progress);
  if (!content.hasValue())
    return Result<OpenedStudy>::without(content);
  const std::vector<std::string> notes = content.value().notes;
  report.warnings.insert(report.warnings.end(), notes.begin(), notes.end());
  const Result<ImportedTable> imported = importContent(content.value(), task, report);
  if (!imported.hasValue())
    return Result<OpenedStudy>::without(imported);
  OpenedStudy opened;
  opened.study.runs = imported.value().runs;
  opened.study.table = imported.value().table;
  opened.study.categories = imported.value().categories;
  opened.notes = notes;
  opened.notes.insert(opened.notes.end(), imported.value().notes.begin(),
                      imported.value().notes.end());
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

Result<OpenedStudy> open(const QString& path, const ImportTask& task, ImportReport& report)
{
  if (isSessionFile(path))
    return openFromSession(path, task.progress);
  return openTable(path, task, report);
}

/// What is thrown becomes an error.
Result<OpenedStudy> openOrSayWhyNot(const QString& path, const ImportTask& task,
                                    ImportReport& report)
{
  try
  {
    return open(path, task, report);
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

Result<OpenedStudy> openStudyFile(const QString& path, const ImportProgress& progress,
                                  const ImportRequest& request, ImportReport* report)
{
  ImportReport untold;
  Result<OpenedStudy> opened =
      openOrSayWhyNot(path, {request, progress, {}, besideOf(path)}, report ? *report : untold);
  if (!opened.error().empty())
    return Result<OpenedStudy>::failed(path.toStdString() + ": " + opened.error());
  if (opened.hasValue() && !opened.value().session)
    opened.value().study.name = QFileInfo(path).fileName().toStdString();
  return opened;
}

} // namespace Talmesh::app
