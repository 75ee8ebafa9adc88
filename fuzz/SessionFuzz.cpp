#include "app/session/DumpedTable.h"
#include "app/session/SessionSettings.h"
#include "plot/SelectionFlags.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <set>

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

void checkColumns(vtkTable* table, vtkIdType rows)
{
  for (vtkIdType column = 0; column < table->GetNumberOfColumns(); ++column)
  {
    const char* name = table->GetColumnName(column);
    require(!name || !Talmesh::plot::isSelectionMark(name));
    require(table->GetColumn(column)->GetNumberOfTuples() == rows);
  }
}

vtkIdType rowsOf(const Study& study)
{
  if (study.table)
    return study.table->GetNumberOfRows();
  return static_cast<vtkIdType>(study.runs->numberOfTrajectories * study.runs->pointsPerTrajectory);
}

void checkRuns(const LinePlotTable& runs)
{
  require(runs.numberOfTrajectories > 0 && runs.pointsPerTrajectory > 0);
  require(runs.items.size() == runs.values.size() && !runs.items.empty());
  std::set<std::string> names;
  std::size_t parameters = 0;
  for (const Talmesh::TypedConcentrationName& item : runs.items)
  {
    require(names.insert(Talmesh::selectionPairToString(item)).second);
    parameters += item.first == Talmesh::Parameter ? 1 : 0;
  }
  require(runs.parameterRanges.size() == parameters);
  // Reads every value, so that a column too short is noticed.
  double sum = 0.0;
  for (const double* values : runs.values)
    for (std::size_t row = 0; row < runs.numberOfTrajectories * runs.pointsPerTrajectory; ++row)
      sum += values[row];
  volatile double kept = sum;
  static_cast<void>(kept);
}

int columnsOf(const DumpedTable& table)
{
  const std::size_t items = table.study.runs ? table.study.runs->items.size() : 0;
  vtkTable* rest = table.study.runs ? table.further : table.study.table;
  return static_cast<int>(items) + static_cast<int>(rest->GetNumberOfColumns());
}

/// @return the columns; -1 when there is no table
int checkTable(const Result<DumpedTable>& read)
{
  require(!read.isCancelled() && isOneLine(read.error()));
  if (!read.hasValue())
    return -1;
  const DumpedTable& table = read.value();
  require((table.study.runs != nullptr) != (table.study.table != nullptr));
  const vtkIdType rows = rowsOf(table.study);
  require(rows > 0);
  if (table.study.runs)
    checkRuns(*table.study.runs);
  if (table.study.table)
    checkColumns(table.study.table, rows);
  if (table.further && table.further->GetNumberOfColumns() > 0)
    checkColumns(table.further, rows);
  require(!table.selected || table.selected->GetNumberOfTuples() == rows);
  require(columnsOf(table) <= mostSessionColumns);
  return columnsOf(table);
}

void checkLists(const PlotMetaData& plot)
{
  for (const std::vector<int>* list :
       {&plot.xColumns, &plot.yColumns, &plot.zColumns, &plot.parameterColumns})
  {
    const std::set<int> different(list->begin(), list->end());
    require(different.size() == list->size());
  }
}

/// What was read can be written, and reads back as the same.
void checkSettings(const QByteArray& text, int columns)
{
  const Result<SessionSettings> read = readSettings(text, columns);
  require(isOneLine(read.error()));
  if (!read.hasValue())
    return;
  checkLists(*read.value().plot);
  require(read.value().parameterRanges.size() <= static_cast<std::size_t>(columns));
  const QByteArray written =
      settingsText(readSettings(settingsText(read.value()), columns).value());
  require(settingsText(readSettings(written, columns).value()) == written);
}

} // namespace

/// Qt 5 loses the first of two arrays or objects that an object holds under one key.
extern "C" const char* __lsan_default_suppressions()
{
  return "leak:libQt5Core";
}

/// The settings end at the first zero, with which the dump begins.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  std::cerr.rdbuf(nullptr);
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
  const int split = bytes.contains('\0') ? bytes.indexOf('\0') : bytes.size();
  const QByteArray text = bytes.left(split);
  const Result<SessionSettings> read = readSettings(text, mostSessionColumns);
  const SessionSettings settings = read.hasValue() ? read.value() : SessionSettings();
  const Result<DumpedTable> table =
      readStudyDump(bytes.mid(split), settings.pointsPerRun, settings.parameterRanges);
  checkSettings(text, std::max(0, checkTable(table)));
  return 0;
}
