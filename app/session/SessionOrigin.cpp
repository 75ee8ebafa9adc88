#include "app/session/SessionOrigin.h"

#include "app/session/SessionFile.h"

#include <QFile>
#include <QFileInfo>

namespace Talmesh::app
{

QByteArray endOfSession(const QString& path)
{
  QFile file(path);
  // Looking into a pipe would take its bytes away.
  if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
    return {};
  file.seek(qMax<qint64>(0, file.size() - sessionChecksumSize));
  return file.read(sessionChecksumSize);
}

bool hasChangedMeanwhile(const SessionOrigin& origin, const QString& path)
{
  if (origin.path.isEmpty() || QFileInfo(origin.path) != QFileInfo(path))
    return false;
  const QByteArray end = endOfSession(path);
  return !end.isEmpty() && end != origin.end;
}

QJsonObject objectOf(const SessionOrigin& origin)
{
  // A name of bytes that are no UTF-8 would not survive in JSON.
  const QByteArray path = QFile::encodeName(origin.path).toPercentEncoding("/ ");
  return {{"path", QString::fromLatin1(path)}, {"end", QString::fromLatin1(origin.end.toHex())}};
}

SessionOrigin readOrigin(const QJsonObject& object)
{
  const QByteArray path = object["path"].toString().toLatin1();
  return {QFile::decodeName(QByteArray::fromPercentEncoding(path)),
          QByteArray::fromHex(object["end"].toString().toLatin1())};
}

} // namespace Talmesh::app
