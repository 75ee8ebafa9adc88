#include "app/comparison/ComparisonDock.h"
#include "app/document/SelectionController.h"
#include "external/PlotMetaData.h"
#include "vtk/vtkPlotLineSet.h"

#include <vtkAxis.h>
#include <vtkChartMatrix.h>
#include <vtkDoubleArray.h>
#include <vtkNew.h>
#include <vtkTable.h>

#include <QAction>
#include <QDoubleSpinBox>
#include <QPointer>
#include <QStatusBar>
#include <QUndoGroup>

#include "window/GroupsInWindow.h"

namespace
{

using namespace Talmesh::app;

/// What the user does to the runs, and finds again after a look at a computed study.
class ReturnToRuns : public GroupsInWindow
{
protected:
  void show(const char* id)
  {
    find<QAction>(id)->trigger();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, 60000));
    QCoreApplication::processEvents();
  }

  void goAndReturn()
  {
    show("priors");
    show("puromycin-rates");
    window.returnToRuns();
    QCoreApplication::processEvents();
  }

  void select(const std::set<int>& wanted)
  {
    ParameterSelection selection;
    selection.runs = wanted;
    container().setSelection(&selection, 0);
    QCoreApplication::processEvents();
  }

  SelectionController& selection() { return *window.selectionController(); }
  PlotMetaData& settings() { return *container().getMetaData(); }
};

TEST_F(ReturnToRuns, FindsTheirContainerAgain)
{
  const QPointer<PlotContainer> before = &container();
  show("priors");
  const QPointer<PlotContainer> own = &container();
  EXPECT_NE(own, before);
  window.returnToRuns();
  EXPECT_EQ(&container(), before);
  QTest::qWait(10);
  EXPECT_TRUE(own.isNull());
  EXPECT_EQ(window.windowTitle(), "runs.csv - Talmesh Plot");
  EXPECT_EQ(window.sizeText(), "6 runs, 8 points each, 1 parameter");
}

TEST_F(ReturnToRuns, LetsGoOfTheirContainerWithTheNextRuns)
{
  const QPointer<PlotContainer> before = &container();
  show("priors");
  open("others.csv", twoShapes(5));
  QTest::qWait(10);
  EXPECT_TRUE(before.isNull());
  show("priors");
  window.returnToRuns();
  EXPECT_EQ(window.sizeText(), "6 runs, 5 points each, 1 parameter");
}

TEST_F(ReturnToRuns, KeepsTheSelectionAndItsHistory)
{
  select({10, 30});
  select({20});
  goAndReturn();
  EXPECT_EQ(runs(), std::set<int>{20});
  EXPECT_EQ(window.selectionText(), "1 of 6 runs selected");
  press(QKeySequence::Undo);
  EXPECT_EQ(runs(), (std::set<int>{10, 30}));
  EXPECT_EQ(window.selectionText(), "2 of 6 runs selected");
  press(QKeySequence::Undo);
  EXPECT_EQ(runs(), std::set<int>());
  press(QKeySequence::Redo);
  EXPECT_EQ(runs(), (std::set<int>{10, 30}));
}

TEST_F(ReturnToRuns, ComputedStudiesHaveAHistoryOfTheirOwn)
{
  select({20});
  show("indomethacin-residuals");
  EXPECT_FALSE(selection().undoGroup().canUndo());
  selection().selectAll();
  EXPECT_TRUE(selection().undoGroup().canUndo());
  press(QKeySequence::Undo);
  EXPECT_FALSE(selection().undoGroup().canUndo());
  EXPECT_TRUE(selection().undoGroup().canRedo());
  window.returnToRuns();
  EXPECT_EQ(runs(), std::set<int>{20});
  EXPECT_FALSE(selection().undoGroup().canRedo());
  EXPECT_TRUE(selection().undoGroup().canUndo());
}

