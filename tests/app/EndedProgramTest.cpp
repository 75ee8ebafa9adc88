#include "app/session/Session.h"
#include "support/PreparedProcess.h"

#include <vtkIntArray.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>
#include <numeric>

#include "ProgramWindows.h"
#include "SampleStudies.h"

using namespace Talmesh::app;

namespace
{

constexpr int patience = 60000;

/// The viewer as its users start it, with three runs.
class EndedProgram : public ::testing::Test
{
protected:
  void SetUp() override
  {
    if (!windows.canBeSeen())
      GTEST_SKIP() << "This display has no X11 windows.";
    QFile file(folder.filePath(QStringLiteral("runs.csv")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromStdString(sampleRuns()));
  }

  /// @return the window with the runs
  unsigned long start(QProcess& program)
  {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_STATE_HOME"), folder.path());
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    program.start(QStringLiteral(TALMESH_PLOT_PROGRAM),
                  {folder.filePath(QStringLiteral("runs.csv"))});
    // Until then the program has no number.
    EXPECT_TRUE(program.waitForStarted(patience));
    const unsigned long window = windows.waitFor("runs.csv - Talmesh Plot");
    EXPECT_NE(window, 0U);
    return window;
  }

  void selectAll(unsigned long window)
  {
    // Its keys are taken in order, so all is selected when the dialog comes.
    ASSERT_NE(windows.pressFor(window, {"a", "s"}, "Save session"), 0U);
  }

  static void expectEndBy(QProcess& program, int number)
  {
    // The number 0 would signal this program and all around it.
    ASSERT_EQ(program.state(), QProcess::Running);
    ::kill(static_cast<pid_t>(program.processId()), number);
    ASSERT_TRUE(program.waitForFinished(patience)) << number;
    EXPECT_EQ(program.exitStatus(), QProcess::CrashExit) << "as the signal ends any program";
    EXPECT_EQ(program.exitCode(), number);
  }

  QStringList keptFiles() const
  {
    return QDir(state).entryList({QStringLiteral("*.talmesh")}, QDir::Files);
  }

  /// Rows selected in the one file that was kept.
  int keptRows() const
  {
    const Result<OpenedSession> kept = openSession(QDir(state).filePath(keptFiles().value(0)));
    EXPECT_EQ(kept.error(), "");
    vtkIntArray* selected = kept.hasValue() ? kept.value().session->selected.Get() : nullptr;
    if (!selected)
      return -1;
    return std::accumulate(selected->GetPointer(0),
                           selected->GetPointer(0) + selected->GetNumberOfValues(), 0);
  }

  QTemporaryDir folder;
  const QString state = folder.filePath(QStringLiteral("talmesh-plot"));
  ProgramWindows windows;
};

} // namespace

TEST_F(EndedProgram, KeepsItsWorkWhateverSignalEndsIt)
{
  for (const int number : {SIGTERM, SIGINT, SIGHUP})
  {
    QProcess program;
    selectAll(start(program));
    expectEndBy(program, number);
    ASSERT_EQ(keptFiles().size(), 1) << number;
    EXPECT_GT(keptRows(), 0) << number;
    QDir(state).removeRecursively();
  }
}

TEST_F(EndedProgram, OffersItsWorkWhenItIsStartedAgain)
{
  QProcess first;
  selectAll(start(first));
  expectEndBy(first, SIGTERM);
  QProcess second;
  start(second);
  const unsigned long question = windows.waitFor("Talmesh Plot");
  ASSERT_NE(question, 0U);
  // The first of its buttons brings the work back, which is then to be saved or kept again.
  windows.press(question, "Return");
  const unsigned long window = windows.waitFor("runs.csv - Talmesh Plot");
  ASSERT_NE(windows.pressFor(window, {"s"}, "Save session"), 0U);
  const QStringList before = keptFiles();
  expectEndBy(second, SIGTERM);
  EXPECT_EQ(keptFiles(), before) << "it goes on in the same file";
  EXPECT_GT(keptRows(), 0);
}

TEST_F(EndedProgram, LeavesNothingWhenNothingWasDone)
{
  QProcess program;
  start(program);
  expectEndBy(program, SIGTERM);
  EXPECT_TRUE(keptFiles().isEmpty());
}

TEST_F(EndedProgram, StaysDeafToSignalsThatItWasStartedToIgnore)
{
  // As by nohup.
  PreparedProcess program([] { std::signal(SIGHUP, SIG_IGN); });
  start(program);
  ::kill(static_cast<pid_t>(program.processId()), SIGHUP);
  EXPECT_FALSE(program.waitForFinished(500));
  expectEndBy(program, SIGTERM);
}
