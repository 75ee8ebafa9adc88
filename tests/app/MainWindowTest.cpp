#include "app/MainWindow.h"

#include "app/PlotChoice.h"
#include "app/PlotDock.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkPlot.h>
#include <vtkScatterPlotMatrix.h>
#include <vtkTable.h>
#include <vtkVariant.h>

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDropEvent>
#include <QFile>
#include <QImage>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include "SampleStudies.h"

using namespace Talmesh::app;

namespace
{

constexpr int patience = 60000;

class MainWindowWithRuns : public ::testing::Test
{
protected:
  MainWindowWithRuns()
  {
    QCoreApplication::setOrganizationName(QStringLiteral("TalmeshTest"));
    QCoreApplication::setApplicationName(QStringLiteral("window"));
    RecentFiles().clear();
    window = std::make_unique<MainWindow>();
    window->resize(700, 500);
    window->show();
  }

  ~MainWindowWithRuns() override { RecentFiles().clear(); }

  QString write(const char* name, const std::string& text)
  {
    const QString path = folder.filePath(QString::fromUtf8(name));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text.data(), static_cast<qint64>(text.size()));
    return path;
  }

  bool waitUntilLoaded()
  {
    return QTest::qWaitFor([this] { return !window->isLoading(); }, patience);
  }

  /// Opens three runs in the XY plot.
  void openSample()
  {
    CommandLineOptions options;
    options.file = write("runs.csv", sampleRuns()).toStdString();
    options.style = xyPlot;
    window->open(options);
    ASSERT_TRUE(waitUntilLoaded());
  }

  void drop(const QList<QUrl>& urls)
  {
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    accepted = enter.isAccepted();
    QDropEvent dropped(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &dropped);
  }

  PlotContainer& container() { return *window->plotWidget()->plotContainer(); }

  QMessageBox* messageBox() { return window->findChild<QMessageBox*>(); }

  QTemporaryDir folder;
  std::unique_ptr<MainWindow> window;
  bool accepted = false;
};

} // namespace

TEST_F(MainWindowWithRuns, OpensAFileAndSaysHowMuchItHolds)
{
  openSample();
  EXPECT_EQ(window->sizeText(), "3 runs, 4 points each, 1 parameter");
  EXPECT_EQ(window->windowTitle(), "runs.csv - Talmesh Plot");
  EXPECT_EQ(window->plotDock()->choice().y, std::vector<int>{0});
  EXPECT_EQ(container().getChartXY()->GetNumberOfPlots(), 1);
}

TEST_F(MainWindowWithRuns, OpensTheExampleStudy)
{
  window->openExample();
  EXPECT_TRUE(window->isLoading());
  ASSERT_TRUE(waitUntilLoaded());
  EXPECT_EQ(window->sizeText(), "400 runs, 200 points each, 4 parameters");
  EXPECT_EQ(window->windowTitle(), "Repressilator - Talmesh Plot");
}

TEST_F(MainWindowWithRuns, StartsWithWhatTheCommandLineNames)
{
  CommandLineOptions options;
  options.file = write("runs.csv", sampleRuns()).toStdString();
  options.style = scatterPlotMatrix;
  options.y = {"Y"};
  QSignalSpy opened(window.get(), &MainWindow::opened);
  window->open(options);
  ASSERT_TRUE(waitUntilLoaded());
  EXPECT_EQ(opened.count(), 1);
  EXPECT_EQ(window->plotDock()->choice().style, scatterPlotMatrix);
  EXPECT_EQ(window->plotDock()->choice().y, std::vector<int>{1});
  EXPECT_TRUE(vtkScatterPlotMatrix::SafeDownCast(container().getItem()));
}

TEST_F(MainWindowWithRuns, ForgetsTheWishesOfTheCommandLineAfterTheFirstStudy)
{
  CommandLineOptions options;
  options.file = write("runs.csv", sampleRuns()).toStdString();
  options.y = {"Y"};
  window->open(options);
  ASSERT_TRUE(waitUntilLoaded());
  openSample();
  EXPECT_EQ(window->plotDock()->choice().y, std::vector<int>{0});
}

