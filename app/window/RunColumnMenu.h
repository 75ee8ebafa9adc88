#ifndef RunColumnMenu_h
#define RunColumnMenu_h

#include "app/document/TableRuns.h"
#include "app/session/SessionViews.h"

#include <QMenu>

#include <vector>

namespace Talmesh::app
{

/// The menu of what a table of runs shows: parameters, features, and the items that have them.
class RunColumnMenu : public QMenu
{
  Q_OBJECT

public:
  explicit RunColumnMenu(QWidget* parent = nullptr);

  /// Turns to other runs, and ticks what their table begins with. Emits nothing.
  void list(const TableRuns& runs);
  /// What is ticked.
  ShownRunColumns ticked() const;
  /// Ticks what is listed of these, and nothing else. Emits nothing.
  void tick(const ShownRunColumns& shown);
  /// The columns of what is ticked.
  std::vector<RunColumn> chosen(const TableRuns& runs) const;

signals:
  void chosenChanged();

private:
  QAction* addSwitch(const QString& text, bool on);
};

} // namespace Talmesh::app

#endif
