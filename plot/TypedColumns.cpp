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

std::string parameterLabel(const PlotState& state, std::size_t parameter)
{
  // A negative index becomes one beyond every list.
  const auto index = static_cast<std::size_t>(state.metaData->parameterColumns[parameter]);
  return index < state.columnItems.size() ? Talmesh::selectionPairToString(state.columnItems[index])
                                          : "";
}

} // namespace Talmesh::plot
