#include "app/window/MainWindow.h"

#include "app/comparison/ComparisonDock.h"
#include "app/session/FileNameCodec.h"
#include "app/window/ClusterDock.h"
#include "app/window/ComparisonController.h"
#include "app/window/ExportController.h"
#include "app/window/FilterLine.h"
#include "app/window/GestureActions.h"
#include "app/window/GroupController.h"
#include "app/window/KeptSelectionsDock.h"
#include "app/window/PlotDock.h"
#include "app/window/RecentMenu.h"
#include "app/window/RunTableDock.h"
#include "app/window/SessionController.h"
#include "app/window/StepsDock.h"
#include "app/window/StudyDock.h"
#include "app/window/TimeCoursePage.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>

namespace Talmesh::app
{

namespace
{

/// The window at first: so many characters wide and lines high, of the font in use.
constexpr int firstCharacters = 170;
constexpr int firstLines = 54;
/// The comparison beneath the plot is as high as its controls, so that the plot keeps the rest, and
/// as wide as the window, so that p is in sight.
constexpr int comparisonLines = 14;

QString droppedFile(const QMimeData* data)
{
  const QList<QUrl> urls = data->urls();
  return urls.size() == 1 ? localFileOf(urls.front()) : QString();
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , plot(new VtkPlotWidget)
    , shown([this](PlotContainer& container) { plot->placePlotContainer(&container); },
            plot->plotContainer())
    , timeCourses(new TimeCoursePage)
    , tabs(new QTabWidget)
    , dock(new PlotDock)
    , clusterDock(new ClusterDock)
    , studyDock(new StudyDock)
    , comparison(new ComparisonDock)
    , runTable(new RunTableDock(shown))
    , keptSelections(new KeptSelectionsDock(shown))
    , steps(new StepsDock(shown.selection()))
    , filter(new FilterLine(shown.selection()))
    , pointing(new GestureActions(shown.selection().gestures(), this))
    , status(*statusBar())
    , opener(new StudyOpener(shown, status.opening(), this))
    , grouping(new GroupController(*clusterDock, shown, status.grouping(), this))
    , comparing(new ComparisonController(*comparison, shown, status.comparing(), this))
    , sessions(new SessionController(*this, shown))
    , exports(new ExportController(*plot, status.exporting(), *this))
    , recent(new RecentMenu(this))
{
  setWindowTitle(QStringLiteral("Talmesh Plot"));
  setAcceptDrops(true);
  placePanels();
  makeMenus();
  takeFirstSize();
  connectDocument();
  connectPanels();
  connectControllers();
}

MainWindow::~MainWindow()
{
  // Their threads must not outlive what they report to.
  delete opener;
  delete grouping;
  delete comparing;
  delete exports;
  // What shows the document's containers ends before them.
  delete takeCentralWidget();
}

void MainWindow::placePanels()
{
  tabs->addTab(plot, tr("Runs"));
  tabs->addTab(timeCourses, tr("Time courses"));
  tabs->setDocumentMode(true);
  setCentralWidget(tabs);
  addDockWidget(Qt::RightDockWidgetArea, dock);
  addDockWidget(Qt::BottomDockWidgetArea, comparison);
  for (QDockWidget* panel : std::initializer_list<QDockWidget*>{runTable, keptSelections, steps})
  {
    addDockWidget(Qt::BottomDockWidgetArea, panel);
    tabifyDockWidget(comparison, panel);
  }
  comparison->raise();
  addDockWidget(Qt::RightDockWidgetArea, clusterDock);
  tabifyDockWidget(dock, clusterDock);
  addDockWidget(Qt::RightDockWidgetArea, studyDock);
  tabifyDockWidget(dock, studyDock);
  dock->raise();
  studyDock->hide();
  placeFilterLine();
}

void MainWindow::placeFilterLine()
{
  auto* bar = new QToolBar(tr("Selecting runs"));
  pointing->addTo(*bar);
  bar->addSeparator();
  bar->addWidget(filter);
  bar->setMovable(false);
  addToolBar(Qt::TopToolBarArea, bar);
}

void MainWindow::takeFirstSize()
{
  const QFontMetrics metrics = fontMetrics();
  const QSize wished(firstCharacters * metrics.averageCharWidth(),
                     firstLines * metrics.lineSpacing());
  resize(wished.boundedTo(screen()->availableSize() * 9 / 10));
  resizeDocks({comparison}, {comparisonLines * metrics.lineSpacing()}, Qt::Vertical);
}

void MainWindow::open(const OpeningWishes& asked)
{
  if (asked.width > 0)
    // The window grows by as much as the plot must.
    resize(QWidget::size() + QSize(asked.width, asked.height) - plot->size());
  opener->open(asked);
}

void MainWindow::openFile(const QString& path)
{
  opener->openFile(path);
}

void MainWindow::openExample()
{
  opener->openExample();
}

bool MainWindow::isLoading() const
{
  return opener->isOpening();
}

bool MainWindow::isBusy() const
{
  return isLoading() || grouping->isGrouping() || comparing->isComparing() ||
         exports->isExporting();
}

void MainWindow::returnToRuns()
{
  if (!shown.canReturnToRuns())
    return;
  if (isLoading())
    opener->cancel();
  shown.returnToRuns();
}

bool MainWindow::saveSessionTo(const QString& path)
{
  return shown.canBeSaved() && sessions->saveTo(path);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
  if (exports->isExporting())
  {
    // What fails must find its user, who may also cancel.
    event->ignore();
    status.tell(tr("The window closes when all is written"));
    exports->whenWritten([this] { close(); });
    return;
  }
  if (leaving || !sessions->isUnsaved())
  {
    sessions->end();
    event->accept();
    return;
  }
  event->ignore();
  sessions->leave(
      [this]
      {
        const QScopedValueRollback<bool> guard(leaving, true);
        close();
      });
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
  if (!droppedFile(event->mimeData()).isEmpty())
    event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
  const QString path = droppedFile(event->mimeData());
  if (path.isEmpty())
    return;
  event->acceptProposedAction();
  openInstead(path);
}

} // namespace Talmesh::app
