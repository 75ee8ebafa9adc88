#include "app/session/TableSample.h"

#include "app/formats/FileFormats.h"
#include "app/import/LongestLine.h"
#include "app/import/RunTableImport.h"
#include "app/import/TextSample.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf16Text.h"
#include "app/session/RunFiles.h"
#include "app/session/TableFile.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace Talmesh::app
{

namespace
{

constexpr qint64 chunk = 512 << 10;
constexpr std::size_t wantedBytes = 256 << 10;
/// A header and some rows.
constexpr std::ptrdiff_t wantedLines = 5;

bool isEnough(const std::string& text)
{
  return (text.size() >= wantedBytes &&
          std::count(text.begin(), text.end(), '\n') >= wantedLines) ||
         text.size() >= 2 * longestFirstLine ||
         (!isUtf16(text) && text.find('\0') != std::string::npos);
}

/// Leaves the line out that the end of a sample cuts. In UTF-16 the byte of a line's end tells of
/// no such end.
void endAtLine(std::string& text)
{
  const std::size_t end = isUtf16(text) ? std::string::npos : text.find_last_of("\r\n");
  if (end != std::string::npos)
    text.erase(end + 1);
}

Result<TableSample> startOfText(const QString& path)
{
  using Sample = Result<TableSample>;
  QFile file(path);
  if (!QFileInfo::exists(path))
    return Sample::failed(translated("PlainText", "there is no such file"));
  // Nothing but a file has an end.
  if (!QFileInfo(path).isFile())
    return Sample::failed(translated("PlainText", "this is not a file"));
  if (!file.open(QIODevice::ReadOnly))
    return Sample::failed(withValues(translated("PlainText", "cannot be read: %1"),
                                     {file.errorString().toStdString()}));
  TableSample sample;
  std::string& text = sample.start.text;
  while (!isEnough(text) && !file.atEnd())
  {
    const QByteArray bytes = file.read(chunk);
    if (bytes.isEmpty())
      break;
    text.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
  }
  sample.isWhole = file.atEnd();
  if (!sample.isWhole)
    endAtLine(text);
  return sample;
}

void keepFirstRows(NamedColumn& column)
{
  column.values.resize(std::min(column.values.size(), FirstRows::most));
  column.wordOfRow.resize(std::min(column.wordOfRow.size(), FirstRows::most));
}

} // namespace

bool mayHaveParts(const QStringList& paths)
{
  const QStringList files = namedFiles(paths);
  return !files.isEmpty() && formatOf(files.front());
}

Result<TableSample> readTableSample(const QStringList& paths, const std::string& sheet,
                                    const ImportProgress& progress)
{
  const QStringList files = namedFiles(paths);
  if (files.isEmpty())
    return Result<TableSample>::failed(translated("PlainText", "there is no such file"));
  const FileFormat* format = formatOf(files.front());
  if (!format)
    return startOfText(files.front());
  ImportRequest request;
  request.sheet = sheet;
  Result<FileContent> content = readTableFile(files.front(), request, progress);
  if (!content.hasValue())
    return Result<TableSample>::without(content);
  TableSample sample;
  sample.start = std::move(content.value());
  std::string& text = sample.start.text;
  const std::size_t head = headText(text).size();
  sample.isWhole = sample.start.isText() && head == text.size();
  text.resize(head);
  text.shrink_to_fit();
  for (NamedColumn& column : sample.start.columns)
    keepFirstRows(column);
  return sample;
}

Result<FirstRows> firstRowsOf(const TableSample& sample, const ImportRequest& request)
{
  return sample.start.isText() ? firstRowsOf(sample.start.text, request)
                               : firstRowsOf(sample.start.columns);
}

ImportReport reportOf(const TableSample& sample, const ImportRequest& request)
{
  ImportReport report;
  if (sample.start.isText())
    importTable(sample.start.text, {request, {}, {}, {}}, report);
  return report;
}

} // namespace Talmesh::app
