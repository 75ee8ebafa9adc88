#include "app/formats/PlainText.h"

#include "app/import/LongestLine.h"
#include "app/import/TranslatedText.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

namespace Talmesh::app
{

namespace
{

constexpr qint64 chunk = 4 << 20;

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

std::uintptr_t addressOf(const char* byte)
{
  return reinterpret_cast<std::uintptr_t>(byte);
}

std::uintptr_t pageSize()
{
  static const auto size = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
  return size;
}

} // namespace

Result<std::string> readPlainText(const QString& path, const ImportProgress& progress)
{
  using Bytes = Result<std::string>;
  const QFileInfo info(path);
  QFile file(path);
  const auto unreadable = [&file]
  {
    return Bytes::failed(withValues(translated("PlainText", "cannot be read: %1"),
                                    {file.errorString().toStdString()}));
  };
  if (!info.exists())
    return Bytes::failed(translated("PlainText", "there is no such file"));
  if (!info.isFile())
    return Bytes::failed(translated("PlainText", "this is not a file"));
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
    if (hasEndlessLine(bytes))
      break;
    bytes.reserve(static_cast<std::size_t>(size));
    if (progress && !progress(static_cast<double>(filled) / static_cast<double>(size)))
      return Bytes::cancelled();
  }
  if (filled == size)
    endAtLine(file, bytes);
  return Bytes(std::move(bytes));
}

PassedPages::PassedPages(std::string& text)
    : given(addressOf(text.data()) + pageSize() - 1)
    , begin(addressOf(text.data()))
{
  given -= given % pageSize();
}

void PassedPages::pass(std::size_t bytes)
{
  const std::uintptr_t end = (begin + bytes) / pageSize() * pageSize();
  if (end < given + static_cast<std::uintptr_t>(chunk))
    return;
  // A system that cannot do it keeps the text until it has been read.
  ::madvise(reinterpret_cast<void*>(given), end - given, MADV_DONTNEED);
  given = end;
}

} // namespace Talmesh::app
