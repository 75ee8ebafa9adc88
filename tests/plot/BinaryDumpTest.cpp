#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
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

#include <cmath>
#include <limits>

#include "BinaryDumpFixture.h"

using namespace DumpBytes;
using SampleRuns::valuesOf;
using Talmesh::TypedConcentrationName;

namespace
{

class BinaryDump : public BinaryDumpFixture
{
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
  add(makeColumn<vtkIntArray>("n", {-1, 0, 2147483647}));
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
  add(makeColumn<vtkIntArray>("n", {7, -2}));
  add(Talmesh::plot::makeColumn("\xB5", {std::numeric_limits<double>::infinity(),
                                         std::numeric_limits<double>::denorm_min()}));
  add(makeColumn<vtkIntArray>(nullptr, {1, 0}));
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
  add(makeColumn<vtkFloatArray>("float", {0.1F, -3.5}));
  add(makeColumn<vtkIdTypeArray>("id", {1099511627776.0, -7.0}));
  add(makeColumn<vtkUnsignedCharArray>("byte", {255, 0}));
  add(makeColumn<vtkBitArray>("bit", {1, 0}));
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
  table()->GetRowData()->AddArray(makeColumn<vtkIntArray>("c", {5, 6}));
  table()->GetRowData()->AddArray(makeColumn<vtkFloatArray>("d", {}));
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

TEST_F(BinaryDump, AStoredWindowIsRememberedForThePresentColumnsAndStyle)
{
  auto& settings = *container.getMetaData();
  settings.xColumns = {2, 7};
  settings.yColumns = {3};
  settings.setPlotStyle(reservedStyle2);
  auto& windows = stateOf(container).coordinateWindows;
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
  stateOf(container).selectionUpdatePending = true;
  container.getMetaData()->blockSignals(true);
  read(QByteArray());
  EXPECT_FALSE(stateOf(container).selectionUpdatePending);
  EXPECT_TRUE(container.getMetaData()->signalsBlocked()) << "reading leaves the settings alone";
}

TEST_F(BinaryDump, ASelectionInTheLastColumnIsRestored)
{
  add(Talmesh::plot::makeColumn("a", {1.0, 2.0, 3.0}));
  add(makeColumn<vtkIntArray>("selected points", {0, 1, 1}));
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

} // namespace
