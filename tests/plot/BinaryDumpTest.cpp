#include "plot/BinaryDump.h"

#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/CapturedOutput.h"
#include "support/SampleRuns.h"
#include "support/SampleTables.h"

#include <vtkBitArray.h>
#include <vtkDataSetAttributes.h>
#include <vtkFloatArray.h>
#include <vtkIdTypeArray.h>
#include <vtkIntArray.h>
#include <vtkUnsignedCharArray.h>

#include <gtest/gtest.h>

#include <QByteArray>
#include <QElapsedTimer>

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <random>

using SampleRuns::valuesOf;
using Talmesh::TypedConcentrationName;

namespace
{

const std::string endsTooEarly = "void PlotContainer::readDump(QByteArray*): the data end too "
                                 "early, the table stays empty\n";

/// Two items, a double column, an int column, a column whose name is Latin-1 and an unnamed one;
/// two rows. Written by hand from the format, byte by byte.
const std::vector<unsigned char> frozenDump = {
    0x00, 0x00, 0x00, 0x02,                         // 2 items
    0x00, 0x00, 0x00, 0x03,                         // pattern
    0x00, 0x00, 0x00, 0x04, 0x00, 'A',  0x00, 'b',  // "Ab"
    0x00, 0x00, 0x00, 0x05,                         // parameter
    0x00, 0x00, 0x00, 0x00,                         // ""
    0x00, 0x00, 0x00, 0x04,                         // 4 columns
    0x00, 0x00, 0x00, 0x02,                         // 2 rows
    0x00, 0x00, 0x00, 0x08, 0x00, 'T',  0x00, 'i',  // "Time"
    0x00, 'm',  0x00, 'e',                          //
    0x01,                                           // doubles
    0x3F, 0xF0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, // 1.0
    0xC0, 0x04, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, // -2.5
    0x00, 0x00, 0x00, 0x02, 0x00, 'n',              // "n"
    0x00,                                           // ints
    0x00, 0x00, 0x00, 0x07,                         // 7
    0xFF, 0xFF, 0xFF, 0xFE,                         // -2
    0x00, 0x00, 0x00, 0x02, 0x00, 0xB5,             // micro sign
    0x01,                                           // doubles
    0x7F, 0xF0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, // infinity
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x01, // smallest double
    0xFF, 0xFF, 0xFF, 0xFF,                         // no name
    0x00,                                           // ints
    0x00, 0x00, 0x00, 0x01,                         // 1
    0x00, 0x00, 0x00, 0x00,                         // 0
};

QByteArray toBytes(const std::vector<unsigned char>& values)
{
  return {reinterpret_cast<const char*>(values.data()), static_cast<int>(values.size())};
}

/// The bytes of int32 values in big-endian order.
QByteArray ints(const std::vector<qint32>& values)
{
  QByteArray bytes;
  for (const qint32 value : values)
  {
    for (int shift = 24; shift >= 0; shift -= 8)
      bytes.append(static_cast<char>((value >> shift) & 0xFF));
  }
  return bytes;
}

/// Name of one letter and the flag of a column.
QByteArray header(char name, bool isDouble)
{
  return ints({2}) + QByteArray(1, '\0') + name + QByteArray(1, isDouble ? '\1' : '\0');
}

template <typename Array>
vtkSmartPointer<Array> arrayOf(const char* name, const std::vector<double>& values)
{
  auto array = vtkSmartPointer<Array>::New();
  array->SetName(name);
  for (const double value : values)
    array->InsertNextTuple1(value);
  return array;
}

class BinaryDump : public ::testing::Test
{
protected:
  QByteArray dump()
  {
    const std::unique_ptr<QByteArray> bytes(container.binaryDump());
    return *bytes;
  }

  void read(QByteArray bytes) { container.readDump(&bytes); }

  vtkTable* table() { return container.getTable(); }
  void add(vtkAbstractArray* column) { table()->AddColumn(column); }
  std::vector<TypedConcentrationName>& items() { return container.state().columnItems; }

