#include "app/SessionTable.h"

#include "app/TranslatedText.h"
#include "external/PlotMetaData.h"
#include "plot/BinaryDump.h"
#include "plot/BorrowedColumn.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "plot/SelectionFlags.h"
#include "plot/TableColumns.h"
#include "vtk/SelectionColumns.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Talmesh::app
{

namespace
{

/// Columns in which the library marks rows for the selection of the moment.
bool isMarker(const std::string& name)
{
  return name == plot::selectionFlagColumn || name == ComplementSelectionColumn ||
         name == ReducedSelectionColumn || name == RemainderSelectionColumn ||
         name == OriginalRowIdsColumn;
}

/// Adds the columns of the study's items. The container's table has those that it shows; the others
/// come from the study.
void addItems(plot::PlotState& dumped, const Study& study, vtkTable* shown)
{
  const LinePlotTable& runs = *study.runs;
  const auto rows = static_cast<vtkIdType>(runs.numberOfTrajectories * runs.pointsPerTrajectory);
  for (std::size_t i = 0; i < runs.items.size() && i < runs.values.size(); ++i)
  {
    const std::string label = selectionPairToString(runs.items[i]);
    vtkSmartPointer<vtkAbstractArray> column = plot::columnNamed(shown, label);
    if (!column)
      column = plot::borrowColumn(label, runs.values[i], rows, study.runs);
    dumped.table->AddColumn(column);
    dumped.columnItems.push_back(runs.items[i]);
  }
}

void addFurtherColumns(vtkTable* dumped, vtkTable* shown)
{
  for (int i = 0; i < shown->GetNumberOfColumns(); ++i)
  {
    const std::string name = plot::columnName(shown, i);
    if (!name.empty() && !isMarker(name) && plot::columnIndex(dumped, name) < 0)
      dumped->AddColumn(shown->GetColumn(i));
  }
}

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

/// Moves the items' columns out of the table that was read, each once, so that no file can ask for
/// more memory than it has columns.
/// @return null when the columns are not those of the items
boost::shared_ptr<LinePlotTable> takeRuns(const plot::PlotState& read, int pointsPerRun,
                                          const std::vector<std::pair<double, double>>& ranges)
{
  const vtkIdType rows = read.table->GetNumberOfRows();
  if (rows < 1 || rows % pointsPerRun != 0 || read.columnItems.empty())
    return nullptr;
  auto runs = boost::make_shared<LinePlotTable>();
  runs->pointsPerTrajectory = static_cast<std::size_t>(pointsPerRun);
  runs->numberOfTrajectories = static_cast<std::size_t>(rows / pointsPerRun);
  for (const TypedConcentrationName& item : read.columnItems)
  {
    const std::string label = selectionPairToString(item);
    auto* column = vtkDoubleArray::SafeDownCast(plot::columnNamed(read.table, label));
    if (!column || column->GetNumberOfValues() != rows)
      return nullptr;
    runs->items.push_back(item);
    runs->values.push_back(new double[static_cast<std::size_t>(rows)]);
    std::copy_n(column->GetPointer(0), rows, runs->values.back());
    read.table->RemoveColumnByName(label.c_str());
    if (item.first != Parameter)
      continue;
    const std::size_t parameter = runs->parameterRanges.size();
    runs->parameterRanges.push_back(parameter < ranges.size() ? ranges[parameter]
                                                              : rangeOf(runs->values.back(), rows));
  }
  return runs;
}

} // namespace

QByteArray dumpStudy(const Study& study, PlotContainer& container, vtkTable* shown)
{
  plot::PlotState dumped;
  dumped.table = vtkSmartPointer<vtkTable>::New();
  if (study.runs)
    addItems(dumped, study, shown);
  addFurtherColumns(dumped.table, shown);
  if (const auto flags = plot::selectionFlags(container.state()))
    plot::replaceFlagColumn(dumped.table, flags);
  return plot::writeDump(dumped);
}

int columnInDump(vtkTable* shown, int column)
{
  if (column >= shown->GetNumberOfColumns() || isMarker(plot::columnName(shown, column)))
    return -1;
  int place = column;
  for (int before = 0; before < column; ++before)
    place -= isMarker(plot::columnName(shown, before)) ? 1 : 0;
  return place;
}

DumpedTable readStudyDump(const QByteArray& dump, int pointsPerRun,
                          const std::vector<std::pair<double, double>>& ranges)
{
  PlotMetaData settings;
  plot::PlotState read;
  read.metaData = &settings;
  plot::readDump(read, dump);
  DumpedTable result;
  vtkTable* table = read.table;
  if (auto* flags = vtkIntArray::SafeDownCast(plot::columnNamed(table, plot::selectionFlagColumn)))
  {
    result.selected = flags;
    table->RemoveColumnByName(plot::selectionFlagColumn);
  }
  if (pointsPerRun > 0)
  {
    result.study.runs = takeRuns(read, pointsPerRun, ranges);
    result.further = table;
  }
  else
    result.study.table = table;
  if (pointsPerRun > 0 ? !result.study.runs
                       : table->GetNumberOfColumns() == 0 || table->GetNumberOfRows() == 0)
    result.error = damaged();
  return result;
}

} // namespace Talmesh::app
