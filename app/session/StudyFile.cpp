#include "app/session/StudyFile.h"

#include "app/import/RunTableImport.h"
#include "app/import/TranslatedText.h"
#include "app/session/Session.h"
#include "app/session/SessionFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdint>
#include <exception>
#include <new>
#include <optional>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

namespace Talmesh::app
{

namespace
{

constexpr qint64 chunk = 4 << 20;
/// The part of the progress that reading the bytes takes.
constexpr double readingPart = 0.1;

/// A file that grew since its size was asked for may be cut inside a number. Its last line is read
/// to the end, or left out while it has none.
void endAtLine(QFile& file, std::string& bytes)
{
  if (bytes.empty() || bytes.back() == '\n')
    return;
  const QByteArray rest = file.readLine();
  bytes.append(rest.constData(), static_cast<std::size_t>(rest.size()));
  if (!rest.isEmpty() && bytes.back() != '\n')
    bytes.erase(bytes.rfind('\n') + 1);
}

/// What QFile::read() returns.
qint64 append(QFile& file, std::string& bytes, qint64 most)
{
  const std::size_t before = bytes.size();
  bytes.resize(before + static_cast<std::size_t>(most));
  const qint64 got = file.read(&bytes[before], most);
  bytes.resize(before + static_cast<std::size_t>(std::max<qint64>(got, 0)));
  return got;
}

Result<std::string> readBytes(const QString& path, const ImportProgress& progress)
{
  using Bytes = Result<std::string>;
  const QFileInfo info(path);
  QFile file(path);
  const auto unreadable = [&file]
  {
    return Bytes::failed(withValues(translated("StudyFile", "cannot be read: %1"),
                                    {file.errorString().toStdString()}));
  };
  if (!info.exists())
    return Bytes::failed(translated("StudyFile", "there is no such file"));
  if (!info.isFile())
    return Bytes::failed(translated("StudyFile", "this is not a file"));
  if (!file.open(QIODevice::ReadOnly))
    return unreadable();

  const qint64 size = file.size();
  std::string bytes;
  qint64 filled = 0;
  while (filled < size)
  {
    const qint64 got = append(file, bytes, std::min(chunk, size - filled));
    if (got < 0)
      return unreadable();
    // A zero byte is in no table: what was read is refused, however much lies behind it.
    if (got == 0 || bytes.find('\0', static_cast<std::size_t>(filled)) != std::string::npos)
      break;
    filled += got;
    bytes.reserve(static_cast<std::size_t>(size));
    if (progress &&
        !progress(readingPart * static_cast<double>(filled) / static_cast<double>(size)))
      return Bytes::cancelled();
  }
  if (filled == size)
    endAtLine(file, bytes);
  return Bytes(std::move(bytes));
}

/// Gives the memory of a text back to the system while it is read, so that a table is not held
/// twice, as text and as numbers. What was passed reads as zeros from then on.
class PassedPages
{
public:
  explicit PassedPages(std::string& text)
      : given(addressOf(text.data()) + pageSize - 1)
      , begin(addressOf(text.data()))
  {
    given -= given % pageSize;
  }

  void pass(std::size_t bytes)
  {
    const std::uintptr_t end = (begin + bytes) / pageSize * pageSize;
    if (end < given + static_cast<std::uintptr_t>(chunk))
      return;
    // A system that cannot do it keeps the text until it has been read.
    ::madvise(reinterpret_cast<void*>(given), end - given, MADV_DONTNEED);
    given = end;
  }

private:
  static std::uintptr_t addressOf(const char* byte)
  {
    return reinterpret_cast<std::uintptr_t>(byte);
  }

  const std::uintptr_t pageSize = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
  std::uintptr_t given; ///< the first page that is still there
  std::uintptr_t begin;
};

/// Reads small files that stand beside a table.
FileBeside besideOf(const QString& path)
{
  const QDir folder = QFileInfo(path).dir();
  return [folder](const std::string& name) -> std::optional<std::string>
  {
    const Result<std::string> read = readBytes(folder.filePath(QString::fromStdString(name)), {});
    return read.hasValue() ? std::make_optional(read.value()) : std::nullopt;
  };
}

Result<OpenedStudy> openBytes(std::string& bytes, ImportTask task, ImportReport& report)
{
  const ImportProgress progress = task.progress;
  task.progress = [&progress](double done)
  { return !progress || progress(readingPart + (1.0 - readingPart) * done); };
  PassedPages pages(bytes);
  task.passed = [&pages](std::size_t passed) { pages.pass(passed); };
  const Result<ImportedTable> imported = importTable(bytes, task, report);
  if (!imported.hasValue())
    return Result<OpenedStudy>::without(imported);
  OpenedStudy opened;
  opened.study.runs = imported.value().runs;
  opened.study.table = imported.value().table;
  opened.study.categories = imported.value().categories;
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

Result<OpenedStudy> open(const QString& path, const ImportTask& task, ImportReport& report)
{
  if (isSessionFile(path))
    return openFromSession(path, task.progress);
  Result<std::string> read = readBytes(path, task.progress);
  return read.hasValue() ? openBytes(read.value(), task, report)
                         : Result<OpenedStudy>::without(read);
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
