#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/CapturedOutput.h"
#include "support/SampleRuns.h"

#include <vtkIntArray.h>

#include <gtest/gtest.h>

#include <QByteArray>
#include <QElapsedTimer>

#include "BinaryDumpFixture.h"

using namespace DumpBytes;
using SampleRuns::valuesOf;
using Talmesh::TypedConcentrationName;

namespace
{

class DumpReading : public BinaryDumpFixture
{
};

TEST_F(DumpReading, NamesBeyondLatin1BecomeQuestionMarks)
{
  QByteArray bytes = ints({0, 1, 0, 4}) + QByteArray::fromHex("03B10041") + QByteArray(1, '\1');
  read(bytes);
  EXPECT_STREQ(table()->GetColumnName(0), "?A");
}

TEST_F(DumpReading, AnyFlagButZeroMeansDoubles)
{
  QByteArray bytes = ints({0, 1, 1}) + header('a', true) + QByteArray::fromHex("3FF0000000000000");
  bytes[12 + 6] = '\x80';
  read(bytes);
  EXPECT_EQ(valuesOf(table(), "a"), (std::vector<double>{1.0}));
}

TEST_F(DumpReading, TheLastOfEqualNamesReplacesTheFirst)
{
  read(ints({0, 3, 1}) + header('a', false) + ints({1}) + header('b', false) + ints({2}) +
       header('a', false) + ints({3}));
  EXPECT_EQ(container.getLabels(), (QStringList{"a", "b"}));
  EXPECT_EQ(valuesOf(table(), "a"), (std::vector<double>{3}));
}

TEST_F(DumpReading, ColumnNamesEndAtAZero)
{
  const QByteArray longer = ints({4}) + QByteArray("\0a\0\0", 4) + QByteArray(1, '\0');
  read(ints({0, 2, 1}) + header('a', false) + ints({1}) + longer + ints({2}));
  EXPECT_EQ(container.getLabels(), (QStringList{"a"}));
  EXPECT_EQ(valuesOf(table(), "a"), (std::vector<double>{2}));
}

TEST_F(DumpReading, BytesBehindTheEndAreIgnored)
{
  read(toBytes(frozenDump) + "more");
  EXPECT_EQ(table()->GetNumberOfColumns(), 4);
}

TEST_F(DumpReading, EmptyBytesGiveAnEmptyTable)
{
  CapturedOutput errors(std::cerr);
  read(toBytes(frozenDump));
  read(QByteArray());
  EXPECT_TRUE(items().empty());
  EXPECT_EQ(table()->GetNumberOfColumns(), 0);
  EXPECT_EQ(errors.text(), "");
}

TEST_F(DumpReading, NegativeCountsAreZero)
{
  read(ints({-1, -5, -7}));
  EXPECT_TRUE(items().empty());
  EXPECT_EQ(table()->GetNumberOfColumns(), 0);
  read(ints({0, 1, -3}) + header('a', true));
  EXPECT_EQ(container.getLabels(), (QStringList{"a"}));
  EXPECT_EQ(table()->GetNumberOfRows(), 0);
}

TEST_F(DumpReading, CutOffValuesReadAsZero)
{
  CapturedOutput errors(std::cerr);
  QByteArray bytes = toBytes(frozenDump);
  bytes.truncate(48 + 11); // the second value of "Time" misses its last bytes
  read(bytes);
  ASSERT_EQ(table()->GetNumberOfColumns(), 4);
  EXPECT_EQ(valuesOf(table(), "Time"), (std::vector<double>{1.0, 0.0}));
  for (int c = 1; c < 4; ++c)
  {
    EXPECT_EQ(table()->GetColumnName(c), nullptr) << c;
    EXPECT_NE(vtkIntArray::SafeDownCast(table()->GetColumn(c)), nullptr) << c;
    EXPECT_EQ(valuesOf(table()->GetColumn(c)), (std::vector<double>{0, 0})) << c;
  }
  EXPECT_EQ(errors.text(), "");
}

TEST_F(DumpReading, CountsAloneGiveColumnsOfZeros)
{
  read(ints({0, 1, 1}));
  ASSERT_EQ(table()->GetNumberOfColumns(), 1);
  EXPECT_EQ(valuesOf(table()->GetColumn(0)), (std::vector<double>{0}));
}

TEST_F(DumpReading, AColumnWithoutItsFlagIsOneOfInts)
{
  read(ints({0, 1, 1, 2}) + QByteArray("\0a", 2));
  EXPECT_EQ(valuesOf(table(), "a"), (std::vector<double>{0}));
  EXPECT_NE(vtkIntArray::SafeDownCast(table()->GetColumn(0)), nullptr);
}

TEST_F(DumpReading, NothingIsReadBehindADamagedName)
{
  // A string cannot have an odd number of bytes; what follows would make a column.
  read(ints({0, 2, 1, 3}) + header('a', false) + ints({5}));
  ASSERT_EQ(table()->GetNumberOfColumns(), 2);
  for (int c = 0; c < 2; ++c)
  {
    EXPECT_EQ(table()->GetColumnName(c), nullptr);
    EXPECT_EQ(valuesOf(table()->GetColumn(c)), (std::vector<double>{0}));
  }
}

TEST_F(DumpReading, ItemsAreMadeAsFarAsTheBytesCouldHoldThem)
{
  read(ints({2147483647, 1, 0, 2, 0}));
  EXPECT_EQ(items().size(), 2U);
  EXPECT_EQ(items()[1], (TypedConcentrationName{Talmesh::ComplexWithMolecule, ""}));
  EXPECT_EQ(table()->GetNumberOfColumns(), 0);
}

TEST_F(DumpReading, ZerosAreMadeUpToTheSizeOfTheColumnsThatAreNamed)
{
  // One named column of 1000 doubles, no values.
  const QByteArray named = header('a', true);
  {
    CapturedOutput errors(std::cerr);
    read(ints({0, 2, 1000}) + named);
    EXPECT_EQ(table()->GetNumberOfColumns(), 2);
    EXPECT_EQ(table()->GetNumberOfRows(), 1000);
    EXPECT_EQ(errors.text(), "");
  }
  CapturedOutput errors(std::cerr);
  read(ints({0, 3, 1000}) + named);
  EXPECT_EQ(table()->GetNumberOfColumns(), 0);
  EXPECT_EQ(errors.text(), endsTooEarly);
}

TEST_F(DumpReading, ZerosAreMadeUpTo256MiB)
{
  const qint32 mostDoubles = 256 * 1024 * 1024 / 8;
  CapturedOutput errors(std::cerr);
  read(ints({0, 1, mostDoubles}) + header('a', true));
  EXPECT_EQ(table()->GetNumberOfRows(), mostDoubles);
  EXPECT_EQ(errors.text(), "");
  read(ints({0, 1, mostDoubles + 1}) + header('a', true));
  EXPECT_EQ(table()->GetNumberOfColumns(), 0);
  EXPECT_EQ(errors.text(), endsTooEarly);
}

TEST_F(DumpReading, HugeCountsGiveAnEmptyTable)
{
  const qint32 most = 2147483647;
  for (const auto& [columns, rows] : {std::pair{most, most}, {most, 0}, {1, most}, {most, 1}})
  {
    CapturedOutput errors(std::cerr);
    stateOf(container).selectionUpdatePending = true;
    read(ints({1, 3, 0, columns, rows}));
    EXPECT_EQ(table()->GetNumberOfColumns(), 0) << columns << ' ' << rows;
    EXPECT_EQ(items().size(), 1U);
    EXPECT_EQ(errors.text(), endsTooEarly);
    EXPECT_FALSE(stateOf(container).selectionUpdatePending);
  }
}

/// Columns of different names of six digits: 12 bytes, and 5 more of their headers.
QByteArray manyColumns(int count, int rows)
{
  QByteArray bytes = ints({0, count, rows});
  for (int i = 0; i < count; ++i)
  {
    bytes += ints({12});
    for (const char digit : QByteArray::number(100000 + i))
      bytes += QByteArray(1, '\0') + digit;
    bytes += QByteArray(1 + 4 * rows, '\0');
  }
  return bytes;
}

TEST_F(DumpReading, ManyColumnsTakeNoTimeToSpeakOf)
{
  // A search among all names would show: 10^10 comparisons.
  const int count = 100000;
  const QByteArray bytes = manyColumns(count, 0);
  QElapsedTimer timer;
  timer.start();
  read(bytes);
  EXPECT_EQ(table()->GetNumberOfColumns(), count);
  EXPECT_LT(timer.elapsed(), 20000);
}

TEST_F(DumpReading, ColumnsOfNoRowsTakeAtMost64MiB)
{
  // 512 bytes each.
  const int most = 64 * 1024 * 1024 / 512;
  CapturedOutput errors(std::cerr);
  read(ints({0, most, 0}) + QByteArray(5 * most, '\0'));
  EXPECT_EQ(errors.text(), "");
  read(ints({0, most + 1, 0}) + QByteArray(5 * most + 5, '\0'));
  EXPECT_EQ(table()->GetNumberOfColumns(), 0);
  EXPECT_EQ(errors.text(), endsTooEarly);
}

TEST_F(DumpReading, ColumnsTakeAtMost16TimesALargeDump)
{
  // Columns of 4 + 12 + 1 + 4 R bytes: 512 are at most 16 times that from R = 4 on.
  const int count = 150000;
  {
    const CapturedOutput errors(std::cerr);
    read(manyColumns(count, 4));
    EXPECT_EQ(table()->GetNumberOfColumns(), count);
    EXPECT_EQ(errors.text(), "");
  }
  const CapturedOutput errors(std::cerr);
  read(manyColumns(count, 3));
  EXPECT_EQ(table()->GetNumberOfColumns(), 0);
  EXPECT_EQ(errors.text(), endsTooEarly);
}

} // namespace
