#ifndef BinaryDumpFixture_h
#define BinaryDumpFixture_h

#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/ArrayColumns.h"
#include "support/CapturedOutput.h"
#include "support/SampleRuns.h"
#include "support/SampleTables.h"

#include <gtest/gtest.h>

#include <QByteArray>

#include <memory>
#include <string>
#include <vector>

namespace DumpBytes
{

inline const std::string endsTooEarly =
    "void PlotContainer::readDump(QByteArray*): the data end too early or name too many columns, "
    "the table stays empty\n";

/// Two items, a double column, an int column, a column whose name is Latin-1 and an unnamed one;
/// two rows. Written by hand from the format, byte by byte.
inline const std::vector<unsigned char> frozenDump = {
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

inline QByteArray toBytes(const std::vector<unsigned char>& values)
{
  return {reinterpret_cast<const char*>(values.data()), static_cast<int>(values.size())};
}

/// The bytes of int32 values in big-endian order.
inline QByteArray ints(const std::vector<qint32>& values)
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
inline QByteArray header(char name, bool isDouble)
{
  return ints({2}) + QByteArray(1, '\0') + name + QByteArray(1, isDouble ? '\1' : '\0');
}

} // namespace DumpBytes

/// A container with what a test of dumps does to it.
class BinaryDumpFixture : public ::testing::Test
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
  std::vector<Talmesh::TypedConcentrationName>& items() { return stateOf(container).columnItems; }

  PlotContainer container{nullptr};
};

#endif
