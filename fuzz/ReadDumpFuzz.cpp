#include "plot/PlotContainer.h"

#include <vtkAbstractArray.h>
#include <vtkTable.h>

#include <QByteArray>

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <memory>

namespace
{

/// Larger tables, which only zeros can fill, would take the time of a thousand small ones.
constexpr vtkIdType mostValues = 1000000;

void require(bool condition)
{
  if (!condition)
    std::abort();
}

void checkTable(vtkTable* table)
{
  for (vtkIdType column = 0; column < table->GetNumberOfColumns(); ++column)
    require(table->GetColumn(column)->GetNumberOfTuples() == table->GetNumberOfRows());
}

/// What was read can be written, and reads back as the same.
void checkRoundTrip(PlotContainer& container)
{
  const std::unique_ptr<QByteArray> first(container.binaryDump());
  container.readDump(first.get());
  const std::unique_ptr<QByteArray> second(container.binaryDump());
  require(*first == *second);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  // Making the charts takes much longer than reading.
  static PlotContainer container(nullptr);
  std::cerr.rdbuf(nullptr);
  std::cout.rdbuf(nullptr);

  QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
  container.readDump(&bytes);
  vtkTable* table = container.getTable();
  checkTable(table);
  if (table->GetNumberOfRows() * table->GetNumberOfColumns() <= mostValues)
    checkRoundTrip(container);
  return 0;
}
