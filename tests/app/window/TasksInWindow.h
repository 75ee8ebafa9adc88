#ifndef TasksInWindow_h
#define TasksInWindow_h

#include "app/document/Document.h"
#include "app/tasks/TaskRunner.h"
#include "app/window/MainWindow.h"
#include "app/window/SessionController.h"
#include "external/ColumnNames.h"
#include "plot/PlotContainer.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QFile>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <cstddef>
#include <functional>
#include <memory>
#include <random>

#include "SampleStudies.h"

/// Runs of noise, which take long to sort into groups: each looks like every other.
inline Talmesh::app::OpenedStudy noise(std::size_t runs, std::size_t points)
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
  Talmesh::app::OpenedStudy opened;
  opened.study = {"noise", table, nullptr};
  return opened;
}

/// Noise in runs that have numbers.
inline Talmesh::app::OpenedStudy numberedNoise(std::size_t runs, std::size_t points)
{
  const Talmesh::app::OpenedStudy opened = noise(runs, points);
  LinePlotTable& table = *opened.study.runs;
  table.items.push_back(Talmesh::runIndexItem());
  auto* numbers = new double[runs * points];
  for (std::size_t row = 0; row < runs * points; ++row)
    numbers[row] = static_cast<double>(row / points);
  table.values.push_back(numbers);
  return opened;
}

/// A window in which long work is done.
class TasksInWindow : public ::testing::Test
{
protected:
  static constexpr int patience = 60000;

  TasksInWindow()
  {
    window->resize(700, 500);
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  }

  void open(const Talmesh::app::OpenedStudy& study)
  {
    EXPECT_EQ(window->document().open(study), "");
  }
  /// Opens what is not asked about when the window closes.
  void openUnchanged(const Talmesh::app::OpenedStudy& study)
  {
    open(study);
    window->sessionController().opened(study, {}, {});
  }
  void openSample()
  {
    Talmesh::app::OpenedStudy opened;
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

  /// Expects the window to have answered events while it was busy, also on a machine that rarely
  /// comes to it: what was started is started again until it has.
  void expectHeartbeats(const std::function<void()>& startAgain)
  {
    int beats = 0;
    QTimer heart;
    QObject::connect(&heart, &QTimer::timeout, [&] { beats += window->isBusy() ? 1 : 0; });
    heart.start(1);
    for (int times = 0; times < 20; ++times)
    {
      ASSERT_TRUE(waitForEnd());
      if (beats > 3)
        return;
      startAgain();
    }
    ADD_FAILURE() << beats << " answers";
  }

  /// Nothing is at work any more, and what has ended was told.
  void letThreadsEnd()
  {
    for (auto* runner : window->findChildren<Talmesh::app::TaskRunner*>())
      runner->waitForEnd();
    QCoreApplication::processEvents();
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
  std::unique_ptr<Talmesh::app::MainWindow> window = std::make_unique<Talmesh::app::MainWindow>();
};

#endif
