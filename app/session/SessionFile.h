#ifndef SessionFile_h
#define SessionFile_h

#include "app/import/ImportProgress.h"
#include "app/import/Result.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <string>

class QIODevice;

namespace Talmesh::app
{

/// What a session file holds: the settings as JSON text and the binary dump of the plot table.
struct SessionParts
{
  QByteArray settings;
  QByteArray dump;
};

/// A session's parts as they were read.
struct ReadSessionParts
{
  SessionParts parts;
  /// The checksum that the session ended with.
  QByteArray end;
};

/// More bytes of settings are neither written nor read.
inline constexpr int largestSettings = 4 << 20;

/// Bytes at the end of a session that tell it from all others.
inline constexpr int sessionChecksumSize = 32;

/// The ending of the names of session files, without the dot.
inline constexpr char sessionSuffix[] = "talmesh";

/// Whether a file is to be opened as a session: by its name, or else by its first bytes.
bool isSessionFile(const QString& path);

/// The settings of a session's file, without a look at the rest of it; empty when it begins in
/// another way.
QByteArray peekSettings(const QString& path);

/// Writes version 2 of the format, all numbers big-endian:
///   8 bytes "\x89TALMESH", uint32 version, uint32 S, uint64 D,
///   S bytes of settings, D bytes of dump, and the SHA-256 of everything before it.
/// @param end gets the checksum unless it is null
/// @return whether the device took all of it
bool writeSession(QIODevice& device, const SessionParts& parts, QByteArray* end = nullptr);

/// Whether the bytes that a device is at can be a dump of this size, which it knows without reading
/// all of them.
using DumpCheck = std::function<bool(QIODevice& device, qint64 size)>;

/// Reads a session from a device that knows its size. Every byte counts: a file that is cut short,
/// longer or changed anywhere is refused, before any memory is taken that its size does not
/// justify.
/// @param progress told the part of the bytes that is read
/// @param check refuses a table before it is read, which may take long
Result<ReadSessionParts> readSession(QIODevice& device, const ImportProgress& progress = {},
                                     const DumpCheck& check = {});

/// Writes a file, which takes the place of an older one only when it is complete on the disk. An
/// empty dump stands for a table that is too large.
/// @param end gets the checksum that the file ends with unless it is null
/// @return why it could not be written, in one line of UTF-8; empty on success
std::string saveSessionFile(const QString& path, const SessionParts& parts,
                            QByteArray* end = nullptr);

/// Reads a regular file. Errors do not name it.
Result<ReadSessionParts> loadSessionFile(const QString& path, const ImportProgress& progress = {},
                                         const DumpCheck& check = {});

} // namespace Talmesh::app

#endif
