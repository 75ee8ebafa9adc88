#include "app/comparison/ComparisonChoice.h"
#include "app/document/SelectionController.h"
#include "app/document/ShownStudy.h"
#include "app/examples/ExampleStudy.h"
#include "app/tasks/StudyLoader.h"
#include "app/window/GroupController.h"
#include "app/window/LoadingBar.h"
#include "app/window/MainWindow.h"
#include "app/window/PlotDock.h"
#include "app/window/TimeCoursePage.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QStatusBar>

#include <exception>
#include <utility>

namespace Talmesh::app
{

namespace
{

/// Containers that the window did not make belong to the plot.
void drop(PlotContainer* container, const QObject* window)
{
  if (container && container->parent() == window)
    container->deleteLater();
}

} // namespace

void MainWindow::open(const OpeningWishes& asked)
{
  if (asked.width > 0)
    // The window grows by as much as the plot must.
    resize(QWidget::size() + QSize(asked.width, asked.height) - plot->size());
  if (asked.file.empty())
    openExample();
  else
    openFile(QFile::decodeName(asked.file.c_str()));
  wishes = asked;
  openingNamed = true;
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
       [](const ImportProgress& progress)
       {
         OpenedStudy example;
         example.study = exampleStudyOfRepressilator(progress);
         example.cancelled = !example.study.runs;
         return example;
       });
}

bool MainWindow::isLoading() const
{
  return loader->isLoading();
}

void MainWindow::load(const QString& name, std::function<OpenedStudy(const ImportProgress&)> job)
{
  forgetCommandLine();
  bringingBack = {};
  statusBar()->showMessage(tr("Opening %1 ...").arg(name));
  loadingBar->begin();
  loader->start(std::move(job));
}

void MainWindow::cancelLoading()
{
  forgetCommandLine();
  loader->cancel();
  loadingBar->end();
  say(tr("Cancelled"));
}

/// What the command line wishes concerns no other study than the one that it names.
void MainWindow::forgetCommandLine()
{
  wishes = OpeningWishes();
  openingNamed = false;
}

void MainWindow::finishLoading(const OpenedStudy& result)
{
  loadingBar->end();
  statusBar()->clearMessage();
  if (!result.error.empty())
  {
    if (!loadingPath.isEmpty())
      recent.remove(loadingPath);
    sayThatItFailed(QString::fromStdString(result.error));
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
    say(notes.join(QLatin1Char(' ')));
  const bool asWished = applyWishes();
  noteWhatIsOpened(result);
  if (asWished)
    emit opened();
  // What is restored is no update that the user waits for.
  clock.end();
}

void MainWindow::sayThatItFailed(const QString& message)
{
  const bool named = openingNamed;
  forgetCommandLine();
  showError(message);
  emit openFailed(message);
  if (named)
    emit commandLineFailed(message);
}

/// Shows what the command line asked for, once, or the study's own first choice.
bool MainWindow::applyWishes()
{
  PlotChoice choice = dock->choice();
  const std::string error = chooseByName(*container, wishes, choice);
  if (error.empty())
    dock->setChoice(choice);
  applyDock();
  if (error.empty())
    forgetCommandLine();
  else
    sayThatItFailed(QString::fromStdString(error));
  return error.empty();
}

void MainWindow::showStudyInPlot(const Study& opened)
{
  leaveStudy(opened.chart != nullptr);
  // A container remembers much of what it showed before, so each study gets its own.
  container = new PlotContainer(this);
  container->setDiagnosticsShown(false);
  plot->setPlotContainer(container);
  study = opened;
  showStudy(study, *container);
  if (!study.chart)
    chooseOpeningStyle(*container, wishes);
  dock->setColumns(container->getLabels());
  dock->setChoice(choiceOf(*container));
  if (study.chart)
  {
    selection->visit(container);
  }
  else
  {
    selection->follow(container);
    groups->follow(container, study);
  }
  showWhatIsLoaded();
}

/// Puts the container now shown aside, or away.
void MainWindow::leaveStudy(bool forOwnChart)
{
  if (forOwnChart && (study.runs || study.table))
  {
    lastRuns = {study, container, dock->columns(), dock->choice()};
    return;
  }
  drop(container, this);
  if (forOwnChart)
    return;
  groups->leave();
  drop(lastRuns.container, this);
  lastRuns = {};
}

void MainWindow::returnToRuns()
{
  if (!study.chart || !lastRuns.container)
    return;
  if (isLoading())
    cancelLoading();
  drop(container, this);
  const LastRuns runs = std::exchange(lastRuns, {});
  container = runs.container;
  study = runs.study;
  try
  {
    plot->setPlotContainer(container);
  }
  catch (const std::exception&)
  {
    // What could not be drawn before cannot be drawn now; the last step says so.
  }
  dock->setColumns(runs.columns);
  dock->setChoice(runs.choice);
  selection->endVisit();
  showWhatIsLoaded();
  applyDock();
}

/// Brings what surrounds the plot into line with the study that is now shown.
void MainWindow::showWhatIsLoaded()
{
  timeCourses->setStudy(study);
  followStudy();
  size->setText(QString::fromStdString(studySize(study, *container)));
  clock.follow(container->getAnnotationLink());
  selected->setText(selection->summary());
  setWindowTitle(QString::fromStdString(study.name) + QStringLiteral(" - Talmesh Plot"));
}

} // namespace Talmesh::app
