#include "app/window/MainWindow.h"
#include "app/window/PlotDock.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkChartXY.h>

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDropEvent>
#include <QFile>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <memory>

#include "SampleStudies.h"

using namespace Talmesh::app;

namespace
{

constexpr int patience = 60000;

class LoadingInWindow : public ::testing::Test
{
protected:
  LoadingInWindow()
  {
    QCoreApplication::setOrganizationName(QStringLiteral("TalmeshTest"));
    QCoreApplication::setApplicationName(QStringLiteral("loading"));
    makeWindow();
  }

  ~LoadingInWindow() override { RecentFiles().clear(); }

  void makeWindow()
  {
    window = std::make_unique<MainWindow>();
    window->resize(700, 500);
    window->show();
    failed = std::make_unique<QSignalSpy>(window.get(), &MainWindow::openFailed);
    commandLineFailed = std::make_unique<QSignalSpy>(window.get(), &MainWindow::commandLineFailed);
    opened = std::make_unique<QSignalSpy>(window.get(), &MainWindow::opened);
  }

  QString write(const char* name, const std::string& text)
  {
    QFile file(folder.filePath(QString::fromUtf8(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text.data(), static_cast<qint64>(text.size()));
    return file.fileName();
  }

  QString writeSample() { return write("runs.csv", sampleRuns()); }
  QString writeBroken() { return write("broken.csv", "time,X\n0,a\n1,2\n"); }
  /// Takes some tenths of a second to load.
  QString writeLarge() { return write("large.csv", sampleRuns(400, 1000)); }

  bool waitUntilLoaded()
  {
    return QTest::qWaitFor([this] { return !window->isLoading(); }, patience);
  }

  /// Opens a large file as the command line does, which names a column that only it has.
  void openNamed(const QString& file)
  {
    OpeningWishes options;
    options.file = file.toStdString();
    options.style = xyPlot;
    options.y = {"Y"};
    window->open(options);
    ASSERT_TRUE(window->isLoading());
  }

  QToolButton* cancelButton()
  {
    return window->findChild<QToolButton*>(QStringLiteral("cancelLoading"));
  }

  void cancel()
  {
    QTest::mouseClick(cancelButton(), Qt::LeftButton);
    ASSERT_FALSE(window->isLoading());
  }

  void drop(const QString& path)
  {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    QDropEvent dropped(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &dropped);
  }

  void expectAMessageOnly()
  {
    EXPECT_EQ(failed->count(), 1);
    EXPECT_EQ(commandLineFailed->count(), 0) << "this would end the program";
    EXPECT_TRUE(window->findChild<QMessageBox*>());
  }

  bool showsAnEmptyPage()
  {
    window->plotWidget()->updatePlot(true);
    const QImage page = window->plotWidget()->grabFramebuffer();
    QImage empty(page.size(), page.format());
    empty.fill(page.pixelColor(0, 0));
    return page == empty;
  }

  PlotContainer& container() { return *window->plotWidget()->plotContainer(); }

  QTemporaryDir folder;
  std::unique_ptr<MainWindow> window;
  std::unique_ptr<QSignalSpy> failed;
  std::unique_ptr<QSignalSpy> commandLineFailed;
  std::unique_ptr<QSignalSpy> opened;
};

} // namespace

TEST_F(LoadingInWindow, ReportsToTheCommandLineWhatItNames)
{
  OpeningWishes options;
  options.file = writeBroken().toStdString();
  window->open(options);
  ASSERT_TRUE(waitUntilLoaded());
  EXPECT_EQ(failed->count(), 1);
  EXPECT_EQ(commandLineFailed->count(), 1);
}

TEST_F(LoadingInWindow, OnlyShowsAMessageForAFileOpenedAfterACancelledCommandLine)
{
  openNamed(writeLarge());
  cancel();
  window->openFile(writeBroken());
  ASSERT_TRUE(waitUntilLoaded());
  expectAMessageOnly();
}

TEST_F(LoadingInWindow, OnlyShowsAMessageForAFileDroppedWhileTheExampleIsComputed)
{
  window->open({});
  ASSERT_TRUE(window->isLoading());
  drop(writeBroken());
  ASSERT_TRUE(waitUntilLoaded());
  expectAMessageOnly();
}

TEST_F(LoadingInWindow, OnlyShowsAMessageForAFileOpenedAfterThatOfTheCommandLine)
{
  openNamed(writeSample());
  ASSERT_TRUE(waitUntilLoaded());
  EXPECT_EQ(opened->count(), 1);
  window->openFile(writeBroken());
  ASSERT_TRUE(waitUntilLoaded());
  expectAMessageOnly();
}

TEST_F(LoadingInWindow, ForgetsTheColumnsOfACancelledCommandLine)
{
  openNamed(writeLarge());
  cancel();
  window->openFile(write("other.csv", "time,A,B\n0,1,2\n1,3,4\n"));
  ASSERT_TRUE(waitUntilLoaded());
  EXPECT_EQ(failed->count(), 0);
  EXPECT_EQ(opened->count(), 1);
  EXPECT_EQ(window->windowTitle(), "other.csv - Talmesh Plot");
}

TEST_F(LoadingInWindow, ForgetsTheColumnsOfACommandLineThatAComputedStudyReplaces)
{
  openNamed(writeLarge());
  window->findChild<QAction*>(QStringLiteral("priors"))->trigger();
  ASSERT_TRUE(waitUntilLoaded());
  EXPECT_EQ(failed->count(), 0);
  EXPECT_EQ(opened->count(), 1);
  EXPECT_EQ(container().getChartXY()->GetTitle(), "Prior density of alpha");
  EXPECT_FALSE(window->findChild<QAction*>(QStringLiteral("returnToRuns"))->isEnabled());
}

TEST_F(LoadingInWindow, ShowsAnEmptyPageUntilSomethingIsOpen)
{
  ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  openNamed(writeLarge());
  EXPECT_TRUE(showsAnEmptyPage()) << "while it loads";
  cancel();
  EXPECT_TRUE(showsAnEmptyPage()) << "after it was given up";
  window->openFile(writeSample());
  ASSERT_TRUE(waitUntilLoaded());
  EXPECT_FALSE(showsAnEmptyPage());
}

TEST_F(LoadingInWindow, DrawsWhatItOpensOnce)
{
  window->openFile(writeSample());
  ASSERT_TRUE(waitUntilLoaded());
  QCoreApplication::processEvents();
  EXPECT_EQ(stateOf(container()).drawings, 1U);
  window->findChild<QAction*>(QStringLiteral("priors"))->trigger();
  ASSERT_TRUE(waitUntilLoaded());
  QCoreApplication::processEvents();
  EXPECT_EQ(stateOf(container()).drawings, 1U);
}

TEST_F(LoadingInWindow, StaysAliveMeanwhile)
{
  window->openFile(writeSample());
  ASSERT_TRUE(waitUntilLoaded());
  window->openFile(writeLarge());
  auto* bar = window->findChild<QProgressBar*>();
  auto* lines = window->plotDock()->findChild<QCheckBox*>(QStringLiteral("legend"));
  int beats = 0;
  QTimer heart;
  QObject::connect(&heart, &QTimer::timeout, [&beats] { ++beats; });
  heart.start(0);
  ASSERT_TRUE(QTest::qWaitFor([&] { return bar->value() > 0 && beats > 3; }, patience));
  EXPECT_TRUE(window->isLoading());
  EXPECT_TRUE(bar->isVisible());
  const bool before = lines->isChecked();
  QTest::keyClick(window.get(), Qt::Key_1, Qt::ControlModifier);
  PlotChoice choice = window->plotDock()->choice();
  choice.style = xyPlot;
  window->plotDock()->setChoice(choice);
  QTest::keyClick(lines, Qt::Key_Space);
  EXPECT_NE(lines->isChecked(), before);
  EXPECT_EQ(container().getChartXY()->GetShowLegend(), lines->isChecked());
  EXPECT_TRUE(window->isLoading()) << "the load is too short to tell";
  ASSERT_TRUE(waitUntilLoaded());
  EXPECT_EQ(window->sizeText(), "400 runs, 1000 points each, 1 parameter");
}

TEST_F(LoadingInWindow, KeepsWhatItShowsAfterACancel)
{
  window->openFile(writeSample());
  ASSERT_TRUE(waitUntilLoaded());
  window->openFile(writeLarge());
  EXPECT_TRUE(window->isLoading());
  EXPECT_TRUE(cancelButton()->isVisible());
  cancel();
  EXPECT_FALSE(cancelButton()->isVisible());
  // The cancelled thread has ended by the time that another one has loaded the same file.
  const QString copy = folder.filePath(QStringLiteral("copy.csv"));
  ASSERT_TRUE(QFile::copy(folder.filePath(QStringLiteral("large.csv")), copy));
  opened->clear();
  window->openFile(copy);
  EXPECT_EQ(window->sizeText(), "3 runs, 4 points each, 1 parameter");
  ASSERT_TRUE(waitUntilLoaded());
  EXPECT_EQ(window->windowTitle(), "copy.csv - Talmesh Plot");
  EXPECT_EQ(opened->count(), 1);
}

TEST_F(LoadingInWindow, ShowsHowFarTheExampleIsAndCanCancelIt)
{
  window->openExample();
  auto* bar = window->findChild<QProgressBar*>();
  ASSERT_TRUE(QTest::qWaitFor([&] { return bar->value() > 0; }, patience));
  EXPECT_LT(bar->value(), 100);
  EXPECT_TRUE(window->isLoading());
  cancel();
  QTest::qWait(50);
  EXPECT_EQ(opened->count(), 0);
  EXPECT_EQ(failed->count(), 0);
}

TEST_F(LoadingInWindow, MayBeClosedAndDestroyedMeanwhile)
{
  const QString path = writeLarge();
  for (const int milliseconds : {0, 5, 50})
  {
    makeWindow();
    window->openFile(path);
    QTest::qWait(milliseconds);
    ASSERT_TRUE(window->isLoading()) << "closed too late after " << milliseconds << " ms";
    window->close();
    EXPECT_TRUE(window->isLoading()) << "destruction is to end it";
    opened->clear();
    window.reset();
    QTest::qWait(20);
    EXPECT_EQ(opened->count(), 0);
  }
  makeWindow();
  window->openFile(path);
  ASSERT_TRUE(waitUntilLoaded());
  EXPECT_EQ(window->sizeText(), "400 runs, 1000 points each, 1 parameter");
}
