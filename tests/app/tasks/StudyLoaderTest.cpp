#include "app/tasks/StudyLoader.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <atomic>
#include <new>
#include <stdexcept>

#include "SampleStudies.h"

using namespace Talmesh::app;

namespace
{

constexpr int patience = 20000;

void write(const QString& path, const QByteArray& content)
{
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(content);
}

/// Works until it is told to stop.
OpenedStudy workForEver(const ImportProgress& progress)
{
  OpenedStudy opened;
  while (progress(0.5))
    QThread::msleep(1);
  opened.cancelled = true;
  return opened;
}

StudyLoader::Job named(const char* name)
{
  return [name](const ImportProgress&)
  {
    OpenedStudy opened;
    opened.study.name = name;
    return opened;
  };
}

} // namespace

TEST(StudyFile, OpensATableAndNamesItAfterTheFile)
{
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("runs.csv"));
  write(path, QByteArray::fromStdString(sampleRuns()));
  const OpenedStudy opened = openStudyFile(path);
  EXPECT_EQ(opened.error, "");
  EXPECT_EQ(opened.study.name, "runs.csv");
  EXPECT_EQ(studySize(opened.study), "3 runs, 4 points each, 1 parameter");
}

TEST(StudyFile, BeginsItsErrorsWithTheFile)
{
  const QTemporaryDir folder;
  const QString missing = folder.filePath(QStringLiteral("missing.csv"));
  EXPECT_EQ(openStudyFile(missing).error, missing.toStdString() + ": there is no such file");
  EXPECT_EQ(openStudyFile(folder.path()).error,
            folder.path().toStdString() + ": this is not a file");
  EXPECT_EQ(openStudyFile(QStringLiteral("/dev/zero")).error, "/dev/zero: this is not a file");
  const QString empty = folder.filePath(QStringLiteral("empty.csv"));
  write(empty, {});
  EXPECT_EQ(openStudyFile(empty).error, empty.toStdString() + ": the file is empty");
}

TEST(StudyFile, CanBeCancelledWhileItReads)
{
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("runs.csv"));
  write(path, QByteArray::fromStdString(sampleRuns()));
  const OpenedStudy opened = openStudyFile(path, [](double) { return false; });
  EXPECT_TRUE(opened.cancelled);
  EXPECT_FALSE(opened.study.runs);
}

TEST(StudyFile, TellsWhateverGoesWrongInOneLine)
{
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("runs.csv"));
  write(path, QByteArray::fromStdString(sampleRuns()));
  const OpenedStudy broken =
      openStudyFile(path, [](double) -> bool { throw std::runtime_error("broken"); });
  EXPECT_EQ(broken.error, path.toStdString() + ": cannot be opened: broken");
  EXPECT_FALSE(broken.study.runs);
  const OpenedStudy large = openStudyFile(path, [](double) -> bool { throw std::bad_alloc(); });
  EXPECT_EQ(large.error, path.toStdString() + ": the table does not fit into memory");
}

TEST(StudyLoader, DeliversInTheThreadThatOwnsIt)
{
  StudyLoader loader;
  QThread* worker = nullptr;
  QThread* receiver = nullptr;
  std::string name;
  QObject::connect(&loader, &StudyLoader::finished,
                   [&](const OpenedStudy& opened)
                   {
                     receiver = QThread::currentThread();
                     name = opened.study.name;
                   });
  loader.start(
      [&](const ImportProgress& progress)
      {
        worker = QThread::currentThread();
        return named("a")(progress);
      });
  EXPECT_TRUE(loader.isLoading());
  ASSERT_TRUE(QTest::qWaitFor([&] { return receiver != nullptr; }, patience));
  EXPECT_EQ(receiver, QThread::currentThread());
  EXPECT_NE(worker, QThread::currentThread());
  EXPECT_EQ(name, "a");
  EXPECT_FALSE(loader.isLoading());
}

TEST(StudyLoader, ReportsProgressInPercent)
{
  StudyLoader loader;
  std::vector<int> reports;
  bool done = false;
  QObject::connect(&loader, &StudyLoader::progressed,
                   [&](int percent) { reports.push_back(percent); });
  QObject::connect(&loader, &StudyLoader::finished, [&] { done = true; });
  loader.start(
      [](const ImportProgress& progress)
      {
        for (const double part : {0.101, 0.104, 0.5, 1.0})
          progress(part);
        return OpenedStudy();
      });
  ASSERT_TRUE(QTest::qWaitFor([&] { return done; }, patience));
  EXPECT_EQ(reports, (std::vector<int>{10, 50, 100}));
}

TEST(StudyLoader, StaysSilentAfterItWasCancelled)
{
  StudyLoader loader;
  int finished = 0;
  QObject::connect(&loader, &StudyLoader::finished, [&] { ++finished; });
  loader.start(workForEver);
  loader.cancel();
  EXPECT_FALSE(loader.isLoading());
  QTest::qWait(50);
  EXPECT_EQ(finished, 0);
}

TEST(StudyLoader, DeliversOnlyTheStudyStartedLast)
{
  StudyLoader loader;
  std::vector<std::string> names;
  QObject::connect(&loader, &StudyLoader::finished,
                   [&](const OpenedStudy& opened) { names.push_back(opened.study.name); });
  loader.start(workForEver);
  loader.start(named("second"));
  loader.start(named("third"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return !names.empty(); }, patience));
  QTest::qWait(50);
  EXPECT_EQ(names, std::vector<std::string>{"third"});
}

TEST(StudyLoader, EndsItsThreadWhenItIsDestroyed)
{
  std::atomic<bool> ended{false};
  {
    StudyLoader loader;
    loader.start(
        [&](const ImportProgress& progress)
        {
          OpenedStudy opened = workForEver(progress);
          ended = true;
          return opened;
        });
    QTest::qWait(10);
  }
  EXPECT_TRUE(ended);
}

TEST(StudyLoader, ReportsWhatAJobThrows)
{
  StudyLoader loader;
  std::string error;
  QObject::connect(&loader, &StudyLoader::finished,
                   [&](const OpenedStudy& opened) { error = opened.error; });
  loader.start([](const ImportProgress&) -> OpenedStudy { throw std::runtime_error("broken"); });
  ASSERT_TRUE(QTest::qWaitFor([&] { return !error.empty(); }, patience));
  EXPECT_EQ(error, "this cannot be opened: broken");
  error.clear();
  loader.start([](const ImportProgress&) -> OpenedStudy { throw std::bad_alloc(); });
  ASSERT_TRUE(QTest::qWaitFor([&] { return !error.empty(); }, patience));
  EXPECT_EQ(error, "there is not enough memory for this");
}