TEST_F(MainWindowWithRuns, ReportsAColumnThatIsNotThere)
{
  CommandLineOptions options;
  options.file = write("runs.csv", sampleRuns()).toStdString();
  options.x = "Z";
  QSignalSpy failed(window.get(), &MainWindow::openFailed);
  QSignalSpy opened(window.get(), &MainWindow::opened);
  window->open(options);
  ASSERT_TRUE(waitUntilLoaded());
  ASSERT_EQ(failed.count(), 1);
  EXPECT_EQ(failed[0][0].toString(), "no such column: Z; the columns are X, Y, time, Run Index, k");
  EXPECT_EQ(opened.count(), 0);
}

TEST_F(MainWindowWithRuns, GrowsThePlotToTheSizeAskedFor)
{
  CommandLineOptions options;
  options.file = write("runs.csv", sampleRuns()).toStdString();
  options.width = 400;
  options.height = 350;
  window->open(options);
  ASSERT_TRUE(waitUntilLoaded());
  EXPECT_TRUE(
      QTest::qWaitFor([this] { return window->plotWidget()->size() == QSize(400, 350); }, 5000))
      << window->plotWidget()->width() << 'x' << window->plotWidget()->height();
}

TEST_F(MainWindowWithRuns, KeepsWhatItShowsWhenAFileCannotBeOpened)
{
  openSample();
  QSignalSpy failed(window.get(), &MainWindow::openFailed);
  window->openFile(write("bad.csv", "time,X\n0,a\n1,2\n"));
  ASSERT_TRUE(waitUntilLoaded());
  ASSERT_EQ(failed.count(), 1);
  EXPECT_TRUE(
      failed[0][0].toString().endsWith("line 2: \"a\" in the column \"X\" is not a number"));
  EXPECT_EQ(window->sizeText(), "3 runs, 4 points each, 1 parameter");
  EXPECT_EQ(window->windowTitle(), "runs.csv - Talmesh Plot");
  ASSERT_TRUE(messageBox());
  EXPECT_EQ(messageBox()->text(), failed[0][0].toString());
}

TEST_F(MainWindowWithRuns, SaysWhichColumnsItLeftOut)
{
  window->openFile(write("runs.csv", "time,X,drug\n0,1,none given\n1,2,aspirin\n"));
  ASSERT_TRUE(waitUntilLoaded());
  EXPECT_EQ(window->statusBar()->currentMessage(),
            "The column \"drug\" holds text and is left out.");
}

TEST_F(MainWindowWithRuns, OpensADroppedFile)
{
  drop({QUrl::fromLocalFile(write("dropped.csv", sampleRuns(5, 3)))});
  EXPECT_TRUE(accepted);
  ASSERT_TRUE(waitUntilLoaded());
  EXPECT_EQ(window->sizeText(), "5 runs, 3 points each, 1 parameter");
}

TEST_F(MainWindowWithRuns, RefusesToDropWhatIsNotOneLocalFile)
{
  drop({QUrl(QStringLiteral("https://example.org/runs.csv"))});
  EXPECT_FALSE(accepted);
  drop({QUrl::fromLocalFile(QStringLiteral("/a")), QUrl::fromLocalFile(QStringLiteral("/b"))});
  EXPECT_FALSE(accepted);
  EXPECT_FALSE(window->isLoading());
}

TEST_F(MainWindowWithRuns, OffersRecentFilesAndForgetsLostOnes)
{
  openSample();
  auto* menu = window->findChild<QMenu*>(QStringLiteral("recentMenu"));
  ASSERT_TRUE(menu);
  emit menu->aboutToShow();
  ASSERT_EQ(menu->actions().size(), 3) << "the file, a line, and what clears the list";
  const QString path = menu->actions().front()->text();
  EXPECT_TRUE(path.endsWith("/runs.csv"));
  QFile::remove(path);
  menu->actions().front()->trigger();
  ASSERT_TRUE(waitUntilLoaded());
  emit menu->aboutToShow();
  ASSERT_EQ(menu->actions().size(), 1);
  EXPECT_FALSE(menu->actions().front()->isEnabled());
}