  PlotContainer container{nullptr};
};

TEST_F(BinaryDump, OfAnEmptyContainerIsThreeZeros)
{
  EXPECT_EQ(dump(), QByteArray(12, '\0'));
}

TEST_F(BinaryDump, OfOneDoubleColumnHas41BytesAndReadsBack)
{
  add(Talmesh::plot::makeColumn("Time", {1.0, 2.0}));
  const QByteArray bytes = dump();
  EXPECT_EQ(bytes.size(), 41);
  read(bytes);
  ASSERT_EQ(table()->GetNumberOfColumns(), 1);
  EXPECT_STREQ(table()->GetColumnName(0), "Time");
  EXPECT_NE(vtkDoubleArray::SafeDownCast(table()->GetColumn(0)), nullptr);
  EXPECT_EQ(valuesOf(table(), "Time"), (std::vector<double>{1.0, 2.0}));
}

TEST_F(BinaryDump, OfAnIntColumnReadsBackAsInts)
{
  add(arrayOf<vtkIntArray>("n", {-1, 0, 2147483647}));
  read(dump());
  EXPECT_NE(vtkIntArray::SafeDownCast(table()->GetColumnByName("n")), nullptr);
  EXPECT_EQ(valuesOf(table(), "n"), (std::vector<double>{-1, 0, 2147483647}));
}

TEST_F(BinaryDump, ReadsTheFrozenBytes)
{
  read(toBytes(frozenDump));
  EXPECT_EQ(items(), (std::vector<TypedConcentrationName>{{Talmesh::Pattern, "Ab"},
                                                          {Talmesh::Parameter, ""}}));
  ASSERT_EQ(table()->GetNumberOfColumns(), 4);
  ASSERT_EQ(table()->GetNumberOfRows(), 2);
  EXPECT_EQ(valuesOf(table(), "Time"), (std::vector<double>{1.0, -2.5}));
  EXPECT_NE(vtkDoubleArray::SafeDownCast(table()->GetColumn(0)), nullptr);
  EXPECT_EQ(valuesOf(table(), "n"), (std::vector<double>{7, -2}));
  EXPECT_NE(vtkIntArray::SafeDownCast(table()->GetColumn(1)), nullptr);
  EXPECT_STREQ(table()->GetColumnName(2), "\xB5");
  EXPECT_EQ(valuesOf(table()->GetColumn(2)),
            (std::vector<double>{std::numeric_limits<double>::infinity(),
                                 std::numeric_limits<double>::denorm_min()}));
  EXPECT_EQ(table()->GetColumnName(3), nullptr);
  EXPECT_EQ(valuesOf(table()->GetColumn(3)), (std::vector<double>{1, 0}));
}

TEST_F(BinaryDump, WritesTheFrozenBytes)
{
  items() = {{Talmesh::Pattern, "Ab"}, {Talmesh::Parameter, ""}};
  add(Talmesh::plot::makeColumn("Time", {1.0, -2.5}));
  add(arrayOf<vtkIntArray>("n", {7, -2}));
  add(Talmesh::plot::makeColumn("\xB5", {std::numeric_limits<double>::infinity(),
                                         std::numeric_limits<double>::denorm_min()}));
  add(arrayOf<vtkIntArray>(nullptr, {1, 0}));
  EXPECT_EQ(dump(), toBytes(frozenDump));
}

TEST_F(BinaryDump, ReplacesEarlierItemsAndColumns)
{
  const QByteArray empty(12, '\0');
  read(toBytes(frozenDump));
  read(toBytes(frozenDump));
  EXPECT_EQ(items().size(), 2U);
  EXPECT_EQ(table()->GetNumberOfColumns(), 4);
  vtkTable* before = table();
  read(empty);
  EXPECT_NE(table(), before);
  EXPECT_TRUE(items().empty());
  EXPECT_EQ(table()->GetNumberOfColumns(), 0);
}

TEST_F(BinaryDump, KeepsTheOrderOfItemsAndColumns)
{
  std::vector<TypedConcentrationName> many;
  for (int i = 0; i < 20; ++i)
  {
    many.emplace_back(static_cast<Talmesh::DataType>(i - 5), "item " + std::to_string(19 - i));
    add(Talmesh::plot::makeColumn("column " + std::to_string(19 - i), {double(i), NAN, -0.0}));
  }
  items() = many;
  read(dump());
  EXPECT_EQ(items(), many);
  ASSERT_EQ(table()->GetNumberOfColumns(), 20);
  for (int i = 0; i < 20; ++i)
  {
    EXPECT_EQ(table()->GetColumnName(i), "column " + std::to_string(19 - i));
    const std::vector<double> values = valuesOf(table()->GetColumn(i));
    EXPECT_EQ(values[0], i);
    EXPECT_TRUE(std::isnan(values[1]));
    EXPECT_TRUE(std::signbit(values[2]));
  }
}

TEST_F(BinaryDump, WritesOtherNumbersAsDoubles)
{
  add(arrayOf<vtkFloatArray>("float", {0.1F, -3.5}));
  add(arrayOf<vtkIdTypeArray>("id", {1099511627776.0, -7.0}));
  add(arrayOf<vtkUnsignedCharArray>("byte", {255, 0}));
  add(arrayOf<vtkBitArray>("bit", {1, 0}));
  read(dump());
  EXPECT_EQ(valuesOf(table(), "float"), (std::vector<double>{0.1F, -3.5}));
  EXPECT_EQ(valuesOf(table(), "id"), (std::vector<double>{1099511627776.0, -7.0}));
  EXPECT_EQ(valuesOf(table(), "byte"), (std::vector<double>{255, 0}));
  EXPECT_EQ(valuesOf(table(), "bit"), (std::vector<double>{1, 0}));
  for (int c = 0; c < 4; ++c)
    EXPECT_NE(vtkDoubleArray::SafeDownCast(table()->GetColumn(c)), nullptr) << c;
}

TEST_F(BinaryDump, LeavesOutTextColumnsAndSaysSo)
{
  add(Talmesh::plot::makeColumn("a", {1.0}));
  addStringColumn(table(), "comment");
  add(Talmesh::plot::makeColumn("b", {2.0}));
  CapturedOutput errors(std::cerr);
  const QByteArray bytes = dump();
  EXPECT_EQ(errors.text(), "QByteArray* PlotContainer::binaryDump(): column \"comment\" is not "
                           "numeric and is left out\n");
  read(bytes);
  EXPECT_EQ(container.getLabels(), (QStringList{"a", "b"}));
  EXPECT_EQ(valuesOf(table(), "b"), (std::vector<double>{2.0}));
}

TEST_F(BinaryDump, PadsColumnsThatAreTooShort)
{
  add(Talmesh::plot::makeColumn("a", {1.0, 2.0, 3.0}));
  // A table refuses such columns, but its row data do not.
  table()->GetRowData()->AddArray(Talmesh::plot::makeColumn("b", {4.0}));
  table()->GetRowData()->AddArray(arrayOf<vtkIntArray>("c", {5, 6}));
  table()->GetRowData()->AddArray(arrayOf<vtkFloatArray>("d", {}));
  read(dump());
  EXPECT_EQ(valuesOf(table(), "b"), (std::vector<double>{4, 0, 0}));
  EXPECT_EQ(valuesOf(table(), "c"), (std::vector<double>{5, 6, 0}));
  EXPECT_EQ(valuesOf(table(), "d"), (std::vector<double>{0, 0, 0}));
}

TEST_F(BinaryDump, WritesTheFirstStoredValuesOfVectors)
{
  vtkNew<vtkFloatArray> vectors;
  vectors->SetName("v");
  vectors->SetNumberOfComponents(2);
  for (const double value : {1.0, 2.0, 3.0})
    vectors->InsertNextTuple2(value, 10.0 * value);
  add(vectors);
  read(dump());
  EXPECT_EQ(valuesOf(table(), "v"), (std::vector<double>{1, 10, 2}));
}

TEST_F(BinaryDump, OfMoreThanAnArrayHoldsIsEmpty)
{
  vtkNew<vtkBitArray> bits;
  bits->SetName("bits");
  bits->SetNumberOfTuples(vtkIdType(1) << 28);
  add(bits);
  CapturedOutput errors(std::cerr);
  EXPECT_TRUE(dump().isEmpty());
  EXPECT_EQ(errors.text(), "QByteArray* PlotContainer::binaryDump(): the data exceed 2 GiB and are "
                           "not dumped\n");
}

TEST_F(BinaryDump, NamesBeyondLatin1BecomeQuestionMarks)
{
  QByteArray bytes = ints({0, 1, 0, 4}) + QByteArray::fromHex("03B10041") + QByteArray(1, '\1');
  read(bytes);
  EXPECT_STREQ(table()->GetColumnName(0), "?A");
}

TEST_F(BinaryDump, AnyFlagButZeroMeansDoubles)
{
  QByteArray bytes = ints({0, 1, 1}) + header('a', true) + QByteArray::fromHex("3FF0000000000000");
  bytes[12 + 6] = '\x80';
  read(bytes);
  EXPECT_EQ(valuesOf(table(), "a"), (std::vector<double>{1.0}));
}

TEST_F(BinaryDump, TheLastOfEqualNamesReplacesTheFirst)
{
  read(ints({0, 3, 1}) + header('a', false) + ints({1}) + header('b', false) + ints({2}) +
       header('a', false) + ints({3}));
  EXPECT_EQ(container.getLabels(), (QStringList{"a", "b"}));
  EXPECT_EQ(valuesOf(table(), "a"), (std::vector<double>{3}));
}

TEST_F(BinaryDump, ColumnNamesEndAtAZero)
{
  const QByteArray longer = ints({4}) + QByteArray("\0a\0\0", 4) + QByteArray(1, '\0');
  read(ints({0, 2, 1}) + header('a', false) + ints({1}) + longer + ints({2}));
  EXPECT_EQ(container.getLabels(), (QStringList{"a"}));
  EXPECT_EQ(valuesOf(table(), "a"), (std::vector<double>{2}));
}

TEST_F(BinaryDump, BytesBehindTheEndAreIgnored)
{
  read(toBytes(frozenDump) + "more");
  EXPECT_EQ(table()->GetNumberOfColumns(), 4);
}

TEST_F(BinaryDump, AStoredWindowIsRememberedForThePresentColumnsAndStyle)
{
  auto& settings = *container.getMetaData();
  settings.xColumns = {2, 7};
  settings.yColumns = {3};
  settings.setPlotStyle(reservedStyle2);
  auto& windows = container.state().coordinateWindows;
  read(QByteArray(12, '\0'));
  EXPECT_TRUE(windows.empty()) << "no window is stored";

  settings.storedCoordinateWindow = {1, 2, 3, 4, true};
  const ReducedMetaData key{2, 3, reservedStyle2};
  windows[key] = {9, 9, 9, 9, true};
  read(QByteArray(12, '\0'));
  ASSERT_EQ(windows.size(), 1U);
  EXPECT_EQ(windows[key].xMin, 1);
  EXPECT_EQ(windows[key].yMin, 2);
  EXPECT_EQ(windows[key].xMax, 3);
  EXPECT_EQ(windows[key].yMax, 4);
  EXPECT_TRUE(windows[key].valid);
}

TEST_F(BinaryDump, TheLastStepsRunForAnEmptyTableToo)
{
  container.state().selectionUpdatePending = true;
  container.getMetaData()->blockSignals(true);
  read(QByteArray());
  EXPECT_FALSE(container.state().selectionUpdatePending);
  EXPECT_TRUE(container.getMetaData()->signalsBlocked()) << "reading leaves the settings alone";
}

TEST_F(BinaryDump, ASelectionInTheLastColumnIsRestored)
{
  add(Talmesh::plot::makeColumn("a", {1.0, 2.0, 3.0}));
  add(arrayOf<vtkIntArray>("selected points", {0, 1, 1}));
  const QByteArray bytes = dump();
  PlotContainer restored(nullptr);
  QByteArray copy = bytes;
  restored.readDump(&copy);
  EXPECT_EQ(SampleRuns::selectedRows(restored), (std::set<vtkIdType>{1, 2}));
}

TEST_F(BinaryDump, NullIsIgnoredAndTheCallersBytesStay)
{
  read(toBytes(frozenDump));
  container.readDump(nullptr);
  EXPECT_EQ(items().size(), 2U);
  QByteArray bytes = toBytes(frozenDump);
  container.readDump(&bytes);
  EXPECT_EQ(bytes, toBytes(frozenDump));
}

TEST_F(BinaryDump, EmptyBytesGiveAnEmptyTable)
{
  CapturedOutput errors(std::cerr);
  read(toBytes(frozenDump));
  read(QByteArray());
  EXPECT_TRUE(items().empty());
  EXPECT_EQ(table()->GetNumberOfColumns(), 0);
  EXPECT_EQ(errors.text(), "");
}

TEST_F(BinaryDump, NegativeCountsAreZero)
{
  read(ints({-1, -5, -7}));
  EXPECT_TRUE(items().empty());
  EXPECT_EQ(table()->GetNumberOfColumns(), 0);
  read(ints({0, 1, -3}) + header('a', true));
  EXPECT_EQ(container.getLabels(), (QStringList{"a"}));
  EXPECT_EQ(table()->GetNumberOfRows(), 0);
}

TEST_F(BinaryDump, CutOffValuesReadAsZero)
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

TEST_F(BinaryDump, CountsAloneGiveColumnsOfZeros)
{
  read(ints({0, 1, 1}));
  ASSERT_EQ(table()->GetNumberOfColumns(), 1);
  EXPECT_EQ(valuesOf(table()->GetColumn(0)), (std::vector<double>{0}));
}

TEST_F(BinaryDump, AColumnWithoutItsFlagIsOneOfInts)
{
  read(ints({0, 1, 1, 2}) + QByteArray("\0a", 2));
  EXPECT_EQ(valuesOf(table(), "a"), (std::vector<double>{0}));
  EXPECT_NE(vtkIntArray::SafeDownCast(table()->GetColumn(0)), nullptr);
}

TEST_F(BinaryDump, NothingIsReadBehindADamagedName)
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

TEST_F(BinaryDump, ItemsAreMadeAsFarAsTheBytesCouldHoldThem)
{
  read(ints({2147483647, 1, 0, 2, 0}));
  EXPECT_EQ(items().size(), 2U);
  EXPECT_EQ(items()[1], (TypedConcentrationName{Talmesh::ComplexWithMolecule, ""}));
  EXPECT_EQ(table()->GetNumberOfColumns(), 0);
}

TEST_F(BinaryDump, ZerosAreMadeUpToTheSizeOfTheColumnsThatAreNamed)
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

TEST_F(BinaryDump, ZerosAreMadeUpTo256MiB)
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

TEST_F(BinaryDump, HugeCountsGiveAnEmptyTable)
{
  const qint32 most = 2147483647;
  for (const auto& [columns, rows] : {std::pair{most, most}, {most, 0}, {1, most}, {most, 1}})
  {
    CapturedOutput errors(std::cerr);
    container.state().selectionUpdatePending = true;
    read(ints({1, 3, 0, columns, rows}));
    EXPECT_EQ(table()->GetNumberOfColumns(), 0) << columns << ' ' << rows;
    EXPECT_EQ(items().size(), 1U);
    EXPECT_EQ(errors.text(), endsTooEarly);
    EXPECT_FALSE(container.state().selectionUpdatePending);
  }
}

TEST_F(BinaryDump, ManyColumnsTakeNoTimeToSpeakOf)
{
  // Names of their own, so that a search among all would show: 10^10 comparisons.
  const int count = 100000;
  QByteArray bytes = ints({0, count, 0});
  for (int i = 0; i < count; ++i)
  {
    bytes += ints({12});
    for (const char digit : QByteArray::number(100000 + i))
      bytes += QByteArray(1, '\0') + digit;
    bytes += '\0';
  }
  QElapsedTimer timer;
  timer.start();
  read(bytes);
  EXPECT_EQ(table()->GetNumberOfColumns(), count);
  EXPECT_LT(timer.elapsed(), 20000);
}

/// Every truncation and every kind of damage ends with a table whose columns agree, and can be
/// dumped again.
class DamagedDump : public BinaryDump
{
protected:
  DamagedDump()
  {
    items() = SampleRuns::items({});
    container.setPlotData(SampleRuns::table({}));
    add(arrayOf<vtkIntArray>("selected points", std::vector<double>(12, 1.0)));
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
