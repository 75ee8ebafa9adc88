#include "app/ComparisonDock.h"
#include "app/ComparisonModel.h"
#include "app/ComparisonTable.h"
#include "app/MainWindow.h"
#include "app/PlotDock.h"
#include "app/SelectionController.h"
#include "external/ParameterSelection.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/CapturedOutput.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkAxis.h>
#include <vtkChartMatrix.h>
#include <vtkChartXY.h>
#include <vtkPlot.h>
#include <vtkTable.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include "SampleStudies.h"

using namespace Talmesh::app;

namespace
{

constexpr int patience = 60000;
constexpr int runCount = 12;
constexpr int pointsPerRun = 5;

class ComparisonInWindow : public ::testing::Test
{
protected:
  ComparisonInWindow()
  {
    window.resize(900, 700);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
  }

  QString write(const char* name, const std::string& text)
  {
    QFile file(folder.filePath(QString::fromUtf8(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text.data(), static_cast<qint64>(text.size()));
    return file.fileName();
  }

  void open(CommandLineOptions options = {},
            const std::string& text = sampleRuns(runCount, pointsPerRun))
  {
    options.file = write("runs.csv", text).toStdString();
    window.open(options);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, patience));
  }

  void select(const std::set<int>& runs)
  {
    ParameterSelection selection;
    selection.runs = runs;
    container().setSelection(&selection, 0);
    QCoreApplication::processEvents();
  }

  void press(const char* name, Qt::Key key)
  {
    auto* control = window.findChild<QWidget*>(QLatin1String(name));
    ASSERT_TRUE(control && control->isEnabled()) << name;
    QTest::keyClick(control, key);
  }

  PlotContainer& container() { return *window.plotWidget()->plotContainer(); }
  PlotMetaData& settings() { return *container().getMetaData(); }
  plotStyles style() { return settings().getPlotStyle(); }
  QAbstractItemModel& table()
  {
    return *window.findChild<QTableView*>(QStringLiteral("comparisonTable"))->model();
  }
  QLabel& explanation()
  {
    return *window.findChild<QLabel*>(QStringLiteral("comparisonExplanation"));
  }
  std::string parameterChartTitle()
  {
    auto* matrix = vtkChartMatrix::SafeDownCast(container().getItem());
    return matrix ? matrix->GetChart(vtkVector2i(0, 0))->GetTitle() : "no page of charts";
  }
  bool saysHowLongItTook()
  {
    const QRegularExpression text(QStringLiteral("^Updated in \\d+ ms$"));
    return text.match(window.statusBar()->currentMessage()).hasMatch();
  }

  QTemporaryDir folder;
  MainWindow window;
};

} // namespace

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
  CommandLineOptions options;
  options.style = xyPlot;
  open(options);
  EXPECT_EQ(style(), xyPlot);
}

TEST_F(ComparisonInWindow, GivesWayToThePlotThatShowsSeveralColumns)
{
  CommandLineOptions options;
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
  EXPECT_EQ(table().index(0, ComparisonModel::Statistic).data().toString(), "1.000");
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
  EXPECT_EQ(parameterChartTitle().substr(0, 4), "p = ");
  window.selectionController()->clear();
  QCoreApplication::processEvents();
  EXPECT_EQ(parameterChartTitle(), "");
  EXPECT_TRUE(container().getKsResults().empty());
}

TEST_F(ComparisonInWindow, FillsTheTableInEveryStyle)
{
  CommandLineOptions options;
  options.style = xyPlot;
  open(options);
  select({0, 1, 2, 3});
  EXPECT_EQ(table().rowCount(), 1);
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
  const unsigned long before = container().state().drawings;
  press("density", Qt::Key_Space);
  EXPECT_EQ(container().state().drawings, before + 1);
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
  EXPECT_EQ(container().state().drawings, before + 4);
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