TEST_F(MainWindowWithRuns, ShowsTheNamesOfRecentFilesAsTheyAre)
{
  window->openFile(write("R&D runs.csv", sampleRuns()));
  ASSERT_TRUE(waitUntilLoaded());
  auto* menu = window->findChild<QMenu*>(QStringLiteral("recentMenu"));
  emit menu->aboutToShow();
  // Two of them stand for one that is shown; one alone would underline the next letter.
  EXPECT_TRUE(menu->actions().front()->text().endsWith("/R&&D runs.csv"));
  window->openExample();
  menu->actions().front()->trigger();
  ASSERT_TRUE(waitUntilLoaded());
  EXPECT_EQ(window->windowTitle(), "R&D runs.csv - Talmesh Plot");
}

TEST_F(MainWindowWithRuns, CanClearTheListOfRecentFiles)
{
  openSample();
  auto* menu = window->findChild<QMenu*>(QStringLiteral("recentMenu"));
  emit menu->aboutToShow();
  menu->findChild<QAction*>(QStringLiteral("clearRecent"))->trigger();
  EXPECT_TRUE(RecentFiles().paths().isEmpty());
  emit menu->aboutToShow();
  ASSERT_EQ(menu->actions().size(), 1);
  EXPECT_FALSE(menu->actions().front()->isEnabled());
}

TEST_F(MainWindowWithRuns, DrawsTheColumnsInTheOrderOfTheCommandLine)
{
  CommandLineOptions options;
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

TEST_F(MainWindowWithRuns, DrawsWhatIsChosenInThePanel)
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

TEST_F(MainWindowWithRuns, FollowsItsShortcuts)
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

TEST_F(MainWindowWithRuns, KeepsLegendAndLogarithmicAxesThroughOtherStyles)
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

TEST_F(MainWindowWithRuns, HasALogarithmicYAxisOnThePagesOfRunsButNotWithErrorBars)
{
  openSample();
  auto* logY = window->plotDock()->findChild<QCheckBox*>(QStringLiteral("logY"));
  QTest::keyClick(logY, Qt::Key_Space);
  auto* style = window->plotDock()->findChild<QComboBox*>(QStringLiteral("style"));
  for (const plotStyles shown : {multiPlot, scatterWithErrorBars, selectionCdfPlot, xyPlot})
  {
    style->setCurrentIndex(style->findData(static_cast<int>(shown)));
    const bool log = container().getChartXY()->GetAxis(vtkAxis::LEFT)->GetLogScale();
    EXPECT_EQ(log, shown != scatterWithErrorBars) << shown;
    EXPECT_EQ(logY->isChecked(), log) << shown;
  }
}

TEST_F(MainWindowWithRuns, SaysThatAnAxisIsLinearForValuesWithoutLogarithms)
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

TEST_F(MainWindowWithRuns, CanSwitchALogarithmicXAxisOffOnThePagesOfRuns)
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

TEST_F(MainWindowWithRuns, ExportsWhatItShows)
{
  openSample();
  const QString path = folder.filePath(QStringLiteral("plot.png"));
  EXPECT_TRUE(window->exportTo(path));
  EXPECT_EQ(QImage(path).size(),
            window->plotWidget()->size() * window->plotWidget()->devicePixelRatioF());
  EXPECT_FALSE(window->exportTo(folder.filePath(QStringLiteral("nowhere/plot.png"))));
  EXPECT_TRUE(messageBox());
}

TEST_F(MainWindowWithRuns, ShowsOneStudyAfterAnotherInContainersOfTheirOwn)
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
