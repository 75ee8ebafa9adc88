#include "plot/SettingsSignals.h"

#include "external/PlotMetaData.h"
#include "plot/PlotState.h"

namespace Talmesh::plot
{

void blockSettings(PlotState& state)
{
  state.metaData->blockSignals(true);
}

void unblockSettings(PlotState& state)
{
  state.metaData->blockSignals(false);
}

} // namespace Talmesh::plot
