#ifndef ViewMenu_h
#define ViewMenu_h

#include "external/PlotStyles.h"

#include <QMenu>

class QCheckBox;
class QDockWidget;

namespace Talmesh::app
{

class PlotDock;

/// The menu of how runs are shown: the switches of the plot's panel, and all styles.
class ViewMenu : public QMenu
{
  Q_OBJECT

public:
  /// @param dock outlives the menu
  explicit ViewMenu(PlotDock& dock, QWidget* parent = nullptr);

  /// Adds what shows a panel, also one that lies behind others, and hides it when it is in front.
  void addPanel(QDockWidget& panel, Qt::Key key);

signals:
  void styleChosen(plotStyles style);

private:
  void addSwitch(QCheckBox* box, const QString& text, const QString& keys);
  void addStyles();
};

} // namespace Talmesh::app

#endif
