#include "app/document/PlotSession.h"
#include "app/document/SelectionController.h"
#include "app/session/SessionFile.h"
#include "app/window/FileDialogs.h"
#include "app/window/GroupController.h"
#include "app/window/MainWindow.h"
#include "app/window/PlotDock.h"
#include "app/window/SessionController.h"
#include "app/window/TimeCoursePage.h"
#include "plot/PlotContainer.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenu>
#include <QScopedValueRollback>

namespace Talmesh::app
{

void MainWindow::makeSessions()
{
  sessions = new SessionController(*this, [this] { return sessionSource(); });
  connect(sessions, &SessionController::written, this,
          [this](const QString& path, const std::string& error)
          {
            if (sayWhatWasWritten(path, error))
              recent.add(path);
          });
  connect(sessions, &SessionController::failed, this, &MainWindow::say);
  connect(sessions, &SessionController::bringBackWanted, this, &MainWindow::bringBack);
}

void MainWindow::addSessionActions(QMenu* menu)
{
  addAction(menu, tr("Open sessio&n..."), QKeySequence(tr("Ctrl+Alt+O")),
            &MainWindow::chooseSession);
  addAction(menu, tr("&Save session..."), QKeySequence::Save, &MainWindow::saveSession)
      ->setObjectName(QStringLiteral("saveSession"));
  addAction(menu, tr("Save session &as..."), QKeySequence(tr("Ctrl+Alt+S")),
            &MainWindow::saveSessionAs)
      ->setObjectName(QStringLiteral("saveSessionAs"));
  menu->addSeparator();
}

void MainWindow::chooseSession()
{
  askToOpen(this, tr("Open session"), tr("Sessions (*.talmesh)"),
            [this](const QString& path) { openInstead(path); });
}

bool MainWindow::canSaveSession() const
{
  return container && !study.chart && (study.runs || study.table);
}

/// The runs or the table opened last, even while a computed study takes their place.
std::optional<SessionSource> MainWindow::sessionSource()
{
  const bool aside = study.chart != nullptr;
  const Study& opened = aside ? lastRuns.study : study;
  PlotContainer* shown = aside ? lastRuns.container : container;
  if (!shown || !(opened.runs || opened.table))
    return {};
  SessionSource source =
      sessionOf(opened, *shown, aside ? lastRuns.choice : dock->choice(), &groups->runNormaliser());
  source.groups = groups->sessionGroups();
  return source;
}

void MainWindow::saveSession()
{
  if (canSaveSession())
    sessions->save();
}

void MainWindow::saveSessionAs()
{
  if (canSaveSession())
    sessions->saveAs();
}

bool MainWindow::saveSessionTo(const QString& path)
{
  return canSaveSession() && sessions->saveTo(path);
}

void MainWindow::openInstead(const QString& path)
{
  sessions->leave([this, path] { openFile(path); });
}

void MainWindow::openExampleInstead()
{
  sessions->leave([this] { openExample(); });
}

void MainWindow::keepWork(const QString& folder, int milliseconds)
{
  sessions->keepIn(folder, milliseconds);
  sessions->offerLeftWork();
}

void MainWindow::keepWorkNow()
{
  sessions->keepNow();
}

void MainWindow::bringBack(const LeftWork& work)
{
  openFile(work.path);
  // It is no file of the user's own.
  loadingPath.clear();
  bringingBack = work;
}

/// What is shown now is the state that later ones are compared with.
void MainWindow::noteWhatIsOpened(const OpenedStudy& result)
{
  const LeftWork left = std::exchange(bringingBack, LeftWork());
  // Runs stay the user's work while a computed study takes their place.
  if (result.study.chart)
    return;
  if (left.lock && result.session)
    sessions->broughtBack(result.session->settings.origin, left);
  else if (result.session)
    sessions->opened({loadingPath, result.session->end});
  else
    sessions->opened({});
}

void MainWindow::closeEvent(QCloseEvent* event)
{
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

void MainWindow::showSession(const RestoredSession& session)
{
  restoreSettings(session, *container);
  groups->restoreNormalised(session.settings.normalised);
  groups->restoreGroups(session.settings.groups);
  restoreWindow(session, *container);
  timeCourses->refresh();
  dock->setColumns(container->getLabels());
  restoreSelection(session, *container);
  dock->setChoice(restoredChoice(session, *container));
  // The history begins with what is restored.
  selection->restartHistory();
}

} // namespace Talmesh::app