TEST_F(ReturnToRuns, KeepsThresholdsAndSwitchesOfTheComparison)
{
  chooseStyle(selectionCdfPlot);
  select({10, 20});
  find<QDoubleSpinBox>("pThreshold")->setValue(0.2);
  find<QDoubleSpinBox>("ksThreshold")->setValue(0.125);
  tick("density");
  tick("quartileBands");
  goAndReturn();
  EXPECT_EQ(settings().getPThreshold(), 0.2);
  EXPECT_EQ(settings().getKsThreshold(), 0.125);
  EXPECT_TRUE(settings().getUseDensity());
  EXPECT_TRUE(settings().getShowQuantiles());
  EXPECT_EQ(find<QDoubleSpinBox>("pThreshold")->value(), 0.2);
  EXPECT_TRUE(find<QCheckBox>("density")->isChecked());
  EXPECT_EQ(settings().getPlotStyle(), selectionCdfPlot);
  EXPECT_TRUE(vtkChartMatrix::SafeDownCast(container().getItem()));
  EXPECT_EQ(container().getKsResults().size(), 1U);
  EXPECT_TRUE(window.comparisonDock()->widget()->isEnabled());
}

TEST_F(ReturnToRuns, KeepsWhatThePanelOffersAndSays)
{
  select({10});
  Talmesh::app::PlotChoice choice = window.plotDock()->choice();
  choice.y = {1, 0};
  choice.legend = true;
  choice.logY = true;
  choose(choice);
  const QStringList columns = window.plotDock()->columns();
  goAndReturn();
  EXPECT_EQ(window.plotDock()->columns(), columns);
  EXPECT_EQ(window.plotDock()->choice().y, choice.y);
  EXPECT_TRUE(chart().GetShowLegend());
  EXPECT_TRUE(chart().GetAxis(vtkAxis::LEFT)->GetLogScale());
  EXPECT_EQ(chart().GetNumberOfPlots(), 2);
}

TEST_F(ReturnToRuns, KeepsNormalisedRunsAndTheWayBack)
{
  tick("normaliseRuns");
  // The second run falls from 16 in steps of 2.
  ASSERT_EQ(value(0, pointsPerRun + 1), 14.0 / 16.0);
  goAndReturn();
  EXPECT_EQ(value(0, pointsPerRun + 1), 14.0 / 16.0);
  EXPECT_TRUE(find<QCheckBox>("normaliseRuns")->isChecked());
  press(QKeySequence::Undo);
  EXPECT_EQ(value(0, pointsPerRun), 16.0);
  EXPECT_EQ(value(0, pointsPerRun + 1), 14.0);
  EXPECT_FALSE(find<QCheckBox>("normaliseRuns")->isChecked());
}

TEST_F(ReturnToRuns, KeepsTheGroups)
{
  group(2);
  tick("groupMeans");
  const vtkIdType plotsBefore = chart().GetNumberOfPlots();
  show("priors");
  EXPECT_FALSE(find<QWidget>("clusterStart")->isEnabled());
  EXPECT_FALSE(find<QWidget>("clusterList")->isEnabled());
  window.returnToRuns();
  EXPECT_EQ(find<QListWidget>("clusterList")->count(), 2);
  EXPECT_TRUE(find<QCheckBox>("groupMeans")->isChecked());
  EXPECT_EQ(chart().GetNumberOfPlots(), plotsBefore);
  clickGroup(0);
  EXPECT_EQ(runs().size(), 3U);
}

TEST_F(ReturnToRuns, KeepsFurtherColumnsOfTheTable)
{
  vtkNew<vtkDoubleArray> further;
  further->SetName("further");
  further->SetNumberOfValues(container().getTable()->GetNumberOfRows());
  further->FillValue(2.5);
  container().getTable()->AddColumn(further);
  ASSERT_TRUE(window.saveSessionTo(folder.filePath("a.talmesh")));
  window.openFile(folder.filePath("a.talmesh"));
  ASSERT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, 60000));
  const QStringList columns = window.plotDock()->columns();
  ASSERT_TRUE(columns.contains("further"));
  goAndReturn();
  EXPECT_EQ(window.plotDock()->columns(), columns);
  EXPECT_NE(container().getTable()->GetColumnByName("further"), nullptr);
}

TEST_F(ReturnToRuns, SurvivesRunsThatCannotBeDrawn)
{
  chooseStyle(selectionCdfPlot);
  show("priors");
  window.returnToRuns();
  // The pages cut the kind off the names of parameters, and refuse names that are too short.
  container().getTable()->GetColumnByName("Parameter: k")->SetName("k");
  show("priors");
  EXPECT_NO_THROW(window.returnToRuns());
  EXPECT_TRUE(window.statusBar()->currentMessage().startsWith("cannot draw this: "))
      << window.statusBar()->currentMessage().toStdString();
  chooseStyle(xyPlot);
  EXPECT_EQ(plots<vtkPlotLineSet>().size(), 1U);
}

} // namespace
