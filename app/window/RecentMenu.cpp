#include "app/window/RecentMenu.h"

namespace Talmesh::app
{

RecentMenu::RecentMenu(QWidget* parent)
    : QMenu(tr("Open &recent"), parent)
{
  setObjectName(QStringLiteral("recentMenu"));
  connect(this, &QMenu::aboutToShow, this, &RecentMenu::fill);
}

void RecentMenu::fill()
{
  QMenu::clear();
  const QStringList paths = files.paths();
  for (const QString& path : paths)
  {
    QString text = path;
    // A single one marks a letter.
    text.replace(QLatin1Char('&'), QStringLiteral("&&"));
    connect(addAction(text), &QAction::triggered, this, [this, path] { emit fileChosen(path); });
  }
  if (paths.isEmpty())
  {
    addAction(tr("None yet"))->setEnabled(false);
    return;
  }
  addSeparator();
  QAction* forget = addAction(tr("&Clear list"));
  forget->setObjectName(QStringLiteral("clearRecent"));
  connect(forget, &QAction::triggered, this, [this] { files.clear(); });
}

} // namespace Talmesh::app
