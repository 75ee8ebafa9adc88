#ifndef MainWindow_h
#define MainWindow_h

#include "app/document/PlotChoice.h"
#include "app/export/PictureFile.h"
#include "app/import/Study.h"
#include "app/session/KeptWork.h"
#include "app/session/StudyFile.h"
#include "app/window/RecentFiles.h"
#include "app/window/UpdateClock.h"

#include <QMainWindow>
#include <QPointer>
#include <QStringList>

#include <functional>
#include <optional>

class PlotContainer;
class QLabel;
class QMenu;
class QTabWidget;
class VtkPlotWidget;

namespace Talmesh::app
{

class ClusterDock;
class ComparisonDock;
class GroupController;
class LoadingBar;
class PlotDock;
class SelectionController;
class SessionController;
class StudyDock;
class StudyLoader;
class TimeCoursePage;
struct SessionSource;

/// The viewer's window: a plot, the panel to choose what it shows, and what is loaded.
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

  VtkPlotWidget* plotWidget() const { return plot; }
  PlotDock* plotDock() const { return dock; }
  ComparisonDock* comparisonDock() const { return comparison; }
  /// The pages "Runs" and "Time courses".
  QTabWidget* pages() const { return tabs; }
  SelectionController* selectionController() const { return selection; }
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
  void makeMenus();
  void makeFileMenu();
  void makeSelectionMenu();
  void makeViewMenu();
  void makeHelpMenu();
  void makeStudies();
  void fillStudiesMenu();
  void makeStatusBar();
  void takeFirstSize();
  QAction* addAction(QMenu* menu, const QString& text, const QKeySequence& keys,
                     void (MainWindow::*slot)());
  void chooseFile();
  void chooseExport();
  void chooseSession();
  void saveSession();
  void saveSessionAs();
  void makeSessions();
  std::optional<SessionSource> sessionSource();
  void openInstead(const QString& path);
  void openExampleInstead();
  void bringBack(const LeftWork& work);
  void noteWhatIsOpened(const OpenedStudy& result);
  bool canSaveSession() const;
  void addSessionActions(QMenu* menu);
  void showSession(const RestoredSession& session);
  void saveSelection();
  void loadSelection();
  void showSelection();
  void showShortcuts();
  void showAbout();
  void fillRecentMenu();
  void load(const QString& name, std::function<OpenedStudy(const ImportProgress&)> job);
  void cancelLoading();
  void finishLoading(const OpenedStudy& result);
  void sayThatItFailed(const QString& message);
  void forgetCommandLine();
  void showStudyInPlot(const Study& study);
  void leaveStudy(bool forOwnChart);
  void followStudy();
  void showWhatIsLoaded();
  void drawOwnChart();
  bool applyWishes();
  bool applyDock();
  bool sayWhatIsLinear();
  void applyComparison();
  void chooseStyle(plotStyles style);
  void sayHowLongItTook(bool drawn);
  bool sayWhatWasWritten(const QString& path, const std::string& error);
  void say(const QString& message);
  void showError(const QString& message);
  void noteSelectionFile(const std::string& error);

  VtkPlotWidget* plot;
  TimeCoursePage* timeCourses;
  QTabWidget* tabs;
  PlotDock* dock;
  ComparisonDock* comparison;
  SelectionController* selection;
  StudyLoader* loader;
  LoadingBar* loadingBar = nullptr;
  QLabel* size = nullptr;
  QLabel* selected = nullptr;
  QMenu* recentMenu = nullptr;
  RecentFiles recent;
  QPointer<PlotContainer> container;
  UpdateClock clock;
  Study study;
  ClusterDock* clusterDock = nullptr;
  StudyDock* studyDock = nullptr;
  GroupController* groups = nullptr;
  QMenu* studiesMenu = nullptr;
  /// The runs or the table opened last. While a computed study takes their place, their container
  /// is kept with all that the user has done to it.
  struct LastRuns
  {
    Study study;
    /// Null while it is the window's container.
    QPointer<PlotContainer> container;
    QStringList columns;
    PlotChoice choice;
  };
  LastRuns lastRuns;
  /// The title that the study's own chart gave itself; another one is the user's.
  std::string ownTitle;
  bool drawingOwnChart = false;
  /// The file being opened; empty for the example.
  QString loadingPath;
  /// What the command line wishes of the study that it names, while that is being opened.
  OpeningWishes wishes;
  bool openingNamed = false;
  SessionController* sessions = nullptr;
  /// What is being opened, if an earlier window has left it.
  LeftWork bringingBack;
  /// The user has decided what becomes of unsaved work.
  bool leaving = false;
};

} // namespace Talmesh::app

#endif
