#include "plot/PlotTable.h"

#include "external/PlotMetaData.h"
#include "plot/PlotState.h"

#include <utility>

namespace Talmesh::plot
{

void replaceTable(PlotState& state, vtkSmartPointer<vtkTable> table)
{
  state.table = std::move(table);
  tableChanged(state);
}

void tableChanged(PlotState& state)
{
  state.metaData->rankedDataCurrent = false;
}

} // namespace Talmesh::plot
