#include "plot/DumpStream.h"

#include "plot/BinaryDump.h"
#include "plot/PlotState.h"
#include "plot/TableColumns.h"

#include <vtkIntArray.h>
#include <vtkNew.h>

#include <gtest/gtest.h>

#include <QBuffer>

using namespace Talmesh::plot;

namespace
{

/// Two items, and columns of both kinds, one without a name.
QByteArray sampleDump()
{
  PlotState state;
  state.table = vtkSmartPointer<vtkTable>::New();
  state.columnItems = {{Talmesh::Molecule, "A"}, {Talmesh::Parameter, "rate"}};
  state.table->AddColumn(makeColumn("A", {1.0, 2.0, 3.0}));
  vtkNew<vtkIntArray> flags;
  flags->SetNumberOfValues(3);
  flags->FillValue(1);
  state.table->AddColumn(flags);
  return writeDump(state);
}

bool isWhole(QByteArray bytes)
{
  QBuffer buffer(&bytes);
  EXPECT_TRUE(buffer.open(QIODevice::ReadOnly));
  return isWholeDump(buffer, bytes.size());
}

} // namespace

TEST(DumpStream, IsThatOfWhatIsDumped)
{
  EXPECT_TRUE(isWhole(sampleDump()));
  PlotState empty;
  empty.table = vtkSmartPointer<vtkTable>::New();
  EXPECT_TRUE(isWhole(writeDump(empty)));
}

TEST(DumpStream, EndsWithTheLastColumn)
{
  const QByteArray whole = sampleDump();
  for (int size = 0; size < whole.size(); ++size)
    EXPECT_FALSE(isWhole(whole.left(size))) << size;
  EXPECT_FALSE(isWhole(whole + '\0'));
}

TEST(DumpStream, BeginsWhereTheDeviceIs)
{
  QByteArray bytes = "head" + sampleDump() + "tail";
  QBuffer buffer(&bytes);
  ASSERT_TRUE(buffer.open(QIODevice::ReadOnly));
  buffer.seek(4);
  EXPECT_TRUE(isWholeDump(buffer, bytes.size() - 8));
  buffer.seek(4);
  EXPECT_FALSE(isWholeDump(buffer, bytes.size() - 4));
}

TEST(DumpStream, IsNotThatOfZerosOrOfCountsWithoutBytes)
{
  EXPECT_TRUE(isWhole(QByteArray(12, '\0')));
  EXPECT_FALSE(isWhole(QByteArray(1000, '\0')));
  EXPECT_FALSE(isWhole(QByteArray(1000, '\x7F')));
}
