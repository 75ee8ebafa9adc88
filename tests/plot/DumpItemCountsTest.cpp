#include "BinaryDumpFixture.h"

using DumpBytes::ints;

namespace
{

/// More items than the bytes hold: one whole item, then the given beginning of the next.
class DumpItemCounts : public ::testing::TestWithParam<qint32>
{
protected:
  void read(const QByteArray& beginning)
  {
    QByteArray bytes = ints({GetParam(), Talmesh::Molecule, 0}) + beginning;
    CapturedOutput errors(std::cerr);
    container.readDump(&bytes);
    complaint = errors.text();
  }

  PlotContainer container{nullptr};
  std::string complaint;
};

INSTANTIATE_TEST_SUITE_P(TwoToMost, DumpItemCounts, ::testing::Values(2, 3, 2147483647));

TEST_P(DumpItemCounts, TheKindOfAnItemWithoutNameIsNoCountOfColumns)
{
  for (const qint32 kind : {1, 9, 2147483647})
  {
    read(ints({kind}));
    EXPECT_EQ(container.getColumnItems().size(), 1U) << kind;
    EXPECT_EQ(container.getTable()->GetNumberOfColumns(), 0) << kind;
    EXPECT_EQ(complaint, "") << kind;
  }
}

TEST_P(DumpItemCounts, NorIsItWithAPartOfItsName)
{
  for (int length = 0; length < 8; ++length)
  {
    read(ints({9, 0x01010101}).left(length));
    EXPECT_EQ(container.getColumnItems().size(), 1U) << length;
    EXPECT_EQ(container.getTable()->GetNumberOfColumns(), 0) << length;
    EXPECT_EQ(complaint, "") << length;
  }
}

TEST(DumpItemCount, ThatIsRightLeavesTheCountsOfTheTable)
{
  PlotContainer container(nullptr);
  QByteArray bytes = ints({1, Talmesh::Molecule, 0, 1, 1});
  container.readDump(&bytes);
  EXPECT_EQ(container.getColumnItems().size(), 1U);
  EXPECT_EQ(container.getTable()->GetNumberOfColumns(), 1);
}

} // namespace
