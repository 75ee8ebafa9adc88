#include "app/tasks/TaskRunner.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <atomic>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

using namespace Talmesh::app;

namespace
{

constexpr int patience = 20000;

using Text = Result<std::string>;

/// Works until it is told to stop.
Text workForEver(const TaskProgress& progress)
{
  while (progress(0.5))
    QThread::msleep(1);
  return Text::cancelled();
}

TaskRunner::Task<std::string> named(const char* name)
{
  return [name](const TaskProgress&) { return Text(name); };
}

/// Tasks with a text as their result.
class TaskRunnerOfTexts : public ::testing::Test
{
protected:
  void start(const TaskRunner::Task<std::string>& task)
  {
    runner->start<std::string>(receiver.get(), task,
                               [this](const Text& result) { results.push_back(result); });
  }

  bool waitForResults()
  {
    return QTest::qWaitFor([this] { return !results.empty(); }, patience);
  }

  std::unique_ptr<QObject> receiver = std::make_unique<QObject>();
  std::unique_ptr<TaskRunner> runner = std::make_unique<TaskRunner>();
  std::vector<Text> results;
};

} // namespace

TEST_F(TaskRunnerOfTexts, DeliversInTheThreadThatOwnsIt)
{
  QThread* worker = nullptr;
  QThread* deliverer = nullptr;
  std::string name;
  runner->start<std::string>(
      receiver.get(),
      [&](const TaskProgress&)
      {
        worker = QThread::currentThread();
        return Text("a");
      },
      [&](const Text& result)
      {
        deliverer = QThread::currentThread();
        name = result.value();
      });
  EXPECT_TRUE(runner->isRunning());
  ASSERT_TRUE(QTest::qWaitFor([&] { return deliverer != nullptr; }, patience));
  EXPECT_EQ(deliverer, QThread::currentThread());
  EXPECT_NE(worker, QThread::currentThread());
  EXPECT_EQ(name, "a");
  EXPECT_FALSE(runner->isRunning());
}

TEST_F(TaskRunnerOfTexts, ReportsProgressInPercent)
{
  std::vector<int> reports;
  QObject::connect(runner.get(), &TaskRunner::progressed,
                   [&](int percent) { reports.push_back(percent); });
  start(
      [](const TaskProgress& progress)
      {
        for (const double part : {0.101, 0.104, 0.5, 1.0})
          progress(part);
        return Text("done");
      });
  ASSERT_TRUE(waitForResults());
  EXPECT_EQ(reports, (std::vector<int>{10, 50, 100}));
}

TEST_F(TaskRunnerOfTexts, SaysWhenItStartsAndEnds)
{
  QSignalSpy started(runner.get(), &TaskRunner::started);
  QSignalSpy ended(runner.get(), &TaskRunner::ended);
  start(workForEver);
  start(named("second"));
  EXPECT_EQ(started.count(), 2);
  EXPECT_EQ(ended.count(), 0) << "another task has taken the place of the first";
  ASSERT_TRUE(waitForResults());
  EXPECT_EQ(ended.count(), 1);
  start(workForEver);
  runner->cancel();
  runner->cancel();
  EXPECT_EQ(ended.count(), 2) << "there was one task to give up";
}

TEST_F(TaskRunnerOfTexts, StaysSilentAfterItWasCancelled)
{
  start(workForEver);
  runner->cancel();
  EXPECT_FALSE(runner->isRunning());
  QTest::qWait(50);
  EXPECT_TRUE(results.empty());
}

TEST_F(TaskRunnerOfTexts, DeliversOnlyTheResultOfTheTaskStartedLast)
{
  start(workForEver);
  start(named("second"));
  start(named("third"));
  ASSERT_TRUE(waitForResults());
  QTest::qWait(50);
  ASSERT_EQ(results.size(), 1U);
  EXPECT_EQ(results[0].value(), "third");
}

TEST_F(TaskRunnerOfTexts, DeliversWhatATaskSaysOfItself)
{
  start([](const TaskProgress&) { return Text::cancelled(); });
  ASSERT_TRUE(waitForResults());
  EXPECT_TRUE(results[0].isCancelled());
  results.clear();
  start([](const TaskProgress&) { return Text::failed("no such thing"); });
  ASSERT_TRUE(waitForResults());
  EXPECT_FALSE(results[0].hasValue());
  EXPECT_FALSE(results[0].isCancelled());
  EXPECT_EQ(results[0].error(), "no such thing");
}

TEST_F(TaskRunnerOfTexts, DeliversWhatATaskThrowsAsAnError)
{
  start([](const TaskProgress&) -> Text { throw std::runtime_error("broken"); });
  ASSERT_TRUE(waitForResults());
  EXPECT_EQ(results[0].error(), "this cannot be done: broken");
  results.clear();
  start([](const TaskProgress&) -> Text { throw std::bad_alloc(); });
  ASSERT_TRUE(waitForResults());
  EXPECT_EQ(results[0].error(), "there is not enough memory for this");
}

TEST_F(TaskRunnerOfTexts, EndsItsThreadWhenItIsDestroyed)
{
  std::atomic<bool> ended{false};
  start(
      [&](const TaskProgress& progress)
      {
        Text result = workForEver(progress);
        ended = true;
        return result;
      });
  QTest::qWait(10);
  runner.reset();
  EXPECT_TRUE(ended);
  QTest::qWait(20);
  EXPECT_TRUE(results.empty());
}

TEST_F(TaskRunnerOfTexts, DeliversNothingToAReceiverThatIsGone)
{
  QSignalSpy ended(runner.get(), &TaskRunner::ended);
  start(named("a"));
  receiver.reset();
  ASSERT_TRUE(QTest::qWaitFor([&] { return ended.count() > 0; }, patience));
  EXPECT_TRUE(results.empty());
}

TEST_F(TaskRunnerOfTexts, MayBeDestroyedByADelivery)
{
  bool delivered = false;
  runner->start<std::string>(receiver.get(), named("a"),
                             [&](const Text& result)
                             {
                               runner.reset();
                               delivered = result.value() == "a";
                             });
  EXPECT_TRUE(QTest::qWaitFor([&] { return delivered; }, patience));
}

TEST_F(TaskRunnerOfTexts, StartsTheNextTaskFromADelivery)
{
  runner->start<std::string>(receiver.get(), named("first"),
                             [this](const Text&) { start(named("next")); });
  ASSERT_TRUE(waitForResults());
  EXPECT_EQ(results[0].value(), "next");
}
