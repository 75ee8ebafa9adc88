#include "app/session/TableSample.h"

#include "formats/WrittenFiles.h"
#include "formats/WrittenSheets.h"

using namespace Talmesh::app;

namespace
{

class TableSamples : public WrittenFiles
{
protected:
  static TableSample sampleOf(const QString& path)
  {
    const Result<TableSample> sample = readTableSample({path}, {});
    EXPECT_EQ(sample.error(), "");
    return sample.hasValue() ? sample.value() : TableSample();
  }
};

} // namespace

TEST_F(TableSamples, AreAllOfAShortText)
{
  const TableSample sample = sampleOf(write("a.csv", "time,A\n0,1\n1,2"));
  EXPECT_TRUE(sample.isWhole);
  EXPECT_EQ(sample.start.text, "time,A\n0,1\n1,2");
  EXPECT_FALSE(mayHaveParts({folder.filePath("a.csv")}));
}

TEST_F(TableSamples, AreWholeLinesOfALongText)
{
  std::string text = "time,A\n";
  for (int time = 0; text.size() < 3000000; ++time)
    text += std::to_string(time) + ",987654321\n";
  const TableSample sample = sampleOf(write("a.csv", text));
  EXPECT_FALSE(sample.isWhole);
  EXPECT_LT(sample.start.text.size(), 1000000U);
  EXPECT_EQ(sample.start.text.back(), '\n');
  EXPECT_EQ(text.compare(0, sample.start.text.size(), sample.start.text), 0);
  const ImportReport report = reportOf(sample, {});
  EXPECT_GT(report.mostPoints, 0U);
}

TEST_F(TableSamples, AreOfTheFirstFileOfAFolder)
{
  write("run10.csv", "time,A\n0,10\n");
  write("run2.csv", "time,A\n0,2\n");
  EXPECT_EQ(sampleOf(folder.path()).start.text, "time,A\n0,2\n");
}

TEST_F(TableSamples, SayWhyThereIsNone)
{
  EXPECT_EQ(readTableSample({folder.filePath("none.csv")}, {}).error(), "there is no such file");
}
