#ifndef EndedScript_h
#define EndedScript_h

#include <gtest/gtest.h>

#include <QProcess>
#include <QStringList>

struct EndedScript
{
  int status = -1;
  QString output;
  QString errors;
};

inline EndedScript bash(const QStringList& arguments)
{
  QProcess process;
  process.start(QStringLiteral("bash"), arguments);
  EXPECT_TRUE(process.waitForFinished(60000));
  return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
          QString::fromUtf8(process.readAllStandardError())};
}

const QString sourceTree = QStringLiteral(TALMESH_SOURCE_DIR);

#endif
