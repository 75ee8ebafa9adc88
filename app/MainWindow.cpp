#include "app/MainWindow.h"

#include "app/ComparisonDock.h"
#include "app/ComparisonResults.h"
#include "app/GroupController.h"
#include "app/LoadingBar.h"
#include "app/PlotChoice.h"
#include "app/PlotDock.h"
#include "app/SelectionController.h"
#include "app/StudyLoader.h"
#include "app/TimeCoursePage.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QFontMetrics>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
#include <QStatusBar>
#include <QStringList>
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

QString localFileOf(const QMimeData* data)
{
  const QList<QUrl> urls = data->urls();
  return urls.size() == 1 && urls.front().isLocalFile() ? urls.front().toLocalFile() : QString();
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
  makeMenus();
  makeStudies();
  makeStatusBar();
  takeFirstSize();
  selection->follow(container);
  connect(selection, &SelectionController::changed, this, &MainWindow::showSelection);
  connect(dock, &PlotDock::choiceChanged, this, &MainWindow::applyDock);
  connect(comparison, &ComparisonDock::choiceChanged, this, &MainWindow::applyComparison);
  connect(comparison, &ComparisonDock::styleChosen, this, &MainWindow::chooseStyle);
  connect(comparison, &ComparisonDock::said, this,
          [this](const QString& message) { statusBar()->showMessage(message, noteMilliseconds); });
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

void MainWindow::open(const CommandLineOptions& options)
{
  wishes = options;
  if (options.width > 0)
    // The window grows by as much as the plot must.
    resize(QWidget::size() + QSize(options.width, options.height) - plot->size());
  if (options.file.empty())
    openExample();
  else
    openFile(QString::fromStdString(options.file));
}

void MainWindow::openFile(const QString& path)
{
  loadingPath = path;
  load(QFileInfo(path).fileName(),
       [path](const ImportProgress& progress) { return openStudyFile(path, progress); });
}

void MainWindow::openExample()
{
  loadingPath.clear();
  load(tr("the example study"),
       [](const ImportProgress&)
       {
         OpenedStudy example;
         example.study = exampleStudyOfRepressilator();
         return example;
       });
}

bool MainWindow::isLoading() const
{
  return loader->isLoading();
}

void MainWindow::load(const QString& name, std::function<OpenedStudy(const ImportProgress&)> job)
{
  statusBar()->showMessage(tr("Opening %1 ...").arg(name));
  loadingBar->begin();
  loader->start(std::move(job));
}

void MainWindow::cancelLoading()
{
  loader->cancel();
  loadingBar->end();
  statusBar()->showMessage(tr("Cancelled"), noteMilliseconds);
}

void MainWindow::finishLoading(const OpenedStudy& result)
{
  loadingBar->end();
  statusBar()->clearMessage();
  if (!result.error.empty())
  {
    const QString message = QString::fromStdString(result.error);
    if (!loadingPath.isEmpty())
      recent.remove(loadingPath);
    showError(message);
    emit openFailed(message);
    return;
  }
  showStudyInPlot(result.study);
  if (result.session)
    showSession(*result.session);
  if (!loadingPath.isEmpty())
    recent.add(loadingPath);
  QStringList notes;
  for (const std::string& note : result.notes)
    notes.append(QString::fromStdString(note));
  if (!notes.isEmpty())
    statusBar()->showMessage(notes.join(QLatin1Char(' ')), noteMilliseconds);
  if (applyWishes())
    emit opened();
  // What is restored is no update that the user waits for.
  clock.end();
}

void MainWindow::showStudyInPlot(const Study& opened)
{
  leaveStudy();
  // A container remembers much of what it showed before, so each study gets its own.
  auto* fresh = new PlotContainer(this);
  plot->setPlotContainer(fresh);
  if (container && container->parent() == this)
    container->deleteLater();
  container = fresh;
  study = opened;
  showStudy(study, *container);
  if (!study.chart)
    chooseOpeningStyle(*container, wishes);
  timeCourses->setStudy(study);
  followStudy();
  dock->setColumns(container->getLabels());
  dock->setChoice(choiceOf(*container));
  size->setText(QString::fromStdString(studySize(study, *container)));
  selection->follow(container);
  clock.follow(container->getAnnotationLink());
  selected->setText(selection->summary());
  setWindowTitle(QString::fromStdString(study.name) + QStringLiteral(" - Talmesh Plot"));
}

/// Shows what the command line asked for, once, or the study's own first choice.
bool MainWindow::applyWishes()
{
  PlotChoice choice = dock->choice();
  const std::string error = chooseByName(*container, wishes, choice);
  wishes = CommandLineOptions();
  if (error.empty())
    dock->setChoice(choice);
  applyDock();
  if (error.empty())
    return true;
  showError(QString::fromStdString(error));
  emit openFailed(QString::fromStdString(error));
  return false;
}

void MainWindow::applyDock()
{
  if (!container)
    return;
  if (study.chart)
  {
    drawOwnChart();
    return;
  }
  dropOutdatedTests(*container);
  const std::string error = applyChoice(*container, dock->choice());
  groups->dress();
  selected->setText(selection->summary());
  comparison->refresh(*container);
  plot->updatePlot(true);
  if (!error.empty())
    statusBar()->showMessage(QString::fromStdString(error), noteMilliseconds);
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
  applyDock();
  sayHowLongItTook();
}

void MainWindow::applyComparison()
{
  if (!container)
    return;
  clock.begin();
  writeComparisonChoice(*container, comparison->choice());
  applyDock();
  sayHowLongItTook();
}

void MainWindow::chooseStyle(plotStyles style)
{
  PlotChoice choice = dock->choice();
  choice.style = style;
  dock->setChoice(choice);
  applyDock();
}

void MainWindow::sayHowLongItTook()
{
  if (const std::optional<qint64> milliseconds = clock.end())
    statusBar()->showMessage(tr("Updated in %1 ms").arg(*milliseconds), noteMilliseconds);
}

QString MainWindow::selectionText() const
{
  return selected->text();
}

QString MainWindow::sizeText() const
{
  return size->text();
}

void MainWindow::showError(const QString& message)
{
  statusBar()->showMessage(message, noteMilliseconds);
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
  if (!localFileOf(event->mimeData()).isEmpty())
    event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
  const QString path = localFileOf(event->mimeData());
  if (path.isEmpty())
    return;
  event->acceptProposedAction();
  openFile(path);
}

} // namespace Talmesh::app
