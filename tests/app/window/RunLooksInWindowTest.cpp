#include "app/document/SelectionController.h"
#include "app/session/Session.h"
#include "app/window/TimeCoursePage.h"
#include "vtk/vtkPlotLineSet.h"

#include <vtkPlotFunctionalBag.h>
#include <vtkTable.h>
#include <vtkVariant.h>

#include <QAction>
#include <QTabWidget>

#include "SampleStudies.h"
#include "window/GroupsInWindow.h"
#include "window/PlotMouse.h"

namespace
{

using namespace Talmesh::app;

class RunLooksInWindow : public GroupsInWindow
{
};

TEST_F(RunLooksInWindow, QuartileBandsLieBehindTheSelectedRuns)
{
  tick("runBands");
  const auto bands = plots<vtkPlotFunctionalBag>();
  ASSERT_EQ(bands.size(), 3U);
  vtkPlotLineSet* all = plots<vtkPlotLineSet>()[0];
  EXPECT_TRUE(all->GetOnlyShowSelected());
  EXPECT_LT(chart().GetPlotIndex(bands[0]), chart().GetPlotIndex(bands[1]));
  EXPECT_LT(chart().GetPlotIndex(bands[1]), chart().GetPlotIndex(bands[2]));
  EXPECT_LT(chart().GetPlotIndex(bands[2]), chart().GetPlotIndex(all));
  // X at the first time: 1, 16, 3, 32, 5, 48.
  vtkTable* quartiles = container().getQuartileTable();
  EXPECT_EQ(quartiles->GetValueByName(0, "Median").ToDouble(), 10.5);
  PlotChoice choice = window.plotDock()->choice();
  choice.y = {1};
  choose(choice);
  // Y at the first time: 1, 2, ... 6.
  EXPECT_EQ(container().getQuartileTable()->GetValueByName(0, "Median").ToDouble(), 3.5);
  tick("runBands");
  EXPECT_TRUE(plots<vtkPlotFunctionalBag>().empty());
}

TEST_F(RunLooksInWindow, NormalisedRunsAreUndoneByReloadingTheValues)
{
  std::vector<double> before;
  for (vtkIdType row = 0; row < container().getTable()->GetNumberOfRows(); ++row)
    before.push_back(value(0, row));
  const auto expectOriginal = [&]
  {
    for (std::size_t row = 0; row < before.size(); ++row)
      EXPECT_EQ(value(0, static_cast<vtkIdType>(row)), before[row]) << row;
  };
  tick("normaliseRuns");
  // The second run falls from 16 in steps of 2.
  EXPECT_EQ(value(0, pointsPerRun), 1.0);
  EXPECT_EQ(value(0, pointsPerRun + 1), 14.0 / 16.0);
  EXPECT_EQ(value(1, 0), 1.0) << "other columns stay";
  EXPECT_TRUE(window.selectionController()->undoStack().canUndo());
  press(QKeySequence::Undo);
  expectOriginal();
  EXPECT_FALSE(find<QCheckBox>("normaliseRuns")->isChecked());
  press(QKeySequence::Redo);
  EXPECT_EQ(value(0, pointsPerRun), 1.0);
  EXPECT_TRUE(find<QCheckBox>("normaliseRuns")->isChecked());
  tick("normaliseRuns");
  expectOriginal();
}

TEST_F(RunLooksInWindow, NormalisingBelongsToTheColumnsShown)
{
  tick("normaliseRuns");
  PlotChoice choice = window.plotDock()->choice();
  choice.y = {1};
  choose(choice);
  EXPECT_FALSE(find<QCheckBox>("normaliseRuns")->isChecked());
  choice.y = {0};
  choose(choice);
  EXPECT_TRUE(find<QCheckBox>("normaliseRuns")->isChecked());
}

TEST_F(RunLooksInWindow, NormalisingShowsAllOfTheNewValues)
{
  VtkPlotWidget& plot = *window.plotWidget();
  plot.updatePlot(true);
  const auto shown = [this]
  {
    vtkAxis* left = chart().GetAxis(vtkAxis::LEFT);
    return std::make_pair(left->GetMinimum(), left->GetMaximum());
  };
  const QPoint middle(plot.width() / 2, plot.height() / 2);
  drag(plot, Qt::LeftButton, middle, middle + QPoint(0, 60));
  tick("runBands");
  plot.updatePlot(true);
  const auto panned = shown();
  // X runs from 1 to 48.
  EXPECT_GT(panned.second, 20.0);
  tick("normaliseRuns");
  plot.updatePlot(true);
  EXPECT_LE(shown().first, 0.125);
  EXPECT_GE(shown().second, 1.0);
  EXPECT_LT(shown().second, 2.0);
  drag(plot, Qt::LeftButton, middle, middle + QPoint(0, 60));
  press(QKeySequence::Undo);
  plot.updatePlot(true);
  EXPECT_LE(shown().first, 1.0);
  EXPECT_GE(shown().second, 48.0);
}

TEST_F(RunLooksInWindow, NormalisedRunsComeBackInTheWindowThatWasShown)
{
  VtkPlotWidget& plot = *window.plotWidget();
  tick("normaliseRuns");
  plot.updatePlot(true);
  const QPoint middle(plot.width() / 2, plot.height() / 2);
  drag(plot, Qt::LeftButton, middle, middle + QPoint(0, 60));
  const double shown = chart().GetAxis(vtkAxis::LEFT)->GetMaximum();
  const QString path = folder.filePath(QStringLiteral("panned.talmesh"));
  ASSERT_TRUE(window.saveSessionTo(path));
  window.openFile(path);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, 60000));
  EXPECT_EQ(chart().GetAxis(vtkAxis::LEFT)->GetBehavior(), vtkAxis::FIXED);
  EXPECT_EQ(chart().GetAxis(vtkAxis::LEFT)->GetMaximum(), shown);
  EXPECT_TRUE(find<QCheckBox>("normaliseRuns")->isChecked());
}

