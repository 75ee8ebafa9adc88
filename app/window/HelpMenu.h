#ifndef HelpMenu_h
#define HelpMenu_h

#include <QMenu>

class QMenuBar;

namespace Talmesh::app
{

/// The menu that names the program and its keyboard shortcuts.
class HelpMenu : public QMenu
{
  Q_OBJECT

public:
  /// @param bar the menus whose shortcuts are listed; outlives the menu
  HelpMenu(const QMenuBar& bar, QWidget* parent);

private:
  void showShortcuts();
  void showAbout();

  const QMenuBar& bar;
};

} // namespace Talmesh::app

#endif
