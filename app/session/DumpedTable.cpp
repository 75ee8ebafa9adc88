#include "app/session/DumpedTable.h"

#include "app/import/TranslatedText.h"
#include "external/PlotMetaData.h"
#include "plot/BinaryDump.h"
#include "plot/ColumnList.h"
#include "plot/PlotState.h"
#include "plot/SelectionFlags.h"
#include "plot/TableColumns.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>
#include <limits>
#include <unordered_map>

namespace Talmesh::app
{

namespace
{

/// The part of the progress that making the columns takes.
constexpr double dumpPart = 0.5;

std::string damaged()
{
  return translated("SessionFile", "the session's table is damaged");
}

std::pair<double, double> rangeOf(const double* values, vtkIdType rows)
{
  constexpr double infinity = std::numeric_limits<double>::infinity();
  std::pair<double, double> range(infinity, -infinity);
  for (vtkIdType row = 0; row < rows; ++row)
    if (std::isfinite(values[row]))
    {
      range.first = std::min(range.first, values[row]);
      range.second = std::max(range.second, values[row]);
    }
  return range.first <= range.second ? range : std::pair<double, double>(0.0, 0.0);
}

/// The columns of a table that was read, which can be taken out of it one by one.
class ReadColumns
{
public:
  explicit ReadColumns(vtkTable* table)
  {
    columns.reserve(static_cast<std::size_t>(table->GetNumberOfColumns()));
    for (int i = 0; i < table->GetNumberOfColumns(); ++i)
    {
      const std::string name = plot::columnName(table, i);
      if (!name.empty())
        positions.emplace(name, columns.size());
      columns.emplace_back(vtkDataArray::SafeDownCast(table->GetColumn(i)));
    }
    // Each column goes when its values have been copied.
    table->Initialize();
  }

  std::size_t size() const { return columns.size(); }

  /// Null when there is none or it was taken before.
  vtkSmartPointer<vtkDataArray> take(const std::string& name)
  {
    const auto found = positions.find(name);
    if (found == positions.end())
      return nullptr;
    const vtkSmartPointer<vtkDataArray> taken = columns[found->second];
    columns[found->second] = nullptr;
    positions.erase(found);
    return taken;
  }

  /// A table of those that are left, without marks.
  vtkSmartPointer<vtkTable> rest() const
  {
    plot::ColumnList left;
    for (const vtkSmartPointer<vtkDataArray>& column : columns)
    {
      plot::ColumnList::Name name;
      if (column && column->GetName())
        name = column->GetName();
      if (!column || (name && plot::isSelectionMark(*name)))
        continue;
      left.add(name, column);
    }
    return left.makeTable();
  }

private:
  std::vector<vtkSmartPointer<vtkDataArray>> columns;
  std::unordered_map<std::string, std::size_t> positions;
};

/// Moves the items' columns into the study's runs, each once, so that no file can ask for more
/// memory than it has columns.
class RunTaker
{
public:
  RunTaker(const std::vector<TypedConcentrationName>& items_, ReadColumns& columns_,
           const std::vector<std::pair<double, double>>& ranges_)
      : items(items_)
      , columns(columns_)
      , ranges(ranges_)
  {
  }

  /// @return null when the columns are not those of the items, and when it is cancelled
  boost::shared_ptr<LinePlotTable> take(vtkIdType rows, int pointsPerRun,
                                        const ImportProgress& progress)
  {
    if (rows < 1 || rows % pointsPerRun != 0 || items.empty())
      return nullptr;
    runs->pointsPerTrajectory = static_cast<std::size_t>(pointsPerRun);
    runs->numberOfTrajectories = static_cast<std::size_t>(rows / pointsPerRun);
    for (const TypedConcentrationName& item : items)
    {
      stopped = progress && !progress(partOfTheRuns());
      if (stopped || !takeItem(item, rows))
        return nullptr;
    }
    return runs;
  }

  bool cancelled() const { return stopped; }

private:
  double partOfTheRuns() const
  {
    return dumpPart + (1.0 - dumpPart) * static_cast<double>(runs->items.size()) /
                          static_cast<double>(items.size());
  }

  bool takeItem(const TypedConcentrationName& item, vtkIdType rows)
  {
    const vtkSmartPointer<vtkDataArray> taken = columns.take(selectionPairToString(item));
    auto* column = vtkDoubleArray::SafeDownCast(taken);
    if (!column || column->GetNumberOfValues() != rows)
      return false;
    runs->items.push_back(item);
    runs->values.push_back(new double[static_cast<std::size_t>(rows)]);
    std::copy_n(column->GetPointer(0), rows, runs->values.back());
    if (item.first != Parameter)
      return true;
    const std::size_t parameter = runs->parameterRanges.size();
    runs->parameterRanges.push_back(parameter < ranges.size() ? ranges[parameter]
                                                              : rangeOf(runs->values.back(), rows));
    return true;
  }

  const std::vector<TypedConcentrationName>& items;
  ReadColumns& columns;
  const std::vector<std::pair<double, double>>& ranges;
  boost::shared_ptr<LinePlotTable> runs = boost::make_shared<LinePlotTable>();
  bool stopped = false;
};

/// @return why not; empty if it may
std::string objectionTo(const ReadColumns& columns)
{
  if (columns.size() <= static_cast<std::size_t>(mostSessionColumns))
    return {};
  return withValues(translated("TableText", "the table has %1 columns; at most %2 can be read"),
                    {std::to_string(columns.size()), std::to_string(mostSessionColumns)});
}

} // namespace

Result<DumpedTable> readStudyDump(const QByteArray& dump, int pointsPerRun,
                                  const std::vector<std::pair<double, double>>& ranges,
                                  const ImportProgress& progress)
{
  using Read = Result<DumpedTable>;
  PlotMetaData settings;
  plot::PlotState read;
  read.metaData = &settings;
  // A file has every value that was saved: zeros in their place would look like data.
  plot::readDump(read, dump, 0.0);
  if (progress && !progress(dumpPart))
    return Read::cancelled();
  const vtkIdType rows = read.table->GetNumberOfRows();
  ReadColumns columns(read.table);
  const std::string refused = objectionTo(columns);
  if (!refused.empty())
    return Read::failed(refused);
  DumpedTable table;
  table.selected = vtkIntArray::SafeDownCast(columns.take(plot::selectionFlagColumn));
  bool complete = false;
  if (pointsPerRun > 0)
  {
    RunTaker taker(read.columnItems, columns, ranges);
    table.study.runs = taker.take(rows, pointsPerRun, progress);
    if (taker.cancelled())
      return Read::cancelled();
    table.further = columns.rest();
    complete = table.study.runs != nullptr;
  }
  else
  {
    table.study.table = columns.rest();
    complete = rows > 0 && table.study.table->GetNumberOfColumns() > 0;
  }
  return complete ? Read(table) : Read::failed(damaged());
}

} // namespace Talmesh::app
