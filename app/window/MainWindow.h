#ifndef MainWindow_h
#define MainWindow_h

#include "app/document/Document.h"
#include "app/window/RecentFiles.h"
#include "app/window/StatusLine.h"
#include "app/window/StudyOpener.h"
#include "app/window/UpdateClock.h"

#include <QMainWindow>

class QTabWidget;
class VtkPlotWidget;

namespace Talmesh::app
{

class ComparisonController;
class ComparisonDock;
class ExportController;
class FeatureController;
class FilterLine;
class GestureActions;
class GroupController;
class PlotDock;
class RecentMenu;
class SearchController;
class SessionController;
class WindowPanels;

/// The viewer's window: menus, panels and status bar around what a document shows.
class MainWindow : public QMainWindow
{
  Q_OBJECT

public:
  explicit MainWindow(QWidget* parent = nullptr);
  ~MainWindow() override;

  /// Opens the file or example that the command line names and shows the columns it names. The
  /// result is announced by `opened`, or by `openFailed` and `commandLineFailed`; by neither when
  /// the user cancels or starts to open something else meanwhile.
  void open(const OpeningWishes& asked);
  /// Starts to open a file; the window stays alive meanwhile.
  void openFile(const QString& path);
  /// Opens files that belong together.
  void openFiles(const QStringList& paths);
  /// Starts to simulate the example study.
  void openExample();
  bool isLoading() const;
  /// Whether anything long is going on: opening, looking for runs, computing features, grouping,
  /// comparing or writing.
  bool isBusy() const;
  /// Shows once more the runs or the table opened last; a computed study has taken their place.
  void returnToRuns();

  /// Writes the table and how it is shown as a session; a failure is shown to the user.
  /// @return whether it was written
  bool saveSessionTo(const QString& path);

  Document& document() { return shown; }
  VtkPlotWidget* plotWidget() const { return plot; }
  PlotDock* plotDock() const;
  ComparisonDock* comparisonDock() const;
  SessionController& sessionController() { return *sessions; }
  ExportController& exportController() { return *exports; }
  /// The pages "Runs" and "Time courses".
  QTabWidget* pages() const;
  FilterLine* filterLine() const;
  GestureActions* gestureActions() const;
  SelectionController* selectionController() { return &shown.selection(); }
  /// How much is loaded, as the status bar says it.
  QString sizeText() const { return status.size(); }
  /// How much is selected, as the status bar says it.
  QString selectionText() const { return status.selection(); }

signals:
  void opened();
  /// One line.
  void openFailed(const QString& message);
  /// As `openFailed`, but only of what the command line names.
  void commandLineFailed(const QString& message);

protected:
  /// Waits for what is being written, and asks before unsaved work would be lost.
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

private:
  void takeFirstSize();
  void connectDocument();
  void connectControllers();
  void makeMenus();
  void makeFileMenu();
  void makeSelectionMenu();
  void openInstead(const QStringList& paths);
  void chooseReading(const QStringList& paths);
  void askForReadingOf(const OpeningTask& task);
  void openExampleInstead();
  void chooseStyle(plotStyles style);
  void showStudy();
  void showDrawing();
  void noteOpened(const OpenedStudy& study, const OpeningTask& task);
  void noteFailure(const QString& message, const OpeningTask& task);
  bool noteWritten(const QString& path, const std::string& error);
  void showError(const QString& message);

  VtkPlotWidget* plot;
  Document shown;
  WindowPanels* panels;
  StatusLine status;
  StudyOpener* opener;
  SearchController* searching;
  FeatureController* features;
  GroupController* grouping;
  ComparisonController* comparing;
  SessionController* sessions;
  ExportController* exports;
  RecentMenu* recent;
  UpdateClock clock;
  /// The user has decided what becomes of unsaved work.
  bool leaving = false;
};

} // namespace Talmesh::app

#endif
