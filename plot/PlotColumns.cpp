#include "plot/PlotColumns.h"

#include "external/PlotMetaData.h"
#include "plot/PlotState.h"
#include "plot/PlotTable.h"
#include "plot/TableColumns.h"

namespace Talmesh::plot
{

namespace
{

/// Longer lists of plotted columns come from a wrong index, not from a person.
constexpr int longestColumnList = 1 << 16;

void put(std::vector<int>& columns, int column, std::size_t position)
{
  if (position < columns.size())
    columns[position] = column;
  else
    columns.resize(position + 1, column);
}

} // namespace

bool setPlotColumns(PlotState& state, int x, int y, int index)
{
  if (x < 0 || y < 0 || index < 0 || index >= longestColumnList)
    return false;
  put(state.metaData->xColumns, x, static_cast<std::size_t>(index));
  put(state.metaData->yColumns, y, static_cast<std::size_t>(index));
  return true;
}

void addColumn(PlotState& state, const std::vector<double>& values, const std::string& name)
{
  const bool fits = state.table->GetNumberOfColumns() == 0 ||
                    static_cast<vtkIdType>(values.size()) == state.table->GetNumberOfRows();
  if (!fits)
    return;
  state.table->AddColumn(makeColumn(name, values));
  tableChanged(state);
}

} // namespace Talmesh::plot
