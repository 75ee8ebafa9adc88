#include "app/FileDialogs.h"
#include "app/GroupController.h"
#include "app/MainWindow.h"
#include "app/PlotDock.h"
#include "app/SelectionController.h"
#include "app/Session.h"
#include "app/SessionFile.h"
#include "app/TimeCoursePage.h"
#include "plot/PlotContainer.h"

#include <QAction>
#include <QFileDialog>
#include <QMenu>

namespace Talmesh::app
{

void MainWindow::addSessionActions(QMenu* menu)
{
  addAction(menu, tr("Open sessio&n..."), QKeySequence(tr("Ctrl+Alt+O")),
            &MainWindow::chooseSession);
  addAction(menu, tr("&Save session..."), QKeySequence::Save, &MainWindow::saveSession)
      ->setObjectName(QStringLiteral("saveSession"));
  menu->addSeparator();
}

void MainWindow::chooseSession()
{
  askToOpen(this, tr("Open session"), tr("Sessions (*.talmesh)"),
            [this](const QString& path) { openFile(path); });
}

bool MainWindow::canSaveSession() const
{
  return container && !study.chart && (study.runs || study.table);
}

void MainWindow::saveSession()
{
  if (!canSaveSession())
    return;
  QFileDialog* dialog =
      askToSave(this, tr("Save session"), tr("Sessions (*.talmesh)"), QLatin1String(sessionSuffix),
                [this](const QString& path) { saveSessionTo(path); });
  // Another study has another container: this one is no longer there to be saved.
  connect(container, &QObject::destroyed, dialog, &QDialog::reject);
}

bool MainWindow::saveSessionTo(const QString& path)
{
  if (!canSaveSession())
    return false;
  const std::string error =
      Talmesh::app::saveSession(path, study, *container, dock->choice(), &groups->runNormaliser());
  const bool written = sayWhatWasWritten(path, error);
  if (written)
    recent.add(path);
  return written;
}

void MainWindow::showSession(const RestoredSession& session)
{
  restoreSettings(session, *container);
  groups->restoreNormalised(session.settings.normalised);
  restoreWindow(session, *container);
  timeCourses->refresh();
  dock->setColumns(container->getLabels());
  restoreSelection(session, *container);
  dock->setChoice(restoredChoice(session, *container));
  // The history begins with what is restored.
  selection->restartHistory();
}

} // namespace Talmesh::app
