#include "window/ComparisonInWindow.h"

#include "app/comparison/ComparisonDock.h"
#include "app/comparison/ComparisonModel.h"
#include "app/comparison/ComparisonTable.h"
#include "app/document/SelectionController.h"
#include "app/styles/ViewerStyles.h"
#include "app/window/PlotDock.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotState.h"
#include "support/CapturedOutput.h"

#include <vtkAxis.h>
#include <vtkPlot.h>
#include <vtkTable.h>

#include <QFileDialog>
#include <QMessageBox>

using namespace Talmesh::app;

TEST_F(ComparisonInWindow, SaysThatItCannotBeDrawnRatherThanHowLongThatTook)
{
  open();
  // The pages cut the kind off the names of parameters, and refuse names that are too short.
  container().getTable()->GetColumnByName("Parameter: k")->SetName("k");
  const auto saysThatItCannotBeDrawn = [this]
  { return window.statusBar()->currentMessage().startsWith("cannot draw this: "); };
  press("pThreshold", Qt::Key_Up);
  EXPECT_TRUE(saysThatItCannotBeDrawn()) << window.statusBar()->currentMessage().toStdString();
  window.statusBar()->clearMessage();
  {
    const CapturedOutput quiet(std::cerr);
    select({1, 2});
  }
  EXPECT_TRUE(saysThatItCannotBeDrawn()) << window.statusBar()->currentMessage().toStdString();
}

TEST_F(ComparisonInWindow, IsThePageOfRunsWithParameters)
{
  open();
  EXPECT_EQ(style(), selectionCdfPlot);
  EXPECT_EQ(window.plotDock()->choice().style, selectionCdfPlot);
  EXPECT_TRUE(vtkChartMatrix::SafeDownCast(container().getItem()));
}

TEST_F(ComparisonInWindow, GivesWayToTheStyleThatTheCommandLineNames)
{
  OpeningWishes options;
  options.style = xyPlot;
  open(options);
  EXPECT_EQ(style(), xyPlot);
}

TEST_F(ComparisonInWindow, GivesWayToThePlotThatShowsSeveralColumns)
{
  OpeningWishes options;
  options.y = {"X", "Y"};
  open(options);
  EXPECT_EQ(style(), xyPlot);
  EXPECT_EQ(container().getChartXY()->GetNumberOfPlots(), 2);
}

TEST_F(ComparisonInWindow, IsNoPageOfATableWithoutRunsOrParameters)
{
  open({}, "a,b\n1,2\n3,4\n");
  EXPECT_EQ(style(), xyPlot);
  EXPECT_TRUE(explanation().text().contains("no parameters"));
  open({}, "run,time,X\n0,0,1\n0,1,2\n1,0,3\n1,1,4\n");
  EXPECT_EQ(style(), xyPlot);
}

TEST_F(ComparisonInWindow, FillsTheTableWithEverySelection)
{
  open();
  EXPECT_TRUE(explanation().isVisible());
  EXPECT_EQ(table().rowCount(), 0);
  select({0, 1, 2, 3});
  EXPECT_FALSE(explanation().isVisible());
  ASSERT_EQ(table().rowCount(), 1);
  EXPECT_EQ(table().index(0, ComparisonModel::Name).data().toString(), "k");
  EXPECT_EQ(table().index(0, ComparisonModel::Statistic).data(ComparisonModel::SortRole), 1.0);
  EXPECT_EQ(table().index(0, ComparisonModel::Selected).data().toString(), "4");
  EXPECT_EQ(table().index(0, ComparisonModel::Others).data().toString(), "8");
  select({5});
  EXPECT_EQ(table().index(0, ComparisonModel::Selected).data().toString(), "1");
  window.selectionController()->clear();
  QCoreApplication::processEvents();
  EXPECT_TRUE(explanation().isVisible());
  window.selectionController()->undoStack().undo();
  QCoreApplication::processEvents();
  EXPECT_EQ(table().index(0, ComparisonModel::Selected).data().toString(), "1");
}

TEST_F(ComparisonInWindow, TakesThePValuesOffTheChartsWithTheSelection)
{
  open();
  EXPECT_EQ(parameterChartTitle(), "");
  select({0, 1, 2, 3});
  // p = 2 / choose(12, 4)
  EXPECT_EQ(parameterChartTitle(), "adjusted p = 0.004");
  EXPECT_EQ(table().index(0, ComparisonModel::AdjustedPValue).data().toString(), "0.004");
  window.selectionController()->clear();
  QCoreApplication::processEvents();
  EXPECT_EQ(parameterChartTitle(), "");
}

TEST_F(ComparisonInWindow, FillsTheTableInEveryStyle)
{
  open();
  for (const ViewerStyle& style : viewerStyles())
  {
    SCOPED_TRACE(style.name);
    PlotChoice choice = window.plotDock()->choice();
    choice.style = style.style;
    window.plotDock()->setChoice(choice);
    emit window.plotDock()->choiceChanged();
    select({5});
    select({0, 1, 2, 3});
    ASSERT_EQ(table().rowCount(), 1);
    EXPECT_EQ(table().index(0, ComparisonModel::Statistic).data(ComparisonModel::SortRole), 1.0);
    EXPECT_EQ(table().index(0, ComparisonModel::Selected).data().toString(), "4");
    EXPECT_EQ(table().index(0, ComparisonModel::Others).data().toString(), "8");
  }
}

