#ifndef KeptSelectionsDock_h
#define KeptSelectionsDock_h

#include "app/document/SelectionWords.h"

#include <QDockWidget>

class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace Talmesh::app
{

class Document;

/// The panel that lists the selections which the user has given names, and selects them again.
class KeptSelectionsDock : public QDockWidget
{
  Q_OBJECT

public:
  /// @param document outlives the panel
  explicit KeptSelectionsDock(Document& document, QWidget* parent = nullptr);

  /// Keeps what is selected, and lets the user type its name.
  QAction* keepStep() const { return keepAction; }

signals:
  /// What has become of a step, in one line.
  void said(const QString& message);
  /// Why a step could not be done, in one line.
  void failed(const QString& message);

private:
  QAction* addCombinations();
  QAction* addSwitch();
  QWidget* makePanel();
  void keep();
  void selectAgain(RunCombination how);
  void rename();
  void chooseColour();
  void remove();
  void save();
  void list();
  void enableSteps();
  void takeName(QTreeWidgetItem* item);
  void showInCharts(bool on);
  int chosen() const;

  Document& document;
  QTreeWidget* tree;
  QStackedWidget* pages;
  QAction* keepAction;
  QAction* selectAction;
  QAction* renameAction;
  QAction* colourAction;
  QAction* removeAction;
  QAction* saveAction;
  QAction* chartsAction;
};

} // namespace Talmesh::app

#endif
