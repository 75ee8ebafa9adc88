#ifndef AxisWindows_h
#define AxisWindows_h

#include "export/ViewerExport.h"
#include "external/CoordinateWindow.h"
#include "external/ReducedMetaData.h"

#include <vector>

class vtkAxis;

namespace Talmesh::plot
{

struct PlotState;

/// Part of the x range that stays empty beyond either end of the data.
constexpr double rangePadding = 0.05;

/// Whether the axes of a remembered window were logarithmic. The limits of such an axis are
/// recorded as decimal logarithms.
struct WindowScales
{
  bool xLog = false;
  bool yLog = false;
};

/// The key of the configuration now plotted: first x column, first y column, plot style.
TALMESHPLOT_VIEWER_EXPORT ReducedMetaData currentKey(const PlotState& state);

/// The window remembered for the configuration now plotted; null when there is none or when it is
/// not finite.
TALMESHPLOT_VIEWER_EXPORT const CoordinateWindow* rememberedWindow(const PlotState& state);

/// Makes `axis` show [minimum, maximum] in units of the data. Its behaviour, its limits and whether
/// it is to be logarithmic stay; it is not logarithmic while its range holds 0.
void setDataRange(vtkAxis* axis, double minimum, double maximum);

/// Fixes `axis` to [minimum, maximum] in units of the data. An axis that is to be logarithmic is
/// not while its range holds 0. Limits that are not finite leave it as it is, because VTK does not
/// finish painting an infinite axis.
TALMESHPLOT_VIEWER_EXPORT void fixRange(vtkAxis* axis, double minimum, double maximum);

/// Fixes the bottom axis to the remembered window, on a logarithmic scale if `logarithmic`.
void restoreBottomAxis(const PlotState& state, vtkAxis* axis, const CoordinateWindow& window,
                       bool logarithmic);

/// Fixes the left axis to the remembered window on the scale that it has.
void restoreLeftAxis(const PlotState& state, vtkAxis* axis, const CoordinateWindow& window);

/// Remembers, with the scales of the axes, the window that `bottom` and `left` show for the
/// configuration now plotted.
void rememberWindow(PlotState& state, vtkAxis* bottom, vtkAxis* left);

/// Forgets the windows, in every style, of configurations with one of `columns` as first x or y
/// column: for columns whose values have changed.
TALMESHPLOT_VIEWER_EXPORT void forgetWindows(PlotState& state, const std::vector<int>& columns);

} // namespace Talmesh::plot

#endif
