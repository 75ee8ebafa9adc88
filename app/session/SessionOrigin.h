#ifndef SessionOrigin_h
#define SessionOrigin_h

#include <QByteArray>
#include <QJsonObject>
#include <QString>

namespace Talmesh::app
{

/// The session file that the window's work belongs to.
struct SessionOrigin
{
  /// Empty when the work was never in a session file.
  QString path;
  /// How the file ended when the window read or wrote it last, as of `endOfSession`.
  QByteArray end;
};

/// The last bytes of a session file, which are the checksum of all others; empty without a file
/// that can be read.
QByteArray endOfSession(const QString& path);

/// Whether writing to `path` would replace what someone else has written to the origin's file since
/// the window read or wrote it. A file that is gone has nothing to lose.
bool hasChangedMeanwhile(const SessionOrigin& origin, const QString& path);

QJsonObject objectOf(const SessionOrigin& origin);

/// Nothing for what is missing or mistyped.
SessionOrigin readOrigin(const QJsonObject& object);

} // namespace Talmesh::app

#endif
