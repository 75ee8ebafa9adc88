#include "app/import/RequestWords.h"

#include "app/ImportOptions.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QStringList>

#include <algorithm>

using namespace Talmesh::app;

namespace
{

/// What a shell makes of a line.
QStringList wordsOf(const std::string& line)
{
  QProcess shell;
  shell.start("sh", {"-c", "printf '%s\\n' " + QString::fromStdString(line)});
  EXPECT_TRUE(shell.waitForFinished());
  QStringList words = QString::fromUtf8(shell.readAllStandardOutput()).split('\n');
  words.removeLast();
  return words;
}

/// The request that the command line understands.
ImportRequest readBack(const std::string& line)
{
  ImportRequest request;
  const QStringList words = wordsOf(line);
  for (int i = 0; i + 1 < words.size(); i += 2)
  {
    const auto& options = importOptions();
    const auto option = std::find_if(options.begin(), options.end(),
                                     [&](const ImportOption& known)
                                     { return words[i] == "--" + QString(known.name); });
    if (option == options.end())
      ADD_FAILURE() << "no option " << words[i].toStdString();
    else
      EXPECT_EQ(option->read(words[i + 1].toStdString(), request), "");
  }
  return request;
}

} // namespace

TEST(RequestWords, AreNoneWhereAllIsOpen)
{
  EXPECT_EQ(optionsOf({}), "");
}

TEST(RequestWords, AreWhatTheCommandLineReads)
{
  ImportRequest request;
  request.layout = "tidy";
  request.time = "time [s]";
  request.run = {"sim", "rep, old", "it's"};
  request.item = "$HOME";
  request.value = "Größe";
  request.measured = {"a\\b"};
  request.parameters = {"k1", "k2"};
  request.conditions = {"drug"};
  request.errors = {"A_sd"};
  request.ignored = {"*"};
  request.separator = '\t';
  request.decimalMark = ',';
  request.unequal = UnequalRuns::Interpolate;
  request.sheet = "Sheet 1";
  request.files = "items";
  request.parameterTable = "k.csv";
  request.join = "order";
  const ImportRequest read = readBack(optionsOf(request));
  EXPECT_EQ(read.layout, request.layout);
  EXPECT_EQ(read.time, request.time);
  EXPECT_EQ(read.run, request.run);
  EXPECT_EQ(read.item, request.item);
  EXPECT_EQ(read.value, request.value);
  EXPECT_EQ(read.measured, request.measured);
  EXPECT_EQ(read.parameters, request.parameters);
  EXPECT_EQ(read.conditions, request.conditions);
  EXPECT_EQ(read.errors, request.errors);
  EXPECT_EQ(read.ignored, request.ignored);
  EXPECT_EQ(read.separator, request.separator);
  EXPECT_EQ(read.decimalMark, request.decimalMark);
  EXPECT_EQ(read.unequal, request.unequal);
  EXPECT_EQ(read.sheet, request.sheet);
  EXPECT_EQ(read.files, request.files);
  EXPECT_EQ(read.parameterTable, request.parameterTable);
  EXPECT_EQ(read.join, request.join);
}

TEST(RequestWords, QuoteOnlyWhatAShellWouldChange)
{
  ImportRequest request;
  request.time = "time_s";
  request.separator = ';';
  EXPECT_EQ(optionsOf(request), "--time time_s --separator ';'");
}
