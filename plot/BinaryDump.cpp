#include "plot/BinaryDump.h"

#include "external/PlotMetaData.h"
#include "plot/AxisWindows.h"
#include "plot/ColumnList.h"
#include "plot/DumpStream.h"
#include "plot/PlotState.h"
#include "plot/PlotTable.h"
#include "plot/Quartiles.h"
#include "plot/SelectionFlags.h"
#include "plot/TableColumns.h"

#include <QIODevice>

#include <algorithm>
#include <iostream>
#include <limits>

namespace Talmesh::plot
{

namespace
{

/// A QByteArray counts with int and has a header.
constexpr qint64 largestDump = std::numeric_limits<int>::max() - 64;

constexpr qint64 intSize = 4;
constexpr qint64 doubleSize = 8;
constexpr qint64 smallestItem = 2 * intSize;
constexpr qint64 smallestHeader = intSize + 1;
/// A column of no rows in memory, which takes as little as `smallestHeader` in a dump.
constexpr qint64 columnMemory = 512;
constexpr qint64 mostMemoryPerByte = 16;

QString latin1(const std::string& text)
{
  return QString::fromLatin1(text.data(), static_cast<int>(text.size()));
}

QString dumpedName(vtkDataArray* column)
{
  return QString::fromLatin1(column->GetName());
}

std::vector<vtkDataArray*> dumpedColumns(vtkTable* table)
{
  std::vector<vtkDataArray*> columns;
  for (int i = 0; i < table->GetNumberOfColumns(); ++i)
  {
    if (auto* column = vtkDataArray::SafeDownCast(columnAt(table, i)))
      columns.push_back(column);
    else
      std::cerr << "QByteArray* PlotContainer::binaryDump(): column \"" << columnName(table, i)
                << "\" is not numeric and is left out" << std::endl;
  }
  return columns;
}

/// Bytes that the columns take, or more than `largestDump`.
qint64 columnsSize(const std::vector<vtkDataArray*>& columns, vtkIdType rows)
{
  qint64 size = 0;
  for (vtkDataArray* column : columns)
  {
    if (rows > largestDump || size > largestDump)
      return largestDump + 1;
    const qint64 width = vtkIntArray::SafeDownCast(column) ? intSize : doubleSize;
    size += smallestHeader + 2 * qint64(dumpedName(column).size()) + rows * width;
  }
  return size;
}

qint64 itemsSize(const std::vector<TypedConcentrationName>& items)
{
  qint64 size = 0;
  for (const TypedConcentrationName& item : items)
    size += smallestItem + 2 * static_cast<qint64>(item.second.size());
  return size;
}

double storedValue(vtkDataArray* column, vtkIdType position)
{
  const int components = column->GetNumberOfComponents();
  return column->GetComponent(position / components, static_cast<int>(position % components));
}

void writeColumn(QDataStream& out, vtkDataArray* column, vtkIdType rows)
{
  auto* ints = vtkIntArray::SafeDownCast(column);
  const vtkIdType stored = std::min(column->GetNumberOfValues(), rows);
  out << dumpedName(column) << (ints == nullptr);
  for (vtkIdType i = 0; i < stored; ++i)
  {
    if (ints)
      out << qint32(ints->GetValue(i));
    else
      out << storedValue(column, i);
  }
  for (vtkIdType i = stored; i < rows; ++i)
  {
    if (ints)
      out << qint32(0);
    else
      out << 0.0;
  }
}

void writeFields(QDataStream& out, const PlotState& state,
                 const std::vector<vtkDataArray*>& columns)
{
  out << static_cast<qint32>(state.columnItems.size());
  for (const auto& [kind, name] : state.columnItems)
    out << qint32(kind) << latin1(name);
  const vtkIdType rows = state.table->GetNumberOfRows();
  out << static_cast<qint32>(columns.size()) << static_cast<qint32>(rows);
  for (vtkDataArray* column : columns)
    writeColumn(out, column, rows);
}

/// VTK's names end at the first zero.
ColumnList::Name columnName(const QString& name)
{
  return name.isNull() ? ColumnList::Name() : name.toLatin1().constData();
}

void readItems(DumpStream& in, std::vector<TypedConcentrationName>& items)
{
  const qint64 stated = in.readCount();
  const qint64 count = std::min(stated, in.remaining() / smallestItem);
  items.clear();
  items.reserve(static_cast<std::size_t>(count));
  for (qint64 i = 0; i < count; ++i)
  {
    const auto kind = static_cast<DataType>(in.readInt());
    items.emplace_back(kind, in.readName().toLatin1().toStdString());
  }
  // What is left is the beginning of an item, not the counts of the table.
  if (stated > count)
    in.fail();
}

template <typename Array, typename Read>
vtkSmartPointer<vtkDataArray> readValues(const DumpStream& in, vtkIdType rows, Read read)
{
  auto column = vtkSmartPointer<Array>::New();
  column->SetNumberOfValues(rows);
  auto* values = column->GetPointer(0);
  vtkIdType present = 0;
  for (; present < rows && !in.failed(); ++present)
    values[present] = read();
  std::fill(values + present, values + rows, 0);
  return column;
}

/// Reads the columns of one dump and keeps count of what they cost.
class ColumnReader
{
public:
  ColumnReader(DumpStream& source, qint64 dumpSize, double zeroLimit)
      : in(source)
      , size(dumpSize)
      , zeroBytes(zeroLimit)
      , count(in.readCount())
      , rows(in.readCount())
  {
  }

