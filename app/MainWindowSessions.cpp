#include "app/MainWindow.h"
#include "app/PlotDock.h"
#include "app/SelectionController.h"
#include "app/Session.h"
#include "app/SessionFile.h"
#include "plot/PlotContainer.h"
#include "widgets/WidgetSupport.h"

#include <QAction>
#include <QFileDialog>
#include <QMenu>
#include <QStatusBar>

namespace Talmesh::app
{

namespace
{

constexpr int noteMilliseconds = 10000;

} // namespace

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
  auto* dialog = new QFileDialog(this, tr("Open session"), {}, tr("Sessions (*.talmesh)"));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setOptions(getFileDialogOption());
  dialog->setFileMode(QFileDialog::ExistingFile);
  connect(dialog, &QFileDialog::fileSelected, this, &MainWindow::openFile);
  dialog->open();
}

bool MainWindow::canSaveSession() const
{
  return container && !study.chart && (study.runs || study.table);
}

void MainWindow::saveSession()
{
  if (!canSaveSession())
    return;
  auto* dialog = new QFileDialog(this, tr("Save session"), {}, tr("Sessions (*.talmesh)"));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setOptions(getFileDialogOption());
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setDefaultSuffix(QLatin1String(sessionSuffix));
  connect(dialog, &QFileDialog::fileSelected, this, &MainWindow::saveSessionTo);
  // Another study has another container: this one is no longer there to be saved.
  connect(container, &QObject::destroyed, dialog, &QDialog::reject);
  dialog->open();
}

bool MainWindow::saveSessionTo(const QString& path)
{
  if (!canSaveSession())
    return false;
  const std::string error = Talmesh::app::saveSession(path, study, *container, dock->choice());
  if (!error.empty())
  {
    showError(QString::fromStdString(error));
    return false;
  }
  recent.add(path);
  statusBar()->showMessage(tr("Wrote %1").arg(path), noteMilliseconds);
  return true;
}

void MainWindow::showSession(const RestoredSession& session)
{
  restoreSettings(session, *container);
  dock->setColumns(container->getLabels());
  restoreSelection(session, *container);
  dock->setChoice(restoredChoice(session, *container));
  // The history begins with what is restored.
  selection->restartHistory();
}

} // namespace Talmesh::app
