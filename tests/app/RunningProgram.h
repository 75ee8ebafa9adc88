#ifndef RunningProgram_h
#define RunningProgram_h

#include "support/PreparedProcess.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>
#include <string>
#include <sys/resource.h>

struct Ended
{
  int status = -1;
  bool crashed = true;
  QByteArray output;
  QByteArray errors;
};

/// What a program may have.
struct Limits
{
  rlim_t fileBytes = RLIM_INFINITY;
  rlim_t addressBytes = RLIM_INFINITY;
};

/// Called in the process that becomes the program.
inline void limit(const Limits& limits)
{
  // Writing more shall fail rather than end the program.
  std::signal(SIGXFSZ, SIG_IGN);
  const rlimit files = {limits.fileBytes, limits.fileBytes};
  const rlimit addresses = {limits.addressBytes, limits.addressBytes};
  setrlimit(RLIMIT_FSIZE, &files);
  setrlimit(RLIMIT_AS, &addresses);
}

/// Runs the viewer as its user does.
class RunningProgram : public ::testing::Test
{
protected:
  Ended run(const QStringList& arguments, const Limits& limits = {})
  {
    return runProgram(QStringLiteral(TALMESH_PLOT_PROGRAM), arguments, limits);
  }

  /// The program is $0 of the script.
  Ended runInShell(const QString& script)
  {
    return runProgram(QStringLiteral("/bin/sh"),
                      {"-c", script, QStringLiteral(TALMESH_PLOT_PROGRAM)}, {});
  }

  Ended runProgram(const QString& program, const QStringList& arguments, const Limits& limits)
  {
    PreparedProcess process([&limits] { limit(limits); });
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    Ended ended;
    if (!process.waitForFinished(120000))
    {
      ADD_FAILURE() << "did not end: " << arguments.join(' ').toStdString();
      process.kill();
      process.waitForFinished();
    }
    ended.crashed = process.exitStatus() != QProcess::NormalExit;
    ended.status = process.exitCode();
    ended.output = process.readAllStandardOutput();
    ended.errors = process.readAllStandardError();
    return ended;
  }

  void expectError(const QStringList& arguments, const QString& message)
  {
    const Ended ended = run(arguments);
    EXPECT_FALSE(ended.crashed);
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.errors.toStdString(), ("talmesh-plot: " + message + "\n").toStdString());
    EXPECT_EQ(ended.output.toStdString(), "");
  }

  /// @param remark what it writes to standard error
  void expectSuccess(const QStringList& arguments, const std::string& remark = {})
  {
    const Ended ended = run(arguments);
    EXPECT_FALSE(ended.crashed);
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.errors.toStdString(), remark);
  }

  /// Lets the program run in a German locale, which is made for it.
  void makeLocaleWithDecimalCommas()
  {
    QProcess process;
    process.start(QStringLiteral("localedef"), {"-i", "de_DE", "-f", "UTF-8", path("de_DE.UTF-8")});
    ASSERT_TRUE(process.waitForFinished(120000));
    ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    environment.insert(QStringLiteral("LOCPATH"), folder.path());
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("de_DE.UTF-8"));
  }

  QByteArray numberPrintedInTheLocale()
  {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral("/usr/bin/printf"), {"%.1f", "0,5"});
    EXPECT_TRUE(process.waitForFinished(60000));
    return process.readAllStandardOutput();
  }

  QString path(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }

  QString write(const char* name, const std::string& text)
  {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text.data(), static_cast<qint64>(text.size()));
    return path(name);
  }

  QTemporaryDir folder;
  QProcessEnvironment environment = []
  {
    QProcessEnvironment changed = QProcessEnvironment::systemEnvironment();
    changed.remove(QStringLiteral("XDG_RUNTIME_DIR"));
    return changed;
  }();
};

#endif
