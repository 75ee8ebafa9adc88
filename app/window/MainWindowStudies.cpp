#include "app/comparison/ComparisonDock.h"
#include "app/document/OwnChart.h"
#include "app/document/SelectionController.h"
#include "app/examples/StudyCatalogue.h"
#include "app/window/ClusterDock.h"
#include "app/window/GroupController.h"
#include "app/window/MainWindow.h"
#include "app/window/PlotDock.h"
#include "app/window/StudyDock.h"
#include "app/window/TimeCoursePage.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QTabWidget>

namespace Talmesh::app
{

void MainWindow::makeStudies()
{
  clusterDock = new ClusterDock;
  addDockWidget(Qt::RightDockWidgetArea, clusterDock);
  tabifyDockWidget(dock, clusterDock);
  studyDock = new StudyDock;
  addDockWidget(Qt::RightDockWidgetArea, studyDock);
  tabifyDockWidget(dock, studyDock);
  dock->raise();
  studyDock->hide();
  groups = new GroupController(*clusterDock, selection->undoStack(), this);
  connect(groups, &GroupController::changed, this, &MainWindow::applyDock);
  connect(groups, &GroupController::changed, timeCourses, &TimeCoursePage::refresh);
  connect(groups, &GroupController::xyPlotWanted, this, [this] { chooseStyle(xyPlot); });
  connect(studyDock, &StudyDock::variantChanged, this,
          [this]
          {
            // Another variant has another title.
            container->getMetaData()->title = ownTitle;
            drawOwnChart();
          });

  studiesMenu = new QMenu(tr("S&tudies"), this);
  studiesMenu->setObjectName(QStringLiteral("studiesMenu"));
  studiesMenu->setToolTipsVisible(true);
  menuBar()->insertMenu(menuBar()->actions().last(), studiesMenu);
  fillStudiesMenu();
  groups->follow(container, study);
  followStudy();
}

/// The actions are named by the ids of their charts.
void MainWindow::fillStudiesMenu()
{
  QAction* runs = studiesMenu->addAction(tr("&Runs"), this, &MainWindow::returnToRuns);
  runs->setObjectName(QStringLiteral("returnToRuns"));
  runs->setShortcut(QKeySequence(tr("Ctrl+R")));
  runs->setToolTip(tr("Show the runs opened last once more"));
  QAction* example =
      studiesMenu->addAction(tr("&Example circuit"), this, &MainWindow::openExampleInstead);
  example->setObjectName(QStringLiteral("exampleCircuit"));
  example->setToolTip(tr("Simulate the runs of the example circuit"));
  studiesMenu->addSeparator();
  QMenu* subject = nullptr;
  for (const CatalogueEntry& entry : studyCatalogue())
  {
    if (!subject || subject->title() != QString::fromStdString(entry.subject))
    {
      subject = studiesMenu->addMenu(QString::fromStdString(entry.subject));
      subject->setToolTipsVisible(true);
    }
    QAction* action = subject->addAction(QString::fromStdString(entry.title));
    action->setObjectName(QString::fromStdString(entry.id));
    action->setToolTip(QString::fromStdString(entry.toolTip));
    action->setCheckable(true);
    connect(action, &QAction::triggered, this,
            [this, action, job = entry.open]
            {
              // The menu marks what is shown, which this study is not before it is computed.
              action->setChecked(study.chart &&
                                 action->objectName().toStdString() == study.chart->id);
              loadingPath.clear();
              load(action->text().remove(QLatin1Char('&')), job);
            });
  }
  studiesMenu->addSeparator();
  studiesMenu->addAction(clusterDock->toggleViewAction());
}

/// Brings menus and panels into line with the study that is now shown.
void MainWindow::followStudy()
{
  const std::string id = study.chart ? study.chart->id : std::string();
  for (QMenu* subject : studiesMenu->findChildren<QMenu*>())
  {
    for (QAction* action : subject->actions())
      action->setChecked(action->objectName().toStdString() == id);
  }
  const bool own = study.chart != nullptr;
  for (const char* name : {"saveSession", "saveSessionAs"})
    findChild<QAction*>(QLatin1String(name))->setEnabled(canSaveSession());
  if (own)
    tabs->setCurrentWidget(plot);
  studiesMenu->findChild<QAction*>(QStringLiteral("returnToRuns"))
      ->setEnabled(own && lastRuns.container);
  for (const QDockWidget* panel :
       {static_cast<QDockWidget*>(dock), static_cast<QDockWidget*>(clusterDock)})
  {
    panel->widget()->setEnabled(!own);
    panel->widget()->setToolTip(own ? tr("The chart of this study is composed already.")
                                    : QString());
  }
  comparison->widget()->setEnabled(!own);
  studyDock->setVisible(own);
  if (!own)
    return;
  studyDock->raise();
  studyDock->setChart(*study.chart);
  ownTitle = container->getMetaData()->title;
  // A redraw by the container would lose what it does not know of the chart.
  PlotMetaData* settings = container->getMetaData();
  disconnect(settings, nullptr, container, nullptr);
  connect(settings, &PlotMetaData::redrawNeeded, this, &MainWindow::drawOwnChart);
}

void MainWindow::drawOwnChart()
{
  if (drawingOwnChart || !container || !study.chart)
    return;
  const QScopedValueRollback<bool> guard(drawingOwnChart, true);
  PlotMetaData& settings = *container->getMetaData();
  const std::string title = settings.title;
  const bool renamed = title != ownTitle;
  study.chart->draw(*container, studyDock->variant());
  ownTitle = settings.title;
  if (renamed)
    container->setPlotTitle(title);
  dock->setChoice(choiceOf(*container));
  selected->setText(selection->summary());
  comparison->refresh(*container);
  plot->updatePlot(true);
}

} // namespace Talmesh::app
