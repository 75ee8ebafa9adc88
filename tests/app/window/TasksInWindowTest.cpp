#include "app/document/Document.h"
#include "app/window/MainWindow.h"
#include "app/window/SessionController.h"
#include "plot/PlotContainer.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <cstring>
#include <memory>
#include <random>

#include "SampleStudies.h"
#include "window/WrittenByWindow.h"

using namespace Talmesh::app;

namespace
{

constexpr int patience = 60000;

/// Runs of noise, which take long to sort into groups: each looks like every other.
OpenedStudy noise(std::size_t runs, std::size_t points)
{
  auto table = boost::make_shared<LinePlotTable>();
  table->items = {{Talmesh::Molecule, "X"}, {Talmesh::TimeOrValue, "Time [s]"}};
  table->numberOfTrajectories = runs;
  table->pointsPerTrajectory = points;
  std::mt19937 generator(7);
  for (std::size_t item = 0; item < table->items.size(); ++item)
  {
    auto* values = new double[runs * points];
    for (std::size_t row = 0; row < runs * points; ++row)
      values[row] =
          item == 0 ? static_cast<double>(generator() % 1000) : static_cast<double>(row % points);
    table->values.push_back(values);
  }
  OpenedStudy opened;
  opened.study = {"noise", table, nullptr};
  return opened;
}

class TasksInWindow : public ::testing::Test
{
protected:
  TasksInWindow()
  {
    window->resize(700, 500);
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  }

  void open(const OpenedStudy& study) { EXPECT_EQ(window->document().open(study), ""); }
  /// Opens what is not asked about when the window closes.
  void openUnchanged(const OpenedStudy& study)
  {
    open(study);
    window->sessionController().opened(study, {}, {});
  }
  void openSample()
  {
    OpenedStudy opened;
    opened.study = sampleStudy();
    open(opened);
  }

  template <typename Widget>
  Widget* find(const char* name)
  {
    auto* widget = window->findChild<Widget*>(QLatin1String(name));
    EXPECT_NE(widget, nullptr) << name;
    return widget;
  }

  void click(const char* name) { QTest::mouseClick(find<QAbstractButton>(name), Qt::LeftButton); }

  bool waitForEnd()
  {
    return QTest::qWaitFor([this] { return !window->isBusy(); }, patience);
  }

  /// Starts to sort many runs into many groups.
  void startGrouping()
  {
    open(noise(3000, 300));
    find<QSpinBox>("clusterCount")->setValue(12);
    click("clusterStart");
    ASSERT_TRUE(window->isBusy());
  }

  std::size_t groups() { return window->document().groups().groups().names.size(); }

  QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }
  static QByteArray contentOf(const QString& path)
  {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
  }
  QByteArray tableAsText()
  {
    const std::unique_ptr<char[]> text(window->document().container()->saveData({}, true));
    return text.get();
  }

  QTemporaryDir folder;
  std::unique_ptr<MainWindow> window = std::make_unique<MainWindow>();
};

} // namespace

TEST_F(TasksInWindow, StaysAliveWhileRunsAreGrouped)
{
  startGrouping();
  EXPECT_TRUE(find<QToolButton>("cancelGrouping")->isVisible());
  EXPECT_EQ(groups(), 0U);
  int beats = 0;
  QTimer heart;
  QObject::connect(&heart, &QTimer::timeout,
                   [&]
                   {
                     if (window->isBusy())
                       ++beats;
                   });
  heart.start(1);
  ASSERT_TRUE(waitForEnd());
  EXPECT_GT(beats, 3);
  EXPECT_EQ(groups(), 12U);
  EXPECT_TRUE(window->document().groups().state().look.groupColours);
  EXPECT_FALSE(find<QToolButton>("cancelGrouping")->isVisible());
}

TEST_F(TasksInWindow, MakesNoGroupsAfterACancel)
{
  startGrouping();
  click("cancelGrouping");
  EXPECT_FALSE(window->isBusy());
  QTest::qWait(50);
  EXPECT_EQ(groups(), 0U);
  EXPECT_FALSE(find<QToolButton>("cancelGrouping")->isVisible());
}

TEST_F(TasksInWindow, MakesNoGroupsOfAStudyThatAnotherHasReplaced)
{
  startGrouping();
  openSample();
  EXPECT_FALSE(window->isBusy());
  QTest::qWait(50);
  EXPECT_EQ(groups(), 0U);
  EXPECT_EQ(window->document().groups().runs(), 3);
}

TEST_F(TasksInWindow, MayBeDestroyedWhileRunsAreGrouped)
{
  for (const int milliseconds : {0, 5, 50})
  {
    window = std::make_unique<MainWindow>();
    window->show();
    startGrouping();
    QTest::qWait(milliseconds);
    EXPECT_TRUE(window->isBusy()) << "closed too late after " << milliseconds << " ms";
    window->close();
    window.reset();
    QTest::qWait(10);
  }
}

