#include "plot/PlotContainer.h"
#include "support/CapturedOutput.h"
#include "support/SampleRuns.h"
#include "support/SampleTables.h"

#include <vtkIntArray.h>

#include <gtest/gtest.h>

#include <QByteArray>

#include <random>

#include "BinaryDumpFixture.h"

using namespace DumpBytes;

namespace
{

/// Every truncation and every kind of damage ends with a table whose columns agree, and can be
/// dumped again.
class DamagedDump : public BinaryDumpFixture
{
protected:
  DamagedDump()
  {
    items() = SampleRuns::items({});
    container.setPlotData(SampleRuns::table({}));
    add(makeColumn<vtkIntArray>("selected points", std::vector<double>(12, 1.0)));
    samples = {toBytes(frozenDump), dump(), QByteArray(12, '\0')};
  }

  /// A restored selection splits and ranks the runs, which warns about bounds that no dump has.
  static std::string withoutRankingWarnings(const std::string& text)
  {
    std::istringstream lines(text);
    std::string kept;
    for (std::string line; std::getline(lines, line);)
    {
      if (line.find("generateRankedParameters") == std::string::npos)
        kept += line + '\n';
    }
    return kept;
  }

  void readAndCheck(const QByteArray& bytes)
  {
    CapturedOutput errors(std::cerr);
    read(bytes);
    for (int c = 0; c < table()->GetNumberOfColumns(); ++c)
      ASSERT_EQ(table()->GetColumn(c)->GetNumberOfTuples(), table()->GetNumberOfRows());
    ASSERT_LE(items().size(), static_cast<std::size_t>(bytes.size()) / 8);
    const std::string own = withoutRankingWarnings(errors.text());
    ASSERT_TRUE(own.empty() || own == endsTooEarly) << errors.text();
  }

  std::vector<QByteArray> samples;
};

TEST_F(DamagedDump, EveryTruncationIsRead)
{
  for (const QByteArray& sample : samples)
  {
    for (int length = 0; length <= sample.size(); ++length)
      readAndCheck(sample.left(length));
  }
}

TEST_F(DamagedDump, EverySingleByteMayBeWrong)
{
  for (const QByteArray& sample : samples)
  {
    for (int position = 0; position < sample.size(); ++position)
    {
      for (const char value : {'\x00', '\x7F', '\xFF'})
      {
        QByteArray damaged = sample;
        damaged[position] = value;
        readAndCheck(damaged);
      }
    }
  }
}

TEST_F(DamagedDump, RandomFlipsCutsAndInsertionsAreRead)
{
  std::mt19937 random(20240607);
  const auto below = [&random](int limit)
  { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
  for (int round = 0; round < 4000; ++round)
  {
    QByteArray bytes = samples[static_cast<std::size_t>(below(2))];
    for (int i = below(8); i >= 0; --i)
      bytes[below(bytes.size())] = static_cast<char>(below(256));
    if (below(3) == 0)
      bytes.truncate(below(bytes.size()));
    if (below(3) == 0)
      bytes.insert(below(bytes.size() + 1), QByteArray(below(9), static_cast<char>(below(256))));
    readAndCheck(bytes);
  }
}

TEST_F(DamagedDump, RandomBytesAreRead)
{
  std::mt19937 random(977);
  for (int round = 0; round < 3000; ++round)
  {
    QByteArray bytes(static_cast<int>(random() % 200), '\0');
    for (char& byte : bytes)
      byte = random() % 2 == 0 ? '\0' : static_cast<char>(random() % 256);
    readAndCheck(bytes);
  }
}

} // namespace
