#include "app/session/RunFiles.h"

#include "app/formats/FileFormats.h"
#include "app/import/ColumnTable.h"
#include "app/import/FileJoin.h"
#include "app/import/NameParts.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"
#include "app/session/SessionFile.h"
#include "app/session/TableFile.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace Talmesh::app
{

namespace
{

using Imported = Result<ImportedTable>;

constexpr int mostFiles = 20000;
/// The part of the progress that reading the files takes.
constexpr double readingPart = 0.7;

QStringList filesIn(const QDir& folder, const QStringList& patterns)
{
  QStringList names = folder.entryList(patterns, QDir::Files);
  std::sort(names.begin(), names.end(),
            [](const QString& one, const QString& other)
            { return comesBeforeInNumbers(one.toStdString(), other.toStdString()); });
  QStringList paths;
  for (const QString& name : names)
    paths.append(folder.filePath(name));
  return paths;
}

Result<JoinedFile> readFile(const QString& path, const ImportTask& task, ImportReport& report)
{
  using File = Result<JoinedFile>;
  const std::string name = QFileInfo(path).fileName().toStdString();
  const auto refused = [&name](const std::string& error)
  { return File::failed(name + ": " + error); };
  if (isSessionFile(path))
    return refused(translated("RunFiles", "a session is opened alone"));
  Result<FileContent> content = readTableFile(path, task.request, {});
  if (!content.hasValue())
    return content.error().empty() ? File::cancelled() : refused(content.error());
  JoinedFile file;
  file.name = name;
  if (!content.value().isText())
  {
    file.columns = std::move(content.value().columns);
    return file;
  }
  Result<TableText> text = readTableText(content.value().text, task.request, report);
  if (!text.hasValue())
    return refused(text.error());
  file.columns = columnsOf(std::move(text.value()));
  return file.columns.empty() ? refused(translated("RunFiles", "it holds no columns"))
                              : File(std::move(file));
}

} // namespace

QStringList namedFiles(const QStringList& paths)
{
  QStringList files;
  for (const QString& path : paths)
  {
    const QFileInfo info(path);
    const bool pattern = !info.exists() && info.fileName().contains(QLatin1Char('*'));
    QStringList found;
    if (info.isDir())
      found = filesIn(QDir(path), readableEndings());
    else if (pattern || (!info.exists() && info.fileName().contains(QLatin1Char('?'))))
      found = filesIn(info.dir(), {info.fileName()});
    files += found.isEmpty() ? QStringList{path} : found;
  }
  files.removeDuplicates();
  return files;
}

Result<ImportedTable> importFiles(const QStringList& paths, const ImportTask& task,
                                  ImportReport& report)
{
  if (paths.size() > mostFiles)
    return Imported::failed(
        withValues(translated("RunFiles", "%1 files are too many; at most %2 can be read together"),
                   {std::to_string(paths.size()), std::to_string(mostFiles)}));
  std::vector<JoinedFile> files;
  std::optional<JoinedFile> parameters;
  const QString given = QString::fromStdString(task.request.parameterTable);
  for (const QString& path : paths)
  {
    // What is said of one file is soon said of all of them.
    ImportReport ofFile;
    if (!given.isEmpty() && QFileInfo(path) == QFileInfo(given))
      continue;
    Result<JoinedFile> file = readFile(path, task, ofFile);
    if (!file.hasValue())
      return Imported::without(file);
    files.push_back(std::move(file.value()));
    if (files.size() == 1)
      report.reasons = ofFile.reasons;
    if (task.progress && !task.progress(readingPart * static_cast<double>(files.size()) /
                                        static_cast<double>(paths.size())))
      return Imported::cancelled();
  }
  if (!given.isEmpty())
  {
    ImportReport ofTable;
    Result<JoinedFile> table = readFile(given, task, ofTable);
    if (!table.hasValue())
      return Imported::without(table);
    parameters = std::move(table.value());
  }
  if (files.empty())
    return Imported::failed(translated("RunFiles", "there are no files of runs"));
  Result<std::vector<NamedColumn>> joined =
      joinFiles(std::move(files), std::move(parameters), task.request, report);
  if (!joined.hasValue())
    return Imported::without(joined);
  ImportTask rest = task;
  if (rest.request.run.empty() && joined.value().front().name == "file")
    for (const NamedColumn& column : joined.value())
      if (column.name == "file" || isRunName(readHeader(column.name).name))
        rest.request.run.push_back(column.name);
  return importTable(tableOf(std::move(joined.value()), rest.request), rest, report);
}

} // namespace Talmesh::app
