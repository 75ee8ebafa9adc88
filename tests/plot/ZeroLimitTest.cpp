#include "external/PlotMetaData.h"
#include "plot/BinaryDump.h"
#include "plot/PlotState.h"
#include "support/CapturedOutput.h"

#include <gtest/gtest.h>

#include <iostream>

namespace
{

/// The rows of a table of one int column, of `rows` rows of which none is present.
vtkIdType rowsRead(quint8 rows, double zeroBytes)
{
  QByteArray bytes = QByteArray::fromHex("000000000000000100000000"
                                         "00000002"
                                         "0061"
                                         "00");
  bytes[11] = static_cast<char>(rows);
  PlotMetaData settings;
  Talmesh::plot::PlotState state;
  state.metaData = &settings;
  Talmesh::plot::readDump(state, bytes, zeroBytes);
  return state.table->GetNumberOfRows();
}

} // namespace

TEST(ZeroLimit, CountsTheBytesOfTheMissingValues)
{
  const CapturedOutput errors(std::cerr);
  EXPECT_EQ(rowsRead(10, 40.0), 10);
  EXPECT_EQ(rowsRead(11, 40.0), 0);
}
