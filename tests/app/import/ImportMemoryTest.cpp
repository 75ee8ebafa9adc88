#include "app/import/RunTableImport.h"
#include "app/session/StudyFile.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <fstream>
#include <string>
#include <vector>

#include "import/ImportedRuns.h"

using namespace Talmesh::app;

namespace
{

/// Runs of ten points, with a name in quotes and an empty cell in each.
std::string namedRuns(int runs)
{
  std::string text = "run,time,k,X\n";
  for (int run = 0; run < runs; ++run)
    for (int point = 0; point < 10; ++point)
      text += "\"no. \"\"" + std::to_string(run) + "\"\"\"," + std::to_string(point) + ',' +
              std::to_string(run) + ".1234567890123456," +
              (point == 3 ? std::string() : std::to_string(run * point) + ".1234567890123456") +
              '\n';
  return text;
}

double residentBytes()
{
  std::ifstream status("/proc/self/status");
  std::string word;
  double kilobytes = 0.0;
  while (status >> word && word != "VmRSS:")
    continue;
  status >> kilobytes;
  return 1024.0 * kilobytes;
}

} // namespace

TEST(ImportMemory, IsNotThatOfTextWhichHasBeenRead)
{
  const std::string text = namedRuns(2000);
  std::string fading = text;
  std::size_t gone = 0;
  const Result<ImportedTable> read = importRunTable(fading, {},
                                                    [&](std::size_t passed)
                                                    {
                                                      ASSERT_GE(passed, gone);
                                                      ASSERT_LE(passed, fading.size());
                                                      for (; gone < passed; ++gone)
                                                        fading[gone] = '\0';
                                                    });
  ASSERT_EQ(read.error(), "");
  const ImportedTable& faded = read.value();
  EXPECT_GT(gone, text.size() / 2);
  const ImportedTable whole = imported(text);
  EXPECT_EQ(labels(faded), labels(whole));
  EXPECT_EQ(faded.notes, whole.notes);
  for (const std::string& label : labels(whole))
    expectValues(faded, label, values(whole, label));
}

TEST(ImportMemory, ShrinksWhileAFileOfLongNumbersIsRead)
{
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "The sanitizer keeps memory of its own.";
#endif
  const QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("long.csv")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  QByteArray rows;
  for (int row = 0; row < 1000; ++row)
    rows += QByteArray::number(row) + ".00000000000000000000000000000000000000," +
            QByteArray::number(row) + ".50000000000000000000000000000000000000\n";
  constexpr int repetitions = 400;
  file.write("a,b\n");
  for (int i = 0; i < repetitions; ++i)
    file.write(rows);
  file.close();
  const double textBytes = double(repetitions) * rows.size();

  double afterReading = 0.0;
  double atTheEnd = 0.0;
  const auto opened = openStudyFile(file.fileName(),
                                    [&](double done)
                                    {
                                      if (afterReading == 0.0 && done > 0.1)
                                        afterReading = residentBytes();
                                      atTheEnd = residentBytes();
                                      return true;
                                    });
  EXPECT_EQ(opened.error(), "");
  ASSERT_TRUE(opened.value().study.table);
  EXPECT_EQ(opened.value().study.table->GetNumberOfRows(), repetitions * 1000);
  // A row of 86 bytes of text becomes 24 bytes: two numbers and the number of its line.
  EXPECT_LT(atTheEnd, afterReading - 0.4 * textBytes);
}
