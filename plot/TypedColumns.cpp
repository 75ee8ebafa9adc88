#include "plot/TypedColumns.h"

#include "external/PlotMetaData.h"
#include "plot/PlotState.h"

namespace Talmesh::plot
{

void findParameterColumns(PlotState& state)
{
  std::vector<int>& parameters = state.metaData->parameterColumns;
  state.metaData->rankedDataCurrent = false;
  parameters.clear();
  for (std::size_t i = 0; i < state.columnItems.size(); ++i)
  {
    if (state.columnItems[i].first == Talmesh::Parameter)
      parameters.push_back(static_cast<int>(i));
  }
}

} // namespace Talmesh::plot
