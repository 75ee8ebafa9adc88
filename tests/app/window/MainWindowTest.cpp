#include "app/window/PlotDock.h"

#include <vtkChartXY.h>
#include <vtkScatterPlotMatrix.h>

#include <QAction>
#include <QImage>
#include <QMenu>
#include <QSignalSpy>
#include <QStatusBar>

#include "window/RunsInWindow.h"
#include "window/WrittenByWindow.h"

using namespace Talmesh::app;

namespace
{

class MainWindowWithRuns : public RunsInWindow
{
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

TEST_F(MainWindowWithRuns, ExportsNothingUntilSomethingIsOpen)
{
  EXPECT_FALSE(window->findChild<QAction*>("exportPlot")->isEnabled());
  openSample();
  EXPECT_TRUE(window->findChild<QAction*>("exportPlot")->isEnabled());
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
  OpeningWishes options;
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
  OpeningWishes options;
  options.file = write("runs.csv", sampleRuns()).toStdString();
  options.y = {"Y"};
  window->open(options);
  ASSERT_TRUE(waitUntilLoaded());
  openSample();
  EXPECT_EQ(window->plotDock()->choice().y, std::vector<int>{0});
}

TEST_F(MainWindowWithRuns, ReportsAColumnThatIsNotThere)
{
  OpeningWishes options;
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
  OpeningWishes options;
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
      failed[0][0].toString().contains("line 2: \"a\" in the column \"X\" is not a number. "));
  EXPECT_EQ(window->sizeText(), "3 runs, 4 points each, 1 parameter");
  EXPECT_EQ(window->windowTitle(), "runs.csv - Talmesh Plot");
  ASSERT_TRUE(messageBox());
  EXPECT_EQ(messageBox()->text(), failed[0][0].toString());
}

TEST_F(MainWindowWithRuns, SaysWhichColumnsItLeftOut)
{
  window->openFile(write("runs.csv", "time,X,drug\n0,1,aspirin\n1,2,aspirin\n"));
  ASSERT_TRUE(waitUntilLoaded());
  EXPECT_EQ(window->statusBar()->currentMessage(),
            "The column \"drug\" holds the same text in all rows, \"aspirin\", and is left out.");
}

TEST_F(MainWindowWithRuns, OpensADroppedFile)
{
  drop({QUrl::fromLocalFile(write("dropped.csv", sampleRuns(5, 3)))});
  EXPECT_TRUE(accepted);
  ASSERT_TRUE(waitUntilLoaded());
  EXPECT_EQ(window->sizeText(), "5 runs, 3 points each, 1 parameter");
}

TEST_F(MainWindowWithRuns, OpensDroppedFilesAsOneTable)
{
  drop({QUrl::fromLocalFile(write("run1.csv", "time,X\n0,1\n1,2\n")),
        QUrl::fromLocalFile(write("run2.csv", "time,X\n0,3\n1,4\n")),
        QUrl::fromLocalFile(write("parameters.csv", "run,k\n1,5\n2,6\n"))});
  EXPECT_TRUE(accepted);
  ASSERT_TRUE(waitUntilLoaded());
  EXPECT_EQ(window->sizeText(), "2 runs, 2 points each, 1 parameter");
}

TEST_F(MainWindowWithRuns, RefusesToDropWhatIsNoLocalFile)
{
  drop({QUrl(QStringLiteral("https://example.org/runs.csv"))});
  EXPECT_FALSE(accepted);
  drop({QUrl::fromLocalFile(QStringLiteral("/a")),
        QUrl(QStringLiteral("https://example.org/runs.csv"))});
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

TEST_F(MainWindowWithRuns, ExportsWhatItShows)
{
  openSample();
  const QString path = folder.filePath(QStringLiteral("plot.png"));
  EXPECT_EQ(writtenBy(*window, path), "");
  EXPECT_EQ(QImage(path).size(),
            window->plotWidget()->size() * window->plotWidget()->devicePixelRatioF());
  EXPECT_NE(writtenBy(*window, folder.filePath(QStringLiteral("nowhere/plot.png"))), "");
  EXPECT_TRUE(messageBox());
}
