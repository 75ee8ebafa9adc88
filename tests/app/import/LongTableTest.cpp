#include "app/import/LineNumbers.h"
#include "app/import/RunPoints.h"
#include "app/import/RunTableImport.h"
#include "app/session/StudyFile.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <fstream>
#include <limits>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "import/ImportedRuns.h"

using namespace Talmesh::app;

namespace
{

constexpr int items = 8;

std::string longTable(int runs, int points)
{
  std::string text = "sim,time,species,value\n";
  for (int run = 1; run <= runs; ++run)
    for (int point = 0; point < points; ++point)
      for (int item = 0; item < items; ++item)
        text += std::to_string(run) + ',' + std::to_string(point) + ",protein" +
                std::to_string(item) + ',' + std::to_string(run + 0.001 * point * item) + '\n';
  return text;
}

/// Imports a text that is given up at a question.
/// @param question from 0 among those that are asked once the text has been read; none for never
/// @return how many were asked
int questions(const std::string& text, int question, Result<ImportedTable>& read)
{
  int asked = 0;
  bool stopped = false;
  ImportTask task;
  task.progress = [&](double done)
  {
    EXPECT_FALSE(stopped) << "asked again";
    if (done < 1.0)
      return true;
    stopped = asked++ == question;
    return !stopped;
  };
  ImportReport report;
  read = importTable(text, task, report);
  return asked;
}

double statusOf(const std::string& name)
{
  std::ifstream status("/proc/self/status");
  std::string word;
  double kilobytes = 0.0;
  while (status >> word && word != name + ':')
    continue;
  status >> kilobytes;
  return 1024.0 * kilobytes;
}

} // namespace

TEST(LongTable, IsGivenUpWhereverItIsAsked)
{
  const std::string text = longTable(25, 200);
  Result<ImportedTable> read = Result<ImportedTable>::cancelled();
  const int asked = questions(text, -1, read);
  EXPECT_TRUE(read.hasValue());
  // Rows are looked at twice, some 16,000 of them between two questions.
  EXPECT_GT(asked, 2 * 25 * 200 * items / 16384);
  for (int question = 0; question < asked; ++question)
  {
    EXPECT_EQ(questions(text, question, read), question + 1);
    EXPECT_TRUE(read.isCancelled()) << question;
  }
}

TEST(LongTable, TakesLittleMoreMemoryThanItsColumns)
{
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "The sanitizer keeps memory of its own.";
#endif
  constexpr int runs = 250;
  constexpr int points = 400;
  const QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("long.csv")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  {
    const std::string text = longTable(runs, points);
    file.write(text.data(), static_cast<qint64>(text.size()));
  }
  const auto textBytes = static_cast<double>(file.size());
  file.close();
  const double before = statusOf("VmRSS");
  std::ofstream peak("/proc/self/clear_refs");
  if (!(peak << 5).flush())
    GTEST_SKIP() << "The system does not begin the peak anew.";
  const auto opened = openStudyFile(file.fileName());
  EXPECT_EQ(opened.error(), "");
  ASSERT_TRUE(opened.value().study.runs);
  // Names as numbers of 4 bytes, two for each value; the time and the value 8 bytes each: 24 bytes
  // for each of the values, to which the runs come.
  const double values = static_cast<double>(runs) * points * items;
  const double table = static_cast<double>(runs) * points * (items + 2) * sizeof(double);
  EXPECT_LT(statusOf("VmHWM") - before, 24.0 * values + table + textBytes);
}

TEST(LongTable, KeepsNamesApartFromQuantitiesThatAreCalledAsRuns)
{
  // More different numbers than names are kept of.
  std::string text = "time,simulation\n";
  for (int row = 0; row < 20000; ++row)
    text += std::to_string(row) + ',' + std::to_string(row) + ".5\n";
  const ImportedTable table = imported(text);
  expectShape(table, 1, 20000);
  EXPECT_EQ(values(table, "Molecule: simulation")[19999], 19999.5);
}

TEST(LineNumbers, AreThoseThatWereGiven)
{
  const std::vector<std::size_t> lines{2, 3, 4, 9, 10, 7, 7, 1, 2, 3, 30};
  LineNumbers numbers;
  EXPECT_TRUE(numbers.empty());
  for (const std::size_t line : lines)
    numbers.push_back(line);
  ASSERT_EQ(numbers.size(), lines.size());
  for (std::size_t row = 0; row < lines.size(); ++row)
    EXPECT_EQ(numbers[row], lines[row]) << row;
  numbers.clear();
  EXPECT_TRUE(numbers.empty());
}

TEST(RunPoints, NumberEachTimeOfEachRunOnce)
{
  RunPoints points;
  std::vector<std::pair<int, double>> known;
  std::mt19937 random(1);
  for (int i = 0; i < 20000; ++i)
  {
    const std::pair<int, double> point(static_cast<int>(random() % 50), random() % 100 / 8.0);
    const auto number = static_cast<std::size_t>(points.at(point.first, point.second));
    ASSERT_LE(number, known.size());
    if (number == known.size())
      known.push_back(point);
    EXPECT_EQ(known[number], point);
  }
  EXPECT_EQ(points.size(), known.size());
  EXPECT_EQ(std::set(known.begin(), known.end()).size(), known.size());
}
