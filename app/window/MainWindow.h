#ifndef MainWindow_h
#define MainWindow_h

#include "app/document/Document.h"
#include "app/export/PictureFile.h"
#include "app/window/RecentFiles.h"
#include "app/window/StudyOpener.h"
#include "app/window/UpdateClock.h"

#include <QMainWindow>

class QLabel;
class QTabWidget;
class VtkPlotWidget;

namespace Talmesh::app
{

class ClusterDock;
class ComparisonDock;
class ExportController;
class LoadingBar;
class PlotDock;
class RecentMenu;
class SessionController;
class StudyDock;
class TimeCoursePage;

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
  /// Starts to simulate the example study.
  void openExample();
  bool isLoading() const;
  /// Shows once more the runs or the table opened last; a computed study has taken their place.
  void returnToRuns();

  /// Writes what is shown to a file, by its suffix, as on the screen or for print; a failure is
  /// shown to the user.
  /// @return whether it was written
  bool exportTo(const QString& path, Vectors vectors = Vectors::Auto,
                int dotsPerInch = resolutionOfScreenPages);
  bool exportTo(const QString& path, const PaperSize& paper, Vectors vectors = Vectors::Auto);
  /// Asks for the size of a picture, then writes it.
  void askForSizeAndExport(const QString& path);
  /// Writes the table and how it is shown as a session; a failure is shown to the user.
  /// @return whether it was written
  bool saveSessionTo(const QString& path);
  /// Keeps unsaved work in a folder from now on, and asks what to do with what windows that are
  /// gone have left there.
  void keepWork(const QString& folder, int milliseconds = 60000);
  /// Keeps what is unsaved now, and returns when it is on the disk.
  void keepWorkNow();

  Document& document() { return shown; }
  VtkPlotWidget* plotWidget() const { return plot; }
  PlotDock* plotDock() const { return dock; }
  ComparisonDock* comparisonDock() const { return comparison; }
  /// The pages "Runs" and "Time courses".
  QTabWidget* pages() const { return tabs; }
  SelectionController* selectionController() { return &shown.selection(); }
  /// How much is loaded, as the status bar says it.
  QString sizeText() const;
  /// How much is selected, as the status bar says it.
  QString selectionText() const;

signals:
  void opened();
  /// One line.
  void openFailed(const QString& message);
  /// As `openFailed`, but only of what the command line names.
  void commandLineFailed(const QString& message);

protected:
  /// Asks before unsaved work would be lost.
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

private:
  void placePanels();
  void makeStatusBar();
  void takeFirstSize();
  void connectDocument();
  void connectPanels();
  void connectControllers();
  void makeMenus();
  void makeFileMenu();
  void makeSelectionMenu();
  void openInstead(const QString& path);
  void openExampleInstead();
  void chooseStyle(plotStyles style);
  void showStudy();
  void showDrawing();
  bool sayWhatIsLinear();
  void noteOpened(const OpenedStudy& study, const OpeningTask& task);
  void noteFailure(const QString& message, const OpeningTask& task);
  bool noteWritten(const QString& path, const std::string& error);
  void say(const QString& message);
  void showError(const QString& message);

  VtkPlotWidget* plot;
  Document shown;
  TimeCoursePage* timeCourses;
  QTabWidget* tabs;
  PlotDock* dock;
  ClusterDock* clusterDock;
  StudyDock* studyDock;
  ComparisonDock* comparison;
  LoadingBar* loadingBar;
  QLabel* size;
  QLabel* selected;
  StudyOpener* opener;
  SessionController* sessions;
  ExportController* exports;
  RecentMenu* recent;
  UpdateClock clock;
  /// The user has decided what becomes of unsaved work.
  bool leaving = false;
};

} // namespace Talmesh::app

#endif
