#include "app/window/MainWindow.h"

#include "app/comparison/ComparisonDock.h"
#include "app/session/FileNameCodec.h"
#include "app/window/ComparisonController.h"
#include "app/window/ExportController.h"
#include "app/window/FeatureController.h"
#include "app/window/GroupController.h"
#include "app/window/RecentMenu.h"
#include "app/window/SearchController.h"
#include "app/window/SessionController.h"
#include "app/window/WindowPanels.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkAbstractContextItem.h>

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStatusBar>

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

/// All that is dropped; nothing where a part of it is no file of this system.
QStringList droppedFiles(const QMimeData* data)
{
  QStringList files;
  for (const QUrl& url : data->urls())
    files.append(localFileOf(url));
  return files.contains(QString()) ? QStringList() : files;
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , plot(new VtkPlotWidget)
    , shown([this](PlotContainer& container) { plot->placePlotContainer(&container); },
            plot->plotContainer())
    , panels(new WindowPanels(*this, shown, *plot))
    , status(*statusBar())
    , opener(new StudyOpener(shown, status.opening(), this))
    , searching(new SearchController(shown, status.searching(), this))
    , features(new FeatureController(shown, status.features(), this))
    , grouping(new GroupController(*panels->clusters, shown, status.grouping(), this))
    , comparing(new ComparisonController(*panels->comparison, shown, status.comparing(), this))
    , sessions(new SessionController(*this, shown))
    , exports(new ExportController(*plot, status.exporting(), *this))
    , recent(new RecentMenu(this))
{
  setWindowTitle(QStringLiteral("Talmesh Plot"));
  setAcceptDrops(true);
  // What the widget shows by itself is nobody's data.
  plot->plotContainer()->getItem()->SetVisible(false);
  shown.selection().gestures().setPixelRatio([this] { return plot->devicePixelRatioF(); });
  makeMenus();
  takeFirstSize();
  panels->connectDocument();
  connectDocument();
  connectControllers();
}

MainWindow::~MainWindow()
{
  // Their threads must not outlive what they report to.
  delete opener;
  delete searching;
  delete features;
  delete grouping;
  delete comparing;
  delete exports;
  // What shows the document's containers ends before them.
  delete takeCentralWidget();
}

void MainWindow::takeFirstSize()
{
  const QFontMetrics metrics = fontMetrics();
  const QSize wished(firstCharacters * metrics.averageCharWidth(),
                     firstLines * metrics.lineSpacing());
  resize(wished.boundedTo(screen()->availableSize() * 9 / 10));
  resizeDocks({panels->comparison}, {comparisonLines * metrics.lineSpacing()}, Qt::Vertical);
}

PlotDock* MainWindow::plotDock() const
{
  return panels->choices;
}

ComparisonDock* MainWindow::comparisonDock() const
{
  return panels->comparison;
}

QTabWidget* MainWindow::pages() const
{
  return panels->pages;
}

FilterLine* MainWindow::filterLine() const
{
  return panels->filter;
}

GestureActions* MainWindow::gestureActions() const
{
  return panels->pointing;
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

void MainWindow::openFiles(const QStringList& paths)
{
  opener->openFiles(paths);
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
  return isLoading() || searching->isSearching() || features->isComputing() ||
         grouping->isGrouping() || comparing->isComparing() || exports->isExporting();
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
  if (!droppedFiles(event->mimeData()).isEmpty())
    event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
  const QStringList paths = droppedFiles(event->mimeData());
  if (paths.isEmpty())
    return;
  event->acceptProposedAction();
  openInstead(paths);
}

} // namespace Talmesh::app
