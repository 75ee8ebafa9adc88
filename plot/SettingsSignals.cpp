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

SettingsSilence::SettingsSilence(PlotState& silenced)
    : state(silenced)
{
  blockSettings(state);
}

SettingsSilence::~SettingsSilence()
{
  unblockSettings(state);
}

} // namespace Talmesh::plot
