#include "vtk/RowCopies.h"

#include "stats/ParallelParts.h"
#include "vtk/KeptMemory.h"

#include <vtkDataArray.h>
#include <vtkDataSetAttributes.h>
#include <vtkIdTypeArray.h>
#include <vtkTable.h>
#include <vtkVariant.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <optional>

namespace Talmesh
{
namespace
{
void appendMissingCell(vtkAbstractArray* column)
{
  const int type = column->GetDataType();
  const bool hasNaN = type == VTK_DOUBLE || type == VTK_FLOAT;
  const double missing = hasNaN ? std::numeric_limits<double>::quiet_NaN() : 0.0;
  const vtkIdType row = column->GetNumberOfTuples();
  const int components = column->GetNumberOfComponents();
  auto* numbers = vtkArrayDownCast<vtkDataArray>(column);
  for (int component = 0; component < components; ++component)
  {
    if (numbers)
      numbers->InsertComponent(row, component, missing);
    else
      column->InsertVariantValue(row * components + component, vtkVariant());
  }
}

std::vector<RowBlock> blocksOf(const std::vector<vtkIdType>& rows)
{
  std::vector<RowBlock> blocks;
  for (const vtkIdType row : rows)
    addRow(blocks, row);
  return blocks;
}

/// A column whose rows lie in memory one after another, `rowBytes` bytes each.
struct PlainCopy
{
  const char* from;
  char* to;
  std::size_t rowBytes;
};

/// Makes room for the rows behind those of `to`. Nothing when a column is not plain memory or lacks
/// one of the rows.
std::optional<PlainCopy> plainCopy(vtkAbstractArray* from, vtkAbstractArray* to, vtkIdType count,
                                   vtkIdType lastRow)
{
  auto* source = vtkArrayDownCast<vtkDataArray>(from);
  auto* target = vtkArrayDownCast<vtkDataArray>(to);
  const bool plain = source && target && source->HasStandardMemoryLayout() &&
                     target->HasStandardMemoryLayout() && source->GetDataType() != VTK_BIT &&
                     target->GetDataType() == source->GetDataType() &&
                     target->GetNumberOfComponents() == source->GetNumberOfComponents();
  if (!plain || lastRow >= source->GetNumberOfTuples())
    return {};
  const auto rowBytes = static_cast<std::size_t>(source->GetNumberOfComponents()) *
                        static_cast<std::size_t>(source->GetDataTypeSize());
  const vtkIdType before = target->GetNumberOfTuples();
  if (before == 0)
    giveRoom(target, count);
  else
  {
    target->Resize(before + count);
    target->SetNumberOfTuples(before + count);
  }
  return PlainCopy{static_cast<const char*>(source->GetVoidPointer(0)),
                   static_cast<char*>(target->GetVoidPointer(0)) +
                       static_cast<std::size_t>(before) * rowBytes,
                   rowBytes};
}

void copyBlocks(const PlainCopy& copy, const std::vector<RowBlock>& blocks)
{
  char* to = copy.to;
  for (const RowBlock& block : blocks)
  {
    const std::size_t bytes = static_cast<std::size_t>(block.count) * copy.rowBytes;
    std::memcpy(to, copy.from + static_cast<std::size_t>(block.first) * copy.rowBytes, bytes);
    to += bytes;
  }
}
void appendRow(vtkAbstractArray* from, vtkIdType row, vtkAbstractArray* to)
{
  // VTK copies tuples unchecked, and the columns of a table may differ in length.
  if (row < from->GetNumberOfTuples())
    to->InsertNextTuple(row, from);
  else
    appendMissingCell(to);
}
} // namespace

void addRow(std::vector<RowBlock>& blocks, vtkIdType row)
{
  if (!blocks.empty() && blocks.back().first + blocks.back().count == row)
    ++blocks.back().count;
  else
    blocks.push_back({row, 1});
}

std::vector<vtkIdType> rowsOf(const std::vector<RowBlock>& blocks)
{
  std::vector<vtkIdType> rows;
  for (const RowBlock& block : blocks)
    for (vtkIdType row = block.first; row < block.first + block.count; ++row)
      rows.push_back(row);
  return rows;
}

void copyColumnStructure(vtkTable* source, vtkTable* target)
{
  target->GetRowData()->CopyStructure(source->GetRowData());
}

void appendRows(vtkTable* source, const std::vector<vtkIdType>& rows, vtkTable* target)
{
  appendRows(source, blocksOf(rows), target);
}

void appendRows(vtkTable* source, const std::vector<RowBlock>& blocks, vtkTable* target)
{
  vtkIdType count = 0;
  vtkIdType lastRow = -1;
  for (const RowBlock& block : blocks)
  {
    count += block.count;
    lastRow = std::max(lastRow, block.first + block.count - 1);
  }
  if (count == 0)
    return;
  std::vector<PlainCopy> copies;
  for (vtkIdType c = 0; c < source->GetNumberOfColumns(); ++c)
  {
    vtkAbstractArray* from = source->GetColumn(c);
    vtkAbstractArray* to = target->GetColumn(c);
    if (const auto copy = plainCopy(from, to, count, lastRow))
    {
      copies.push_back(*copy);
      continue;
    }
    for (const RowBlock& block : blocks)
      for (vtkIdType row = block.first; row < block.first + block.count; ++row)
        appendRow(from, row, to);
  }
  stats::inParallelParts(copies.size(), 1,
                         [&](std::size_t first, std::size_t last)
                         {
                           for (std::size_t i = first; i < last; ++i)
                             copyBlocks(copies[i], blocks);
                         });
}

vtkSmartPointer<vtkIdTypeArray> makeIdColumn(const char* name, const std::vector<vtkIdType>& values)
{
  auto column = vtkSmartPointer<vtkIdTypeArray>::New();
  column->SetName(name);
  column->SetNumberOfValues(static_cast<vtkIdType>(values.size()));
  std::copy(values.begin(), values.end(), column->GetPointer(0));
  return column;
}
} // namespace Talmesh
