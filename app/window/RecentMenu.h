#ifndef RecentMenu_h
#define RecentMenu_h

#include "app/window/RecentFiles.h"

#include <QMenu>

namespace Talmesh::app
{

/// The menu of the files opened last, as they are when it is shown.
class RecentMenu : public QMenu
{
  Q_OBJECT

public:
  explicit RecentMenu(QWidget* parent = nullptr);

  void add(const QString& path) { files.add(path); }
  void remove(const QString& path) { files.remove(path); }

signals:
  void fileChosen(const QString& path);

private:
  void fill();

  RecentFiles files;
};

} // namespace Talmesh::app

#endif
