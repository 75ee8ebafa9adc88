#include "app/window/RecentFiles.h"

#include <QFileInfo>
#include <QSettings>

namespace Talmesh::app
{

namespace
{

const QString key = QStringLiteral("recentFiles");

void store(const QStringList& paths)
{
  QSettings().setValue(key, paths);
}

} // namespace

QStringList RecentFiles::paths() const
{
  return QSettings().value(key).toStringList();
}

void RecentFiles::add(const QString& path)
{
  const QString absolute = QFileInfo(path).absoluteFilePath();
  QStringList all = paths();
  all.removeAll(absolute);
  all.prepend(absolute);
  store(all.mid(0, most));
}

void RecentFiles::remove(const QString& path)
{
  QStringList all = paths();
  all.removeAll(QFileInfo(path).absoluteFilePath());
  store(all);
}

void RecentFiles::clear()
{
  store({});
}

} // namespace Talmesh::app
