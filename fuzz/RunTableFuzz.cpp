#include "app/import/RunTableImport.h"

#include <vtkAbstractArray.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace
{

using namespace Talmesh::app;

void require(bool condition)
{
  if (!condition)
    std::abort();
}

bool isOneLine(const std::string& text)
{
  return text.find_first_of("\r\n") == std::string::npos;
}

void checkRuns(const LinePlotTable& runs, std::size_t bytes)
{
  require(runs.numberOfTrajectories > 0 && runs.pointsPerTrajectory > 0);
  require(runs.items.size() == runs.values.size() && !runs.items.empty());
  const std::size_t rows = runs.numberOfTrajectories * runs.pointsPerTrajectory;
  // Common times of runs whose times differ take more rows.
  constexpr std::size_t alwaysRows = 2000000;
  require(rows <= std::max(4 * bytes, alwaysRows));
  // Reads every value, so that a column too short is noticed.
  double sum = 0.0;
  for (const double* values : runs.values)
    for (std::size_t row = 0; row < rows; ++row)
      sum += values[row];
  volatile double kept = sum;
  static_cast<void>(kept);
}

void checkTable(vtkTable* table)
{
  require(table->GetNumberOfColumns() > 0 && table->GetNumberOfRows() > 0);
  for (vtkIdType column = 0; column < table->GetNumberOfColumns(); ++column)
  {
    require(table->GetColumn(column)->GetNumberOfTuples() == table->GetNumberOfRows());
    require(table->GetColumnName(column) != nullptr);
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const Result<ImportedTable> read = importRunTable(text);
  require(!read.isCancelled() && isOneLine(read.error()));
  if (!read.hasValue())
    return 0;
  const ImportedTable& imported = read.value();
  require((imported.runs != nullptr) != (imported.table != nullptr));
  for (const std::string& note : imported.notes)
    require(isOneLine(note));
  if (imported.runs)
    checkRuns(*imported.runs, size);
  if (imported.table)
    checkTable(imported.table);
  return 0;
}