TEST_F(RunLooksInWindow, AnotherColumnIsShownWhole)
{
  VtkPlotWidget& plot = *window.plotWidget();
  plot.updatePlot(true);
  const QPoint middle(plot.width() / 2, plot.height() / 2);
  drag(plot, Qt::LeftButton, middle, middle + QPoint(0, 60));
  tick("runBands");
  vtkAxis* left = chart().GetAxis(vtkAxis::LEFT);
  ASSERT_EQ(left->GetBehavior(), vtkAxis::FIXED);
  PlotChoice choice = window.plotDock()->choice();
  choice.y = {1};
  choose(choice);
  plot.updatePlot(true);
  // Y runs from 1 to 8.
  EXPECT_LE(left->GetMinimum(), 1.0);
  EXPECT_GE(left->GetMaximum(), 8.0);
  EXPECT_LT(left->GetMaximum(), 12.0);
  choice.y = {0};
  choose(choice);
  EXPECT_EQ(left->GetBehavior(), vtkAxis::FIXED) << "the window of X is remembered";
}

TEST_F(RunLooksInWindow, NormalisingLeavesOutWhatIsNoNumberOfTheRunsOwn)
{
  PlotChoice choice = window.plotDock()->choice();
  choice.y = {0, 1, 2, 3, 4};
  choose(choice);
  const QStringList labels = container().getLabels();
  ASSERT_EQ(labels.mid(2, 3), QStringList({": time", ": Run Index", "Parameter: k"}));
  tick("normaliseRuns");
  EXPECT_TRUE(find<QCheckBox>("normaliseRuns")->isChecked());
  EXPECT_EQ(value(0, pointsPerRun), 1.0);
  for (vtkIdType row = 0; row < container().getTable()->GetNumberOfRows(); ++row)
  {
    EXPECT_EQ(value(2, row), static_cast<double>(row % pointsPerRun));
    EXPECT_EQ(value(3, row), 10.0 * static_cast<double>(row / pointsPerRun + 1));
    EXPECT_EQ(value(4, row), 0.5 * static_cast<double>(row / pointsPerRun));
  }
  choice.y = {3};
  choose(choice);
  tick("normaliseRuns");
  EXPECT_FALSE(find<QCheckBox>("normaliseRuns")->isChecked());
  EXPECT_EQ(value(3, 0), 10.0);
}

