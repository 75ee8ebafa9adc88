#include "app/session/KeptWork.h"

#include "app/session/SessionFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace Talmesh::app
{

namespace
{

const QString beginning = QStringLiteral("work-");

std::shared_ptr<QLockFile> lockOf(const QString& path)
{
  auto lock = std::make_shared<QLockFile>(path + QStringLiteral(".lock"));
  // A window may well be open for days: only the end of its program makes a lock stale.
  lock->setStaleLockTime(0);
  return lock->tryLock() ? lock : nullptr;
}

} // namespace

QString stateFolder()
{
  const QString given = QFile::decodeName(qgetenv("XDG_STATE_HOME"));
  // Relative paths in such variables are to be ignored.
  const QString base =
      QDir::isAbsolutePath(given) ? given : QDir::homePath() + QStringLiteral("/.local/state");
  return base + QStringLiteral("/talmesh-plot");
}

LeftWork newWork(const QString& folder)
{
  if (!QDir().exists(folder))
  {
    QDir().mkpath(folder);
    // Others must not read what is kept.
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }
  const QDateTime now = QDateTime::currentDateTime();
  const QString name = beginning + now.toString(QStringLiteral("yyyyMMdd-hhmmss-zzz")) +
                       QStringLiteral("-%1.%2")
                           .arg(QCoreApplication::applicationPid())
                           .arg(QLatin1String(sessionSuffix));
  const QString path = QDir(folder).filePath(name);
  return {path, now, lockOf(path)};
}

LeftWork latestLeftWork(const QString& folder)
{
  const QFileInfoList files = QDir(folder).entryInfoList(
      {beginning + QStringLiteral("*.") + QLatin1String(sessionSuffix)}, QDir::Files, QDir::Time);
  for (const QFileInfo& file : files)
    if (auto lock = lockOf(file.filePath()))
      return {file.filePath(), file.lastModified(), lock};
  return {};
}

void discard(const LeftWork& work)
{
  if (work.lock)
    QFile::remove(work.path);
}

} // namespace Talmesh::app
