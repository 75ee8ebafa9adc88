#include "ImportedChecks.h"

#include <vtkAbstractArray.h>

#include <cstdlib>

using namespace Talmesh::app;

namespace
{

bool isOneLine(const std::string& text)
{
  return text.find_first_of("\r\n") == std::string::npos;
}

void checkRuns(const LinePlotTable& runs)
{
  require(runs.numberOfTrajectories > 0 && runs.pointsPerTrajectory > 0);
  require(runs.items.size() == runs.values.size() && !runs.items.empty());
  const std::size_t rows = runs.numberOfTrajectories * runs.pointsPerTrajectory;
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

template <typename Table>
void check(const Table& table, const std::vector<std::string>& notes)
{
  require((table.runs != nullptr) != (table.table != nullptr));
  for (const std::string& note : notes)
    require(isOneLine(note));
  if (table.runs)
    checkRuns(*table.runs);
  if (table.table)
    checkTable(table.table);
}

} // namespace

void require(bool condition)
{
  if (!condition)
    std::abort();
}

void checkImported(const Result<ImportedTable>& read)
{
  require(!read.isCancelled() && isOneLine(read.error()));
  if (read.hasValue())
    check(read.value(), read.value().notes);
}

void checkOpened(const Result<OpenedStudy>& opened)
{
  require(!opened.isCancelled() && isOneLine(opened.error()));
  if (opened.hasValue() && !opened.value().session)
    check(opened.value().study, opened.value().notes);
}

void checkReport(const ImportReport& report)
{
  for (const std::vector<std::string>* lines : {&report.warnings, &report.reasons})
    for (const std::string& line : *lines)
      require(isOneLine(line));
  require(!jsonOf(report).empty());
}