TEST_F(RunLooksInWindow, NormalisedValuesAreThoseOfTheRunsThatAreCompared)
{
  group(2);
  clickGroup(1);
  const auto rangeOf = [this](std::size_t slot)
  {
    double range[2];
    Talmesh::plot::doubleColumn(container().getDerivedTables()[slot], 0)->GetRange(range);
    return std::make_pair(range[0], range[1]);
  };
  // All points of runs 2, 4 and 6, which fall, and of runs 1, 3 and 5, which rise.
  EXPECT_EQ(rangeOf(2).second, 48.0);
  EXPECT_EQ(rangeOf(5), std::make_pair(1.0, 40.0));
  tick("normaliseRuns");
  EXPECT_EQ(rangeOf(2).second, 1.0);
  EXPECT_EQ(rangeOf(5), std::make_pair(1.0 / 8.0, 1.0));
  press(QKeySequence::Undo);
  EXPECT_EQ(rangeOf(2).second, 48.0);
  EXPECT_EQ(runs(), (std::set<int>{20, 40, 60}));
}

TEST_F(RunLooksInWindow, NormalisedValuesAreOnThePageOfTimeCoursesToo)
{
  window.pages()->setCurrentIndex(1);
  auto* page = window.findChild<TimeCoursePage*>();
  const auto firstX = [page]
  {
    vtkTable* table = page->findChild<VtkPlotWidget*>()->plotContainer()->getTable();
    return table->GetValueByName(0, "Molecule: X").ToDouble();
  };
  QTest::keyClick(page->findChild<QSpinBox*>(QStringLiteral("run")), Qt::Key_Up);
  EXPECT_EQ(firstX(), 16.0);
  tick("normaliseRuns");
  EXPECT_EQ(firstX(), 1.0);
  window.pages()->setCurrentIndex(0);
  press(QKeySequence::Undo);
  window.pages()->setCurrentIndex(1);
  EXPECT_EQ(firstX(), 16.0);
}

TEST_F(RunLooksInWindow, NormalisedRunsAreSavedWithTheirValuesFromBefore)
{
  tick("normaliseRuns");
  const QString path = folder.filePath(QStringLiteral("normalised.talmesh"));
  ASSERT_TRUE(window.saveSessionTo(path));
  EXPECT_EQ(value(0, pointsPerRun), 1.0) << "what is shown stays";
  const Result<OpenedSession> read = openSession(path);
  ASSERT_EQ(read.error(), "");
  const OpenedSession& saved = read.value();
  EXPECT_EQ(saved.study.runs->values[0][pointsPerRun], 16.0);
  EXPECT_EQ(saved.session->settings.normalised, std::vector<int>{0});

  open("other.csv", sampleRuns());
  window.pages()->setCurrentIndex(1);
  window.openFile(path);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, 60000));
  EXPECT_EQ(value(0, pointsPerRun), 1.0);
  EXPECT_EQ(value(0, pointsPerRun + 1), 14.0 / 16.0);
  EXPECT_TRUE(find<QCheckBox>("normaliseRuns")->isChecked());
  EXPECT_FALSE(window.selectionController()->undoStack().canUndo());
  vtkTable* courses =
      window.findChild<TimeCoursePage*>()->findChild<VtkPlotWidget*>()->plotContainer()->getTable();
  EXPECT_EQ(courses->GetValueByName(0, "Molecule: X").ToDouble(), 1.0 / 8.0);
  window.pages()->setCurrentIndex(0);
  tick("normaliseRuns");
  EXPECT_EQ(value(0, pointsPerRun), 16.0);
  EXPECT_EQ(value(0, pointsPerRun + 1), 14.0);
}

} // namespace