  /// Null when the dump calls for too many columns or zeros.
  vtkSmartPointer<vtkTable> readTable()
  {
    if (count * columnMemory > std::max(mostColumnBytes, mostMemoryPerByte * size))
      return nullptr;
    ColumnList columns;
    for (qint32 left = count; left > 0; --left)
    {
      const QString name = in.readName();
      const bool isDouble = in.readFlag();
      const qint64 valuesSize = rows * (isDouble ? doubleSize : intSize);
      if (endsHere(valuesSize) && !mayFill(valuesSize, left))
        return nullptr;
      presentSize += smallestHeader + valuesSize;
      columns.add(columnName(name), isDouble ? readDoubles() : readInts());
    }
    return columns.makeTable();
  }

private:
  /// Whether the bytes end in the column whose header was just read, for the first time.
  bool endsHere(qint64 valuesSize)
  {
    if (ended || (!in.failed() && valuesSize <= in.remaining()))
      return false;
    ended = true;
    return true;
  }

  /// Whether this column, of which some values or the header are missing, and all behind it may be
  /// filled with zeros. Those behind it may take as much as the dump, or as the columns that it
  /// names would. Products of two counts exceed 64 bits.
  bool mayFill(qint64 valuesSize, qint32 left) const
  {
    const bool present = !in.failed();
    const double absent = present ? left - 1 : left;
    const qint64 named = present ? presentSize + smallestHeader + valuesSize : presentSize;
    const double absentBytes = absent * static_cast<double>(rows * intSize);
    const double missingBytes = present ? static_cast<double>(valuesSize - in.remaining()) : 0.0;
    return absentBytes + absent * smallestHeader <= static_cast<double>(std::max(named, size)) &&
           absentBytes + missingBytes <= zeroBytes;
  }

  vtkSmartPointer<vtkDataArray> readDoubles()
  {
    return readValues<vtkDoubleArray>(in, rows, [this] { return in.readDouble(); });
  }

  vtkSmartPointer<vtkDataArray> readInts()
  {
    return readValues<vtkIntArray>(in, rows, [this] { return in.readInt(); });
  }

  DumpStream& in;
  qint64 size;
  double zeroBytes;
  qint32 count;
  qint64 rows;
  qint64 presentSize = 0;
  bool ended = false;
};

} // namespace

QByteArray writeDump(const PlotState& state)
{
  QByteArray bytes;
  const std::vector<vtkDataArray*> columns = dumpedColumns(state.table);
  const qint64 size = 3 * intSize + itemsSize(state.columnItems) +
                      columnsSize(columns, state.table->GetNumberOfRows());
  if (size > largestDump)
  {
    std::cerr << "QByteArray* PlotContainer::binaryDump(): the data exceed 2 GiB and are not dumped"
              << std::endl;
    return bytes;
  }
  bytes.reserve(static_cast<int>(size));
  QDataStream out(&bytes, QIODevice::WriteOnly);
  setDumpEncoding(out);
  writeFields(out, state, columns);
  return bytes;
}

void readDump(PlotState& state, const QByteArray& bytes, double zeroBytes)
{
  DumpStream in(bytes);
  readItems(in, state.columnItems);
  const vtkSmartPointer<vtkTable> table = ColumnReader(in, bytes.size(), zeroBytes).readTable();
  replaceTable(state, table ? table : vtkSmartPointer<vtkTable>::New());
  if (table)
    return;
  std::cerr << "void PlotContainer::readDump(QByteArray*): the data end too early or name too many "
               "columns, the table stays empty"
            << std::endl;
}

void restoreDump(PlotState& state, const QByteArray& bytes, double zeroBytes)
{
  readDump(state, bytes, zeroBytes);
  selectFlaggedRows(state);
  const CoordinateWindow& stored = state.metaData->storedCoordinateWindow;
  if (stored.valid)
  {
    // Its scales are not known.
    state.windowScales.erase(currentKey(state));
    state.coordinateWindows[currentKey(state)] = stored;
  }
  generateQuartiles(state);
  state.selectionUpdatePending = false;
}

} // namespace Talmesh::plot
