#include "app/session/SessionFile.h"

#include "app/import/TranslatedText.h"
#include "widgets/FileWriter.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <limits>
#include <utility>

namespace Talmesh::app
{

namespace
{

// The first byte keeps text tools away, as in PNG files.
const QByteArray magic = QByteArrayLiteral("\x89TALMESH");
constexpr quint32 formatVersion = 2;
/// What it has more than this one are settings, which are found missing then.
constexpr quint32 oldestVersion = 1;
constexpr int headerSize = 24;
constexpr qint64 chunk = 4 << 20; ///< bytes between two reports of progress
/// A QByteArray counts with int and has a header.
constexpr quint64 largestDump = std::numeric_limits<int>::max() - 64;

struct Header
{
  quint32 version = formatVersion;
  quint32 settingsSize = 0;
  quint64 dumpSize = 0;
};

QByteArray bytesOf(const Header& header)
{
  QByteArray bytes = magic;
  bytes.resize(headerSize);
  qToBigEndian(header.version, bytes.data() + 8);
  qToBigEndian(header.settingsSize, bytes.data() + 12);
  qToBigEndian(header.dumpSize, bytes.data() + 16);
  return bytes;
}

Header headerOf(const QByteArray& bytes)
{
  Header header;
  header.version = qFromBigEndian<quint32>(bytes.constData() + 8);
  header.settingsSize = qFromBigEndian<quint32>(bytes.constData() + 12);
  header.dumpSize = qFromBigEndian<quint64>(bytes.constData() + 16);
  return header;
}

/// @return why these bytes do not begin a session of this version and of `size` bytes; empty if
/// they do
std::string objection(const QByteArray& bytes, qint64 size)
{
  if (bytes.isEmpty() || !magic.startsWith(bytes.left(magic.size())))
    return translated("SessionFile", "this is not a session of Talmesh Plot");
  if (bytes.size() < headerSize)
    return translated("SessionFile", "the session is cut short");
  const Header header = headerOf(bytes);
  if (header.version > formatVersion)
    return translated("SessionFile", "the session was written by a newer version of this program");
  if (header.version < oldestVersion || header.settingsSize > largestSettings ||
      header.dumpSize > largestDump)
    return translated("SessionFile", "the session is damaged");
  const auto stated =
      static_cast<qint64>(headerSize + header.settingsSize + header.dumpSize + sessionChecksumSize);
  if (size < stated)
    return translated("SessionFile", "the session is cut short");
  if (size > stated)
    return translated("SessionFile", "the session is damaged");
  return {};
}

QByteArray checksumOf(const QByteArray& header, const SessionParts& parts)
{
  QCryptographicHash hash(QCryptographicHash::Sha256);
  hash.addData(header);
  hash.addData(parts.settings);
  hash.addData(parts.dump);
  return hash.result();
}

/// @return false when the progress cancels
bool readDumpBytes(QIODevice& device, qint64 size, const ImportProgress& progress, QByteArray& dump)
{
  dump.resize(static_cast<int>(size));
  qint64 filled = 0;
  while (filled < size)
  {
    const qint64 got = device.read(dump.data() + filled, std::min(chunk, size - filled));
    if (got <= 0)
      break;
    filled += got;
    if (progress && !progress(static_cast<double>(filled) / static_cast<double>(size)))
      return false;
  }
  dump.truncate(static_cast<int>(filled));
  return true;
}

bool passes(const DumpCheck& check, QIODevice& device, qint64 size)
{
  const qint64 start = device.pos();
  return !check || (check(device, size) && device.seek(start));
}

/// Whether there are zeros where the checksum should be, as in a file that was not written to its
/// end. No checksum is like that, and reading the rest would take long.
bool endsInZeros(QIODevice& device)
{
  const qint64 start = device.pos();
  if (!device.seek(device.size() - sessionChecksumSize))
    return false;
  const QByteArray end = device.read(sessionChecksumSize);
  return !device.seek(start) || end == QByteArray(sessionChecksumSize, '\0');
}

} // namespace

bool isSessionFile(const QString& path)
{
  const QFileInfo info(path);
  if (info.suffix().compare(QLatin1String(sessionSuffix), Qt::CaseInsensitive) == 0)
    return true;
  // Looking into a pipe would take its bytes away.
  if (!info.isFile())
    return false;
  QFile file(path);
  return file.open(QIODevice::ReadOnly) && file.read(magic.size()) == magic;
}

QByteArray peekSettings(const QString& path)
{
  QFile file(path);
  if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
    return {};
  const QByteArray header = file.read(headerSize);
  if (!objection(header, file.size()).empty())
    return {};
  return file.read(headerOf(header).settingsSize);
}

bool writeSession(QIODevice& device, const SessionParts& parts, QByteArray* end)
{
  Header stated;
  stated.settingsSize = static_cast<quint32>(parts.settings.size());
  stated.dumpSize = static_cast<quint64>(parts.dump.size());
  const QByteArray header = bytesOf(stated);
  const QByteArray checksum = checksumOf(header, parts);
  if (end)
    *end = checksum;
  for (const QByteArray* piece : {&header, &parts.settings, &parts.dump, &checksum})
    if (device.write(*piece) != piece->size())
      return false;
  return true;
}

Result<ReadSessionParts> readSession(QIODevice& device, const ImportProgress& progress,
                                     const DumpCheck& check)
{
  using Read = Result<ReadSessionParts>;
  const QByteArray bytes = device.read(headerSize);
  const std::string refused = objection(bytes, device.size());
  if (!refused.empty())
    return Read::failed(refused);
  if (endsInZeros(device))
    return Read::failed(translated("SessionFile", "the session is damaged"));
  const Header header = headerOf(bytes);
  ReadSessionParts read;
  read.parts.settings = device.read(header.settingsSize);
  if (!passes(check, device, static_cast<qint64>(header.dumpSize)))
    return Read::failed(translated("SessionFile", "the session's table is damaged"));
  if (!readDumpBytes(device, static_cast<qint64>(header.dumpSize), progress, read.parts.dump))
    return Read::cancelled();
  read.end = device.read(sessionChecksumSize);
  return read.end == checksumOf(bytes, read.parts)
             ? Read(std::move(read))
             : Read::failed(translated("SessionFile", "the session is damaged"));
}

std::string saveSessionFile(const QString& path, const SessionParts& parts, QByteArray* end)
{
  if (parts.dump.isEmpty() || parts.settings.size() > largestSettings)
    return withValues(translated("SessionFile", "%1: the table is too large for a session"),
                      {path.toStdString()});
  const QString reason =
      writeFile(path, [&](QIODevice& device) { return writeSession(device, parts, end); });
  if (reason.isEmpty())
    return {};
  return withValues(translated("SessionFile", "%1: cannot be written: %2"),
                    {path.toStdString(), reason.toStdString()});
}

Result<ReadSessionParts> loadSessionFile(const QString& path, const ImportProgress& progress,
                                         const DumpCheck& check)
{
  using Read = Result<ReadSessionParts>;
  const QFileInfo info(path);
  QFile file(path);
  if (!info.exists())
    return Read::failed(translated("SessionFile", "there is no such file"));
  if (!info.isFile())
    return Read::failed(translated("SessionFile", "this is not a file"));
  if (!file.open(QIODevice::ReadOnly))
    return Read::failed(withValues(translated("SessionFile", "cannot be read: %1"),
                                   {file.errorString().toStdString()}));
  return readSession(file, progress, check);
}

} // namespace Talmesh::app
