#include "plot/LineTableInput.h"

#include "external/ColumnNames.h"
#include "external/LinePlotTable.h"
#include "external/PlotMetaData.h"
#include "plot/BorrowedColumn.h"
#include "plot/ColumnList.h"
#include "plot/PlotState.h"
#include "plot/PlotTable.h"
#include "plot/TableColumns.h"
#include "plot/TypedColumns.h"

#include <limits>

namespace Talmesh::plot
{

namespace
{

/// Rows of the value arrays; 0 for a shape that no memory could hold.
vtkIdType rowCount(const LinePlotTable& lines)
{
  constexpr std::size_t mostRows = std::numeric_limits<int>::max();
  const std::size_t points = lines.pointsPerTrajectory;
  if (points == 0 || points > mostRows || lines.numberOfTrajectories > mostRows)
    return 0;
  return static_cast<vtkIdType>(lines.numberOfTrajectories * points);
}

std::string itemName(const PlotState& state, int index)
{
  const bool valid = index >= 0 && index < static_cast<int>(state.columnItems.size());
  return valid ? state.columnItems[static_cast<std::size_t>(index)].second : "";
}

} // namespace

void fillFromLinePlotTable(PlotState& state, const boost::shared_ptr<LinePlotTable>& lines)
{
  ColumnList columns;
  state.columnItems.clear();
  std::size_t parameter = 0;
  for (std::size_t i = 0; i < lines->items.size() && i < lines->values.size(); ++i)
  {
    const Talmesh::TypedConcentrationName& item = lines->items[i];
    if (item.first == Talmesh::Parameter && parameter < lines->parameterRanges.size())
    {
      const auto& range = lines->parameterRanges[parameter++];
      if (range.first == range.second)
        continue;
      state.parameterBounds.push_back(range);
    }
    const std::string label = Talmesh::selectionPairToString(item);
    columns.add(label, borrowColumn(label, lines->values[i], rowCount(*lines), lines));
    state.columnItems.push_back(item);
  }
  replaceTable(state, columns.makeTable());
  findParameterColumns(state);
}

void chooseLineTableColumns(PlotState& state)
{
  PlotMetaData& settings = *state.metaData;
  const std::vector<int>& parameters = settings.parameterColumns;
  const int time = timeItem(state.columnItems);
  int x = time;
  if (time < 0)
    x = parameters.empty() ? static_cast<int>(state.columnItems.size()) - 1
                           : parameters.front() - timeBeforeParameters;
  setFirst(settings.xColumns, x);
  setFirst(settings.yColumns, 0);
  setFirst(settings.zColumns, 1);
  settings.colorColumn = parameters.empty() ? x : parameters.front();
  settings.xLabel = itemName(state, x);
  settings.yLabel = itemName(state, 0);
}

void addLinePlotTable(PlotState& state, const LinePlotTable& lines)
{
  ColumnList columns;
  state.columnItems.clear();
  for (std::size_t i = 0; i < lines.values.size() && i < lines.items.size(); ++i)
  {
    const std::string label = Talmesh::selectionPairToString(lines.items[i]);
    columns.add(label, borrowColumn(label, lines.values[i], rowCount(lines)));
  }
  state.derivedTables.push_back(columns.makeTable());
}

} // namespace Talmesh::plot