TEST_F(TasksInWindow, StaysAliveWhileATableIsWritten)
{
  open(noise(400, 500));
  window->exportController().exportTo(path("table.csv"));
  EXPECT_TRUE(window->isBusy());
  EXPECT_TRUE(find<QToolButton>("cancelExport")->isVisible());
  EXPECT_FALSE(QFile::exists(path("table.csv"))) << "appears when it is whole";
  int beats = 0;
  QTimer heart;
  QObject::connect(&heart, &QTimer::timeout, [&beats] { ++beats; });
  heart.start(1);
  ASSERT_TRUE(waitForEnd());
  EXPECT_GT(beats, 3);
  EXPECT_EQ(contentOf(path("table.csv")), tableAsText());
}

TEST_F(TasksInWindow, WritesWhatWasShownThoughAnotherStudyIsOpened)
{
  open(noise(200, 500));
  const QByteArray table = tableAsText();
  window->exportController().exportTo(path("table.csv"));
  window->document().groups().normalise(true);
  openSample();
  EXPECT_TRUE(window->isBusy());
  ASSERT_TRUE(waitForEnd());
  EXPECT_EQ(contentOf(path("table.csv")), table);
}

TEST_F(TasksInWindow, WritesToItsEndWhatAClosedWindowWasAskedFor)
{
  open(noise(200, 500));
  const QByteArray table = tableAsText();
  window->exportController().exportTo(path("first.csv"));
  window->exportController().exportTo(path("second.csv"));
  window->close();
  window.reset();
  EXPECT_EQ(contentOf(path("first.csv")), table);
  EXPECT_EQ(contentOf(path("second.csv")), table);
}

TEST_F(TasksInWindow, ClosesWhenAllIsWritten)
{
  openUnchanged(noise(200, 500));
  const QByteArray table = tableAsText();
  window->exportController().exportTo(path("first.csv"));
  window->exportController().exportTo(path("second.csv"));
  EXPECT_FALSE(window->close());
  EXPECT_TRUE(window->isVisible());
  EXPECT_FALSE(window->close()) << "asked twice";
  ASSERT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }, 20000));
  EXPECT_EQ(contentOf(path("first.csv")), table);
  EXPECT_EQ(contentOf(path("second.csv")), table);
}

TEST_F(TasksInWindow, StaysToSayThatAFileCouldNotBeWrittenThoughItWasClosed)
{
  openUnchanged(noise(200, 500));
  window->exportController().exportTo(path("no/such/folder.csv"));
  window->exportController().exportTo(path("second.csv"));
  window->close();
  ASSERT_TRUE(waitForEnd());
  EXPECT_TRUE(window->isVisible());
  auto* box = window->findChild<QMessageBox*>();
  ASSERT_NE(box, nullptr);
  EXPECT_TRUE(box->text().startsWith(path("no/such/folder.csv") + ": "))
      << box->text().toStdString();
  EXPECT_TRUE(QFile::exists(path("second.csv")));
  delete box;
  EXPECT_TRUE(window->close());
}

TEST_F(TasksInWindow, ClosesAtOnceWhenTheWritingIsCancelled)
{
  openUnchanged(noise(1000, 500));
  window->exportController().exportTo(path("table.csv"));
  EXPECT_FALSE(window->close());
  click("cancelExport");
  EXPECT_FALSE(window->isVisible());
  window.reset();
  EXPECT_FALSE(QFile::exists(path("table.csv")));
}

TEST_F(TasksInWindow, WritesAllThoughOneIsAskedForWhenAnotherIsWritten)
{
  openSample();
  ExportController& exports = window->exportController();
  QObject::connect(&exports, &ExportController::written, &exports,
                   [&](const QString& written)
                   {
                     if (written == path("first.csv"))
                       exports.exportTo(path("third.csv"));
                   });
  exports.exportTo(path("first.csv"));
  exports.exportTo(path("second.csv"));
  ASSERT_TRUE(waitForEnd());
  for (const char* name : {"first.csv", "second.csv", "third.csv"})
    EXPECT_TRUE(QFile::exists(path(name))) << name;
}

TEST_F(TasksInWindow, KeepsTheOldFileWhenItsWritingIsCancelled)
{
  {
    QFile old(path("table.csv"));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
  }
  open(noise(1000, 500));
  window->exportController().exportTo(path("table.csv"));
  window->exportController().exportTo(path("second.csv"));
  click("cancelExport");
  EXPECT_FALSE(window->isBusy());
  window.reset();
  EXPECT_EQ(contentOf(path("table.csv")), "old");
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("table.csv"));
}

TEST_F(TasksInWindow, WritesSeveralFilesOneAfterAnother)
{
  openSample();
  for (const char* name : {"a.png", "b.pdf", "c.csv"})
    window->exportController().exportTo(path(name));
  ASSERT_TRUE(QTest::qWaitFor([this] { return QFile::exists(path("c.csv")); }, patience));
  for (const char* name : {"a.png", "b.pdf", "c.csv"})
    EXPECT_FALSE(contentOf(path(name)).isEmpty()) << name;
}
