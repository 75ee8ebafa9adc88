#include "app/window/WindowPanels.h"

#include "app/comparison/ComparisonDock.h"
#include "app/document/Document.h"
#include "app/document/FeatureColumns.h"
#include "app/document/OwnChart.h"
#include "app/window/ClusterDock.h"
#include "app/window/FilterLine.h"
#include "app/window/GestureActions.h"
#include "app/window/KeptSelectionsDock.h"
#include "app/window/PlotDock.h"
#include "app/window/RunTableDock.h"
#include "app/window/StepsDock.h"
#include "app/window/StudyDock.h"
#include "app/window/TimeCoursePage.h"
#include "widgets/VtkPlotWidget.h"

#include <QMainWindow>
#include <QTabWidget>
#include <QToolBar>

#include <initializer_list>
#include <utility>
#include <vector>

namespace Talmesh::app
{

WindowPanels::WindowPanels(QMainWindow& around, Document& shown, VtkPlotWidget& chart)
    : QObject(&around)
    , timeCourses(new TimeCoursePage)
    , pages(new QTabWidget)
    , choices(new PlotDock)
    , clusters(new ClusterDock)
    , study(new StudyDock)
    , comparison(new ComparisonDock)
    , runTable(new RunTableDock(shown))
    , keptSelections(new KeptSelectionsDock(shown))
    , steps(new StepsDock(shown.selection()))
    , filter(new FilterLine(shown.selection()))
    , pointing(new GestureActions(shown.selection().gestures(), &around))
    , window(around)
    , document(shown)
    , plot(chart)
{
  pages->addTab(&plot, tr("Runs"));
  pages->addTab(timeCourses, tr("Time courses"));
  pages->setDocumentMode(true);
  window.setCentralWidget(pages);
  placeDocks();
  placeFilterLine();
}

void WindowPanels::placeDocks()
{
  window.addDockWidget(Qt::RightDockWidgetArea, choices);
  window.addDockWidget(Qt::BottomDockWidgetArea, comparison);
  for (QDockWidget* panel : std::initializer_list<QDockWidget*>{runTable, keptSelections, steps})
  {
    window.addDockWidget(Qt::BottomDockWidgetArea, panel);
    window.tabifyDockWidget(comparison, panel);
  }
  comparison->raise();
  for (QDockWidget* panel : std::initializer_list<QDockWidget*>{clusters, study})
  {
    window.addDockWidget(Qt::RightDockWidgetArea, panel);
    window.tabifyDockWidget(choices, panel);
  }
  choices->raise();
  study->hide();
}

void WindowPanels::placeFilterLine()
{
  auto* bar = new QToolBar(tr("Selecting runs"));
  pointing->addTo(*bar);
  bar->addSeparator();
  bar->addWidget(filter);
  bar->setMovable(false);
  window.addToolBar(Qt::TopToolBarArea, bar);
}

void WindowPanels::connectDocument()
{
  connect(&document, &Document::valuesChanged, timeCourses, &TimeCoursePage::refresh);
  const auto tellSelected = [this]
  { timeCourses->setSelectedRuns(document.selection().selectedRuns()); };
  connect(&document.selection(), &SelectionController::changed, timeCourses, tellSelected);
  connect(&document, &Document::studyChanged, timeCourses, tellSelected);
  connect(&document, &Document::drawn, timeCourses,
          [this] { timeCourses->setKept(document.groups().keptColouring()); });
  connect(timeCourses, &TimeCoursePage::modeChosen, this,
          [this] { document.views().courses = timeCourses->mode(); });
  connect(&document, &Document::studyChanged, pointing, &GestureActions::refresh);
  connect(&document, &Document::choiceChanged, choices,
          [this]
          {
            // What the user has just done to the panel stays as it is.
            if (!(choices->choice() == document.choice()))
              choices->setChoice(document.choice());
          });
  connect(choices, &PlotDock::choiceChanged, this, [this] { document.choose(choices->choice()); });
  connect(study, &StudyDock::variantChanged, this,
          [this] { document.chooseVariant(study->variant()); });
  connectComparison();
  connectRunLists();
}

void WindowPanels::connectComparison()
{
  connect(comparison, &ComparisonDock::styleChosen, this, &WindowPanels::styleChosen);
  connect(comparison, &ComparisonDock::said, this, &WindowPanels::said);
  connect(comparison, &ComparisonDock::failed, this, &WindowPanels::failed);
}

void WindowPanels::connectRunLists()
{
  connect(runTable, &RunTableDock::said, this, &WindowPanels::said);
  connect(runTable, &RunTableDock::failed, this, &WindowPanels::failed);
  connect(runTable, &RunTableDock::runOpened, this,
          [this](std::size_t run)
          {
            pages->setCurrentWidget(timeCourses);
            timeCourses->openRun(run);
          });
  connect(keptSelections, &KeptSelectionsDock::said, this, &WindowPanels::said);
  connect(keptSelections, &KeptSelectionsDock::failed, this, &WindowPanels::failed);
  const auto tellWords = [this]
  { filter->follow(QString::fromStdString(document.selection().words())); };
  connect(&document.selection(), &SelectionController::changed, filter, tellWords);
  connect(&document, &Document::studyChanged, filter, tellWords);
  connect(steps, &StepsDock::said, this, &WindowPanels::said);
  connect(steps, &StepsDock::wordsWanted, filter, &FilterLine::put);
}

void WindowPanels::showStudy()
{
  const Study& shown = document.study();
  const bool own = shown.chart != nullptr;
  std::vector<std::pair<int, QString>> features;
  for (const int column : document.features())
    features.emplace_back(column,
                          QString::fromStdString(columnTitle(*document.container(), column)));
  choices->setColumns(document.columns(), features);
  choices->setChoice(document.choice());
  timeCourses->setMode(document.views().courses);
  document.views().courses = timeCourses->mode();
  timeCourses->setStudy(shown);
  for (QDockWidget* panel : std::initializer_list<QDockWidget*>{choices, clusters})
  {
    panel->widget()->setEnabled(!own);
    panel->widget()->setToolTip(own ? tr("The chart of this study is composed already.")
                                    : QString());
  }
  comparison->widget()->setEnabled(!own);
  study->setVisible(own);
  if (!own)
    return;
  pages->setCurrentWidget(&plot);
  study->raise();
  study->setChart(*shown.chart);
}

} // namespace Talmesh::app
