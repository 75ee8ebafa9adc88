#ifndef RunTableDock_h
#define RunTableDock_h

#include "app/document/TableRuns.h"

#include <QDockWidget>

#include <memory>
#include <vector>

class QLabel;
class QStackedWidget;
class QTimer;
class QUndoCommand;

namespace Talmesh::app
{

class Document;
class RunColumnMenu;
class RunTableModel;
class RunTableView;

/// The panel with a row for each run: its number, its parameters and features of its items. What is
/// chosen there is what is selected in the charts, and the other way round.
///
/// The numbers are computed when the panel is seen, a few runs at a time, so that the window stays
/// alive; nothing else reads or writes the runs meanwhile.
class RunTableDock : public QDockWidget
{
  Q_OBJECT

public:
  /// @param document outlives the panel
  explicit RunTableDock(Document& document, QWidget* parent = nullptr);
  ~RunTableDock() override;

  /// Whether all numbers are there.
  bool isComplete() const { return complete; }

signals:
  /// The user wants to see the courses of a run, counted by its place.
  void runOpened(std::size_t run);
  /// What has become of a step, in one line.
  void said(const QString& message);
  /// Why a step could not be done, in one line.
  void failed(const QString& message);

private:
  QWidget* makePanel();
  void takeStudy();
  void invalidate();
  void begin();
  void goOn();
  void showSelection();
  void selectChosen();
  void openRun(int row);
  void followGroups();
  std::vector<int> chosenRows() const;
  const QUndoCommand* lastStep() const;
  void copy();
  void save();

  Document& document;
  RunTableModel* model;
  RunTableView* view;
  QStackedWidget* pages;
  QLabel* explanation;
  RunColumnMenu* columns;
  QAction* columnStep;
  QAction* copyStep;
  QAction* saveStep;
  QTimer* idle;
  std::unique_ptr<TableRuns> runs;
  std::unique_ptr<RunTableFilling> filling;
  /// What the view shows as selected.
  std::vector<bool> shownSelection;
  /// The group of each run that the table shows.
  std::vector<int> shownGroups;
  /// By which the last press of the mouse has selected, if by any; only to be compared.
  const QUndoCommand* stepOfClick = nullptr;
  bool seen = false;
  bool complete = false;
  bool showing = false;
};

} // namespace Talmesh::app

#endif
