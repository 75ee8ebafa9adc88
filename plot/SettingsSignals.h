#ifndef SettingsSignals_h
#define SettingsSignals_h

namespace Talmesh::plot
{

struct PlotState;

/// Silences the settings, so that values written while drawing start no redraw.
void blockSettings(PlotState& state);

/// Lets the settings speak again, whatever they did before: not a restore.
void unblockSettings(PlotState& state);

/// Silences the settings while it lives, and lets them speak again however its scope is left.
class SettingsSilence
{
public:
  explicit SettingsSilence(PlotState& state);
  ~SettingsSilence();
  SettingsSilence(const SettingsSilence&) = delete;
  SettingsSilence& operator=(const SettingsSilence&) = delete;

private:
  PlotState& state;
};

} // namespace Talmesh::plot

#endif
