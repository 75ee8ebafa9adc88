#include "app/session/WorkKeeper.h"

#include "app/document/ShownStudy.h"
#include "app/session/Session.h"
#include "plot/PlotContainer.h"
#include "support/DiskFaults.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <cerrno>
#include <chrono>
#include <thread>

#include "SampleStudies.h"

using namespace Talmesh::app;

namespace
{

constexpr auto patience = std::chrono::seconds(60);

/// Unsaved work of which a keeper knows, with an error number as of a failing disk.
class WorkKeeping : public testing::TestWithParam<int>
{
protected:
  WorkKeeping() { showStudy(study, container); }

  QByteArray keptBytes() const
  {
    const QDir kept(folder.path());
    QFile file(kept.filePath(kept.entryList({QStringLiteral("*.talmesh")}, QDir::Files).value(0)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  /// Lets the keeper's timer look at the work once, and nothing more that it waits for.
  void lookOnce() { untilLooked.exec(); }

  const QTemporaryDir folder;
  const Study study = sampleStudy();
  PlotContainer container{nullptr};
  bool legend = false;
  QEventLoop untilLooked;
  WorkKeeper keeper{folder.path(),
                    [this]
                    {
                      untilLooked.quit();
                      return std::optional(SessionSource{
                          study, container, legend, false, {}, {}, {}, {}, {}, {}, {}});
                    },
                    1};
};

void waitForCallOf(const DiskFault& fault)
{
  const auto end = std::chrono::steady_clock::now() + patience;
  while (fault.calls() == 0 && std::chrono::steady_clock::now() < end)
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  ASSERT_GT(fault.calls(), 0);
}

} // namespace

TEST_P(WorkKeeping, TriesAgainAtOnceWhatTheThreadFailedToWrite)
{
  keeper.keepNow();
  const QByteArray first = keptBytes();
  ASSERT_FALSE(first.isEmpty());
  legend = true;
  const QSignalSpy failures(&keeper, &WorkKeeper::failed);
  {
    const DiskFault fault(DiskCall::Sync, GetParam());
    lookOnce();
    waitForCallOf(fault);
  }
  ASSERT_EQ(failures.size(), 0) << "the result has not come yet";
  keeper.keepNow();
  EXPECT_EQ(failures.size(), 1);
  EXPECT_NE(keptBytes(), first);
}

INSTANTIATE_TEST_SUITE_P(Faults, WorkKeeping, testing::Values(ENOSPC, outOfMemory));
