#include "app/document/PlotChoice.h"
#include "app/window/PlotDock.h"
#include "external/PlotMetaData.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkPlot.h>
#include <vtkScatterPlotMatrix.h>
#include <vtkTable.h>
#include <vtkVariant.h>

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QStatusBar>

#include "window/RunsInWindow.h"

using namespace Talmesh::app;

namespace
{

class DrawingInWindow : public RunsInWindow
{
};

} // namespace

TEST_F(DrawingInWindow, DrawsTheColumnsInTheOrderOfTheCommandLine)
{
  OpeningWishes options;
  options.file = write("runs.csv", sampleRuns()).toStdString();
  options.style = xyPlot;
  options.y = {"Y", "X"};
  window->open(options);
  ASSERT_TRUE(waitUntilLoaded());
  EXPECT_EQ(window->plotDock()->choice().y, (std::vector<int>{1, 0}));
  ASSERT_EQ(container().getChartXY()->GetNumberOfPlots(), 2);
  EXPECT_EQ(container().getChartXY()->GetPlot(0)->GetLabel(), "Y");
  EXPECT_EQ(container().getChartXY()->GetPlot(1)->GetLabel(), "X");
}

TEST_F(DrawingInWindow, DrawsWhatIsChosenInThePanel)
{
  openSample();
  auto* y = window->plotDock()->findChild<QListWidget*>(QStringLiteral("y"));
  y->setCurrentRow(1);
  QTest::keyClick(y, Qt::Key_Space);
  EXPECT_EQ(container().getChartXY()->GetNumberOfPlots(), 2);
  auto* style = window->plotDock()->findChild<QComboBox*>(QStringLiteral("style"));
  QTest::keyClick(style, Qt::Key_Down);
  EXPECT_TRUE(vtkScatterPlotMatrix::SafeDownCast(container().getItem()));
}

TEST_F(DrawingInWindow, FollowsItsShortcuts)
{
  openSample();
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  EXPECT_TRUE(container().getMetaData()->getPlotLine());
  QTest::keyClick(window.get(), Qt::Key_L, Qt::ControlModifier);
  EXPECT_FALSE(container().getMetaData()->getPlotLine());
  QTest::keyClick(window.get(), Qt::Key_G, Qt::ControlModifier);
  EXPECT_TRUE(container().getChartXY()->GetShowLegend());
  QTest::keyClick(window.get(), Qt::Key_3, Qt::ControlModifier);
  EXPECT_EQ(container().getMetaData()->getPlotStyle(), scatterPlotMatrix);
  EXPECT_EQ(window->plotDock()->choice().style, scatterPlotMatrix);
  QTest::keyClick(window.get(), Qt::Key_F9);
  EXPECT_FALSE(window->plotDock()->isVisible());
}

TEST_F(DrawingInWindow, KeepsLegendAndLogarithmicAxesThroughOtherStyles)
{
  openSample();
  PlotChoice choice = window->plotDock()->choice();
  for (const char* name : {"legend", "logY"})
    QTest::keyClick(window->plotDock()->findChild<QWidget*>(QLatin1String(name)), Qt::Key_Space);
  auto* style = window->plotDock()->findChild<QComboBox*>(QStringLiteral("style"));
  for (int steps = 0; steps < style->count() - 1; ++steps)
    QTest::keyClick(style, Qt::Key_Down);
  QTest::keyClick(style, Qt::Key_Home);
  choice = choiceOf(container());
  EXPECT_EQ(choice.style, xyPlot);
  EXPECT_TRUE(choice.legend);
  EXPECT_TRUE(choice.logY);
}

TEST_F(DrawingInWindow, HasALogarithmicYAxisOnThePagesOfRunsButNotWithErrorBars)
{
  openSample();
  auto* logY = window->plotDock()->findChild<QCheckBox*>(QStringLiteral("logY"));
  QTest::keyClick(logY, Qt::Key_Space);
  auto* style = window->plotDock()->findChild<QComboBox*>(QStringLiteral("style"));
  for (const plotStyles shown : {multiPlot, scatterWithErrorBars, selectionCdfPlot, xyPlot})
  {
    style->setCurrentIndex(style->findData(static_cast<int>(shown)));
    const bool log = container().showsLogScaleY();
    EXPECT_EQ(log, shown != scatterWithErrorBars) << shown;
    EXPECT_EQ(logY->isChecked(), log) << shown;
  }
}

TEST_F(DrawingInWindow, SaysThatAnAxisIsLinearForValuesWithoutLogarithms)
{
  openSample();
  PlotChoice choice = window->plotDock()->choice();
  choice.x = 1;
  window->plotDock()->setChoice(choice);
  auto* logX = window->plotDock()->findChild<QCheckBox*>(QStringLiteral("logX"));
  const auto saysSo = [this]
  { return window->statusBar()->currentMessage().contains(QLatin1String("positive")); };
  container().getTable()->GetColumn(1)->SetVariantValue(0, -1.0);
  container().getTable()->GetColumn(1)->Modified();
  EXPECT_FALSE(saysSo());
  QTest::keyClick(logX, Qt::Key_Space);
  EXPECT_TRUE(saysSo());
  EXPECT_FALSE(container().showsLogScaleX());
}

TEST_F(DrawingInWindow, CanSwitchALogarithmicXAxisOffOnThePagesOfRuns)
{
  openSample();
  auto* logX = window->plotDock()->findChild<QCheckBox*>(QStringLiteral("logX"));
  QTest::keyClick(logX, Qt::Key_Space);
  auto* style = window->plotDock()->findChild<QComboBox*>(QStringLiteral("style"));
  for (const plotStyles page : {multiPlot, selectionCdfPlot})
  {
    style->setCurrentIndex(style->findData(static_cast<int>(page)));
    EXPECT_TRUE(container().getChartXY()->GetAxis(vtkAxis::BOTTOM)->GetLogScale()) << page;
    QTest::keyClick(logX, Qt::Key_Space);
    EXPECT_FALSE(container().getChartXY()->GetAxis(vtkAxis::BOTTOM)->GetLogScale()) << page;
    QTest::keyClick(logX, Qt::Key_Space);
  }
}

TEST_F(DrawingInWindow, ShowsOneStudyAfterAnotherInContainersOfTheirOwn)
{
  openSample();
  const QPointer<PlotContainer> first = &container();
  window->openFile(write("plain.csv", "a,b\n1,2\n3,4\n"));
  ASSERT_TRUE(waitUntilLoaded());
  EXPECT_NE(&container(), first.data());
  QTest::qWait(10);
  EXPECT_TRUE(first.isNull());
  EXPECT_EQ(window->sizeText(), "2 rows, 2 columns");
  EXPECT_EQ(window->plotDock()->choice().y, std::vector<int>{1});
}
