#include "app/comparison/ComparisonDock.h"
#include "app/window/ComparisonController.h"
#include "app/window/ExportController.h"
#include "app/window/FeatureController.h"
#include "app/window/FileDialogs.h"
#include "app/window/GroupController.h"
#include "app/window/ImportDialog.h"
#include "app/window/MainWindow.h"
#include "app/window/ReadingQuestion.h"
#include "app/window/RecentMenu.h"
#include "app/window/SearchController.h"
#include "app/window/SessionController.h"
#include "app/window/WindowPanels.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

/// What the window does when the document and its controllers announce something.
namespace Talmesh::app
{

void MainWindow::connectDocument()
{
  connect(&shown, &Document::studyChanged, this, &MainWindow::showStudy);
  connect(&shown, &Document::drawn, this, &MainWindow::showDrawing);
  connect(panels->comparison, &ComparisonDock::choiceChanged, this,
          [this]
          {
            clock.begin();
            shown.compareBy(panels->comparison->choice());
          });
  connect(panels, &WindowPanels::said, this,
          [this](const QString& message) { status.say(message); });
  connect(panels, &WindowPanels::failed, this, &MainWindow::showError);
  connect(panels, &WindowPanels::styleChosen, this, &MainWindow::chooseStyle);
}

void MainWindow::connectControllers()
{
  const auto say = [this](const QString& message) { status.say(message); };
  const auto tell = [this](const QString& message) { status.tell(message); };
  const auto clear = [this] { status.clear(); };
  connect(opener, &StudyOpener::said, this, tell);
  connect(opener, &StudyOpener::stopped, this, say);
  connect(opener, &StudyOpener::ended, this, clear);
  connect(searching, &SearchController::said, this, tell);
  connect(searching, &SearchController::stopped, this, say);
  connect(searching, &SearchController::ended, this, clear);
  connect(searching, &SearchController::failed, this, &MainWindow::showError);
  connect(features, &FeatureController::said, this, tell);
  connect(features, &FeatureController::stopped, this, say);
  connect(features, &FeatureController::ended, this, clear);
  connect(features, &FeatureController::failed, this, &MainWindow::showError);
  connect(grouping, &GroupController::said, this, tell);
  connect(grouping, &GroupController::stopped, this, say);
  connect(grouping, &GroupController::ended, this, clear);
  connect(grouping, &GroupController::failed, this, &MainWindow::showError);
  connect(comparing, &ComparisonController::failed, this, &MainWindow::showError);
  connect(opener, &StudyOpener::shown, this, &MainWindow::noteOpened);
  connect(opener, &StudyOpener::opened, this, &MainWindow::opened);
  connect(opener, &StudyOpener::notOpened, recent,
          [this](const OpeningTask& task)
          {
            if (!task.ownPath().isEmpty())
              recent->remove(task.ownPath());
          });
  connect(opener, &StudyOpener::failed, this, &MainWindow::noteFailure);
  connect(opener, &StudyOpener::unsure, this,
          [this](const QString& message, const OpeningTask& task)
          {
            status.say(message);
            askForReadingOf(task);
          });
  connect(exports, &ExportController::said, this, tell);
  connect(exports, &ExportController::stopped, this, say);
  connect(exports, &ExportController::written, this, &MainWindow::noteWritten);
  connect(sessions, &SessionController::written, this,
          [this](const QString& path, const std::string& error)
          {
            if (noteWritten(path, error))
              recent->add(path);
          });
  connect(sessions, &SessionController::failed, this, say);
  connect(sessions, &SessionController::bringBackWanted, opener, &StudyOpener::bringBack);
}

void MainWindow::askForReadingOf(const OpeningTask& task)
{
  const auto open = [this, task](const ImportRequest& request)
  { opener->openAgain(task, request); };
  askForReading(this, task.name, *task.report, task.request, open,
                [this, task, open] { askHowToRead(this, task.paths, task.request, open); });
}

/// Brings what surrounds the plot into line with the study that is now shown.
void MainWindow::showStudy()
{
  panels->showStudy();
  status.setSize(shown.size());
  clock.follow(shown.container()->getAnnotationLink());
  // Dialogs suggest names of files from it.
  setWindowFilePath(QString::fromStdString(shown.study().name));
  setWindowTitle(QString::fromStdString(shown.study().name) + QStringLiteral(" - Talmesh Plot"));
}

/// Paints what was drawn, and says what is worth a word about it.
void MainWindow::showDrawing()
{
  if (!shown.container())
    return;
  status.setSelection(shown.selection().summary());
  comparing->refresh();
  plot->updatePlot(true);
  const std::optional<qint64> milliseconds = clock.end();
  const QString remark = shown.remark();
  if (!remark.isEmpty())
    status.say(remark);
  else if (milliseconds)
    status.say(tr("Updated in %1 ms").arg(*milliseconds));
}

void MainWindow::noteOpened(const OpenedStudy& study, const OpeningTask& task)
{
  if (!task.ownPath().isEmpty())
    recent->add(task.ownPath());
  sessions->opened(study, task.ownPath(), task.left);
}

void MainWindow::noteFailure(const QString& message, const OpeningTask& task)
{
  showError(message);
  emit openFailed(message);
  if (task.namedByCommandLine)
    emit commandLineFailed(message);
}

bool MainWindow::noteWritten(const QString& path, const std::string& error)
{
  if (error.empty())
    status.say(tr("Wrote %1").arg(path));
  else
    showError(QString::fromStdString(error));
  return error.empty();
}

void MainWindow::showError(const QString& message)
{
  status.say(message);
  if (isVisible())
    warn(this, message);
}

} // namespace Talmesh::app
