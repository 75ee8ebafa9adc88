#include "app/comparison/ComparisonDock.h"
#include "app/window/ClusterDock.h"
#include "app/window/ExportController.h"
#include "app/window/FileDialogs.h"
#include "app/window/HelpMenu.h"
#include "app/window/MainWindow.h"
#include "app/window/PlotDock.h"
#include "app/window/RecentMenu.h"
#include "app/window/SelectionMenu.h"
#include "app/window/SessionController.h"
#include "app/window/StudiesMenu.h"
#include "app/window/ViewMenu.h"
#include "widgets/VtkPlotWidget.h"

#include <QMenuBar>
#include <QTabWidget>

namespace Talmesh::app
{

void MainWindow::makeMenus()
{
  makeFileMenu();
  makeSelectionMenu();
  auto* view = new ViewMenu(*dock, this);
  view->addPanel(dock->toggleViewAction(), Qt::Key_F9);
  view->addPanel(comparison->toggleViewAction(), Qt::Key_F8);
  connect(view, &ViewMenu::styleChosen, this, &MainWindow::chooseStyle);
  menuBar()->addMenu(view);
  auto* studies = new StudiesMenu(shown, this);
  studies->addAction(clusterDock->toggleViewAction());
  connect(studies, &StudiesMenu::runsWanted, this, &MainWindow::returnToRuns);
  connect(studies, &StudiesMenu::exampleWanted, this, &MainWindow::openExampleInstead);
  connect(studies, &StudiesMenu::studyWanted, opener, &StudyOpener::openComputed);
  menuBar()->addMenu(studies);
  menuBar()->addMenu(new HelpMenu(*menuBar(), this));
}

void MainWindow::makeFileMenu()
{
  QMenu* file = menuBar()->addMenu(tr("&File"));
  const auto add = [this, file](const QString& text, const QKeySequence& keys, auto slot)
  {
    QAction* action = file->addAction(text, this, slot);
    action->setShortcut(keys);
    return action;
  };
  add(tr("&Open..."), QKeySequence::Open, &MainWindow::chooseFile);
  file->addMenu(recent);
  connect(recent, &RecentMenu::fileChosen, this, &MainWindow::openInstead);
  add(tr("Open the e&xample study"), QKeySequence(tr("Ctrl+Shift+O")),
      &MainWindow::openExampleInstead);
  file->addSeparator();
  add(tr("Open sessio&n..."), QKeySequence(tr("Ctrl+Alt+O")), &MainWindow::chooseSession);
  saving[0] = add(tr("&Save session..."), QKeySequence::Save, [this] { sessions->save(); });
  saving[0]->setObjectName(QStringLiteral("saveSession"));
  saving[1] = add(tr("Save session &as..."), QKeySequence(tr("Ctrl+Alt+S")),
                  [this] { sessions->saveAs(); });
  saving[1]->setObjectName(QStringLiteral("saveSessionAs"));
  for (QAction* action : saving)
    action->setEnabled(false);
  file->addSeparator();
  add(tr("&Export..."), QKeySequence(tr("Ctrl+E")), [this] { exports->choose(); });
  file->addSeparator();
  add(tr("&Quit"), QKeySequence(tr("Ctrl+Q")), &QWidget::close);
}

void MainWindow::makeSelectionMenu()
{
  auto* menu = new SelectionMenu(shown.selection(), this);
  connect(menu, &SelectionMenu::failed, this, &MainWindow::showError);
  connect(menu, &SelectionMenu::kept, this,
          [this]
          {
            if (!shown.study().chart)
              sessions->selectionSaved();
          });
  connect(tabs, &QTabWidget::currentChanged, menu,
          [this, menu] { menu->setSelecting(tabs->currentWidget() == plot); });
  menuBar()->addMenu(menu);
}

void MainWindow::chooseFile()
{
  askToOpen(this, tr("Open runs"),
            tr("Tables and sessions (*.csv *.tsv *.txt *.talmesh);;All files (*)"),
            [this](const QString& path) { openInstead(path); });
}

void MainWindow::chooseSession()
{
  askToOpen(this, tr("Open session"), tr("Sessions (*.talmesh)"),
            [this](const QString& path) { openInstead(path); });
}

void MainWindow::chooseStyle(plotStyles style)
{
  PlotChoice choice = shown.choice();
  choice.style = style;
  shown.choose(choice);
}

void MainWindow::openInstead(const QString& path)
{
  sessions->leave([this, path] { openFile(path); });
}

void MainWindow::openExampleInstead()
{
  sessions->leave([this] { openExample(); });
}

} // namespace Talmesh::app
