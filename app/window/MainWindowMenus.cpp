#include "app/comparison/ComparisonDock.h"
#include "app/session/SessionFile.h"
#include "app/window/ClusterDock.h"
#include "app/window/ExportController.h"
#include "app/window/FileMenu.h"
#include "app/window/GestureActions.h"
#include "app/window/HelpMenu.h"
#include "app/window/ImportDialog.h"
#include "app/window/KeptSelectionsDock.h"
#include "app/window/MainWindow.h"
#include "app/window/PlotDock.h"
#include "app/window/RecentMenu.h"
#include "app/window/RunTableDock.h"
#include "app/window/SelectionMenu.h"
#include "app/window/SessionController.h"
#include "app/window/StepsDock.h"
#include "app/window/StudiesMenu.h"
#include "app/window/ViewMenu.h"
#include "app/window/WindowPanels.h"
#include "widgets/VtkPlotWidget.h"

#include <QMenuBar>
#include <QTabWidget>

namespace Talmesh::app
{

void MainWindow::makeMenus()
{
  makeFileMenu();
  makeSelectionMenu();
  auto* view = new ViewMenu(*panels->choices, this);
  view->addPanel(*panels->choices, Qt::Key_F9);
  view->addPanel(*panels->comparison, Qt::Key_F8);
  view->addPanel(*panels->runTable, Qt::Key_F7);
  view->addPanel(*panels->keptSelections, Qt::Key_F6);
  view->addPanel(*panels->steps, Qt::Key_F5);
  connect(view, &ViewMenu::styleChosen, this, &MainWindow::chooseStyle);
  menuBar()->addMenu(view);
  auto* studies = new StudiesMenu(shown, this);
  studies->addAction(panels->clusters->toggleViewAction());
  connect(studies, &StudiesMenu::runsWanted, this, &MainWindow::returnToRuns);
  connect(studies, &StudiesMenu::exampleWanted, this, &MainWindow::openExampleInstead);
  connect(studies, &StudiesMenu::studyWanted, opener, &StudyOpener::openComputed);
  menuBar()->addMenu(studies);
  menuBar()->addMenu(new HelpMenu(*menuBar(), this));
}

void MainWindow::makeFileMenu()
{
  auto* file = new FileMenu(shown, *recent, this);
  connect(file, &FileMenu::fileChosen, this, [this](const QString& path) { openInstead({path}); });
  connect(file, &FileMenu::filesChosen, this, &MainWindow::openInstead);
  connect(file, &FileMenu::filesToReadChosen, this, &MainWindow::chooseReading);
  connect(file, &FileMenu::exampleWanted, this, &MainWindow::openExampleInstead);
  connect(file, &FileMenu::saveWanted, sessions, [this] { sessions->save(); });
  connect(file, &FileMenu::saveAsWanted, sessions, [this] { sessions->saveAs(); });
  connect(file, &FileMenu::exportWanted, exports, &ExportController::choose);
  menuBar()->addMenu(file);
}

void MainWindow::makeSelectionMenu()
{
  auto* menu = new SelectionMenu(
      shown.selection(), [this] { return plot->cancelDrag() || shown.selection().giveUp(); }, this);
  menu->addSeparator();
  panels->pointing->addTo(*menu);
  connect(menu, &SelectionMenu::failed, this, &MainWindow::showError);
  connect(menu, &SelectionMenu::kept, this,
          [this]
          {
            if (!shown.study().chart)
              sessions->selectionSaved();
          });
  connect(panels->pages, &QTabWidget::currentChanged, menu,
          [this, menu] { menu->setSelecting(panels->pages->currentWidget() == plot); });
  menu->addAction(panels->keptSelections->keepStep());
  menuBar()->addMenu(menu);
}

void MainWindow::chooseStyle(plotStyles style)
{
  PlotChoice choice = shown.choice();
  choice.style = style;
  shown.choose(choice);
}

void MainWindow::openInstead(const QStringList& paths)
{
  sessions->leave([this, paths] { openFiles(paths); });
}

/// A session says itself what it holds.
void MainWindow::chooseReading(const QStringList& paths)
{
  if (isSessionFile(paths.front()))
    openInstead(paths);
  else
    askHowToRead(this, paths, {},
                 [this, paths](const ImportRequest& request)
                 { sessions->leave([this, paths, request] { opener->openAs(paths, request); }); });
}

void MainWindow::openExampleInstead()
{
  sessions->leave([this] { openExample(); });
}

} // namespace Talmesh::app