TEST_F(ComparisonInWindow, SaysHowLongASelectionAndASettingTook)
{
  open();
  EXPECT_FALSE(saysHowLongItTook());
  select({0, 1});
  EXPECT_TRUE(saysHowLongItTook()) << window.statusBar()->currentMessage().toStdString();
  window.statusBar()->clearMessage();
  press("pThreshold", Qt::Key_Up);
  EXPECT_TRUE(saysHowLongItTook());
  window.statusBar()->clearMessage();
  press("pairPage", Qt::Key_Space);
  EXPECT_FALSE(saysHowLongItTook());
}

TEST_F(ComparisonInWindow, AppliesItsControlsAtOnceAndDrawsOnce)
{
  open();
  select({0, 1, 2, 3});
  const unsigned long before = stateOf(container()).drawings;
  press("density", Qt::Key_Space);
  EXPECT_EQ(stateOf(container()).drawings, before + 1);
  EXPECT_TRUE(settings().getUseDensity());
  vtkChart* cell = container().getChartMatrix()->GetChart(vtkVector2i(0, 0));
  EXPECT_EQ(cell->GetAxis(vtkAxis::LEFT)->GetTitle(), "Density");
  press("commonDensityScale", Qt::Key_Space);
  EXPECT_TRUE(settings().getCommonDensityScale());
  press("logParameterAxes", Qt::Key_Space);
  cell = container().getChartMatrix()->GetChart(vtkVector2i(0, 0));
  EXPECT_TRUE(cell->GetAxis(vtkAxis::BOTTOM)->GetLogScale());
  press("ksThreshold", Qt::Key_Up);
  EXPECT_DOUBLE_EQ(settings().getKsThreshold(), 0.05);
  EXPECT_EQ(stateOf(container()).drawings, before + 4);
  EXPECT_FALSE(settings().signalsBlocked());
}

TEST_F(ComparisonInWindow, DrawsTheBandsOfTheColumnShown)
{
  open();
  press("quartileBands", Qt::Key_Space);
  ASSERT_TRUE(container().getQuartileTable());
  EXPECT_EQ(container().getChartXY()->GetNumberOfPlots(), 4);
  const auto range = [this]
  {
    double bounds[4];
    container().getChartXY()->GetPlot(0)->Update();
    container().getChartXY()->GetPlot(0)->GetBounds(bounds);
    return bounds[3];
  };
  const double ofX = range();
  EXPECT_GT(ofX, 1.0);
  EXPECT_LE(ofX, 3.0);
  PlotChoice choice = window.plotDock()->choice();
  choice.y = {1};
  window.plotDock()->setChoice(choice);
  emit window.plotDock()->choiceChanged();
  // The second column is the square of the first; quartiles of an even number of runs are the mean
  // of two of them, whose square is a little less.
  EXPECT_GT(range(), ofX * ofX);
  EXPECT_NEAR(range(), ofX * ofX, 1e-3);
}

TEST_F(ComparisonInWindow, ChangesBetweenItsTwoPages)
{
  open();
  press("pairPage", Qt::Key_Space);
  EXPECT_EQ(style(), multiPlot);
  EXPECT_EQ(window.plotDock()->choice().style, multiPlot);
  EXPECT_FALSE(window.findChild<QWidget*>(QStringLiteral("density"))->isEnabled());
  press("distributionPage", Qt::Key_Space);
  EXPECT_EQ(style(), selectionCdfPlot);
  EXPECT_TRUE(window.findChild<QWidget*>(QStringLiteral("density"))->isEnabled());
}

TEST_F(ComparisonInWindow, ShowsWhatTheContainerSays)
{
  open();
  settings().blockSignals(true);
  settings().setPThreshold(0.2);
  settings().setUseDensity(true);
  settings().blockSignals(false);
  emit window.plotDock()->choiceChanged();
  EXPECT_DOUBLE_EQ(window.comparisonDock()->choice().pThreshold, 0.2);
  EXPECT_TRUE(window.comparisonDock()->choice().density);
}

TEST_F(ComparisonInWindow, BeginsAnewWithAnotherStudy)
{
  open();
  select({0, 1, 2, 3});
  press("density", Qt::Key_Space);
  window.openFile(write("other.csv", sampleRuns(5, 4)));
  ASSERT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, patience));
  EXPECT_EQ(style(), selectionCdfPlot);
  EXPECT_TRUE(explanation().isVisible());
  EXPECT_FALSE(window.comparisonDock()->choice().density);
}

TEST_F(ComparisonInWindow, SaysInABoxWhyItsTableCannotBeSaved)
{
  open();
  select({0, 1, 2, 3});
  window.comparisonDock()->table()->chooseFileAndSave();
  auto* dialog = window.findChild<QFileDialog*>();
  ASSERT_NE(dialog, nullptr);
  const QString path = folder.filePath(QStringLiteral("nowhere/comparison.csv"));
  emit dialog->fileSelected(path);
  auto* box = window.findChild<QMessageBox*>();
  ASSERT_NE(box, nullptr);
  EXPECT_TRUE(box->text().startsWith(path + ": ")) << box->text().toStdString();
  dialog->close();
}

TEST_F(ComparisonInWindow, KeepsThresholdsThatNoControlWasUsedFor)
{
  open();
  settings().blockSignals(true);
  settings().setPThreshold(1.23456789e-7);
  settings().setKsThreshold(0.123456789);
  settings().blockSignals(false);
  emit window.plotDock()->choiceChanged();
  press("density", Qt::Key_Space);
  EXPECT_TRUE(settings().getUseDensity());
  EXPECT_EQ(settings().getPThreshold(), 1.23456789e-7);
  EXPECT_EQ(settings().getKsThreshold(), 0.123456789);
}
