#include "app/window/MainWindow.h"

#include "app/comparison/ComparisonDock.h"
#include "app/comparison/ComparisonResults.h"
#include "app/document/PlotChoice.h"
#include "app/document/SelectionController.h"
#include "app/session/FileNameCodec.h"
#include "app/tasks/StudyLoader.h"
#include "app/window/GroupController.h"
#include "app/window/LoadingBar.h"
#include "app/window/PlotDock.h"
#include "app/window/TimeCoursePage.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFontMetrics>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
#include <QStatusBar>
#include <QTabWidget>

namespace Talmesh::app
{

namespace
{

/// The window at first: so many characters wide and lines high, of the font in use.
constexpr int firstCharacters = 170;
constexpr int firstLines = 54;
/// The comparison beneath the plot is as high as its controls, so that the plot keeps the rest.
constexpr int comparisonLines = 12;
constexpr int noteMilliseconds = 10000;

QString droppedFile(const QMimeData* data)
{
  const QList<QUrl> urls = data->urls();
  return urls.size() == 1 ? localFileOf(urls.front()) : QString();
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , plot(new VtkPlotWidget)
    , timeCourses(new TimeCoursePage)
    , tabs(new QTabWidget)
    , dock(new PlotDock)
    , comparison(new ComparisonDock)
    , selection(new SelectionController(this))
    , loader(new StudyLoader(this))
{
  setWindowTitle(QStringLiteral("Talmesh Plot"));
  setAcceptDrops(true);
  tabs->addTab(plot, tr("Runs"));
  tabs->addTab(timeCourses, tr("Time courses"));
  tabs->setDocumentMode(true);
  setCentralWidget(tabs);
  addDockWidget(Qt::RightDockWidgetArea, dock);
  addDockWidget(Qt::BottomDockWidgetArea, comparison);
  setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
  container = plot->plotContainer();
  makeSessions();
  makeMenus();
  makeStudies();
  makeStatusBar();
  takeFirstSize();
  selection->follow(container);
  connect(selection, &SelectionController::changed, this, &MainWindow::showSelection);
  connect(dock, &PlotDock::choiceChanged, this, &MainWindow::applyDock);
  connect(comparison, &ComparisonDock::choiceChanged, this, &MainWindow::applyComparison);
  connect(comparison, &ComparisonDock::styleChosen, this, &MainWindow::chooseStyle);
  connect(comparison, &ComparisonDock::said, this, &MainWindow::say);
  connect(comparison, &ComparisonDock::failed, this, &MainWindow::showError);
  connect(loader, &StudyLoader::progressed, loadingBar, &LoadingBar::setPercent);
  connect(loader, &StudyLoader::finished, this, &MainWindow::finishLoading);
  connect(loadingBar, &LoadingBar::cancelled, this, &MainWindow::cancelLoading);
}

MainWindow::~MainWindow()
{
  // The loader goes first: its thread must not outlive what it reports to.
  delete loader;
}

void MainWindow::takeFirstSize()
{
  const QFontMetrics metrics = fontMetrics();
  const QSize wished(firstCharacters * metrics.averageCharWidth(),
                     firstLines * metrics.lineSpacing());
  resize(wished.boundedTo(screen()->availableSize() * 9 / 10));
  resizeDocks({comparison}, {comparisonLines * metrics.lineSpacing()}, Qt::Vertical);
}

void MainWindow::makeStatusBar()
{
  size = new QLabel;
  size->setObjectName(QStringLiteral("studySize"));
  loadingBar = new LoadingBar;
  selected = new QLabel;
  selected->setObjectName(QStringLiteral("selectionSize"));
  statusBar()->addPermanentWidget(loadingBar);
  statusBar()->addPermanentWidget(selected);
  statusBar()->addPermanentWidget(size);
}

/// @return false when it could not be drawn, which the status bar then says
bool MainWindow::applyDock()
{
  if (!container)
    return true;
  if (study.chart)
  {
    drawOwnChart();
    return true;
  }
  dropOutdatedTests(*container);
  const std::string error = applyChoice(*container, dock->choice());
  groups->dress();
  selected->setText(selection->summary());
  comparison->refresh(*container);
  plot->updatePlot(true);
  if (!error.empty())
    say(QString::fromStdString(error));
  return error.empty() && !sayWhatIsLinear();
}

/// @return whether an axis that is to be logarithmic is not
bool MainWindow::sayWhatIsLinear()
{
  const PlotChoice choice = choiceOf(*container);
  if (!hasLegend(choice.style))
    return false;
  const bool linear = (choice.logX && !container->showsLogScaleX()) ||
                      (choice.logY && !container->showsLogScaleY());
  if (linear)
    say(tr("Linear scale: a logarithmic one needs positive values"));
  return linear;
}

/// A changed selection has drawn the chart anew, without what the viewer adds to it.
void MainWindow::showSelection()
{
  if (study.chart)
  {
    selected->setText(selection->summary());
    plot->updatePlot(true);
    return;
  }
  sayHowLongItTook(applyDock());
}

void MainWindow::applyComparison()
{
  if (!container)
    return;
  clock.begin();
  writeComparisonChoice(*container, comparison->choice());
  sayHowLongItTook(applyDock());
}

void MainWindow::chooseStyle(plotStyles style)
{
  PlotChoice choice = dock->choice();
  choice.style = style;
  dock->setChoice(choice);
  applyDock();
}

/// @param drawn what could not be drawn took no time worth a word
void MainWindow::sayHowLongItTook(bool drawn)
{
  const std::optional<qint64> milliseconds = clock.end();
  if (milliseconds && drawn)
    say(tr("Updated in %1 ms").arg(*milliseconds));
}

QString MainWindow::selectionText() const
{
  return selected->text();
}

QString MainWindow::sizeText() const
{
  return size->text();
}

void MainWindow::say(const QString& message)
{
  statusBar()->showMessage(message, noteMilliseconds);
}

void MainWindow::showError(const QString& message)
{
  say(message);
  if (!isVisible())
    return;
  // Opened, not executed: a nested event loop would let the window die under this call.
  auto* box = new QMessageBox(QMessageBox::Warning, QStringLiteral("Talmesh Plot"), message,
                              QMessageBox::Ok, this);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setTextFormat(Qt::PlainText);
  box->open();
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
