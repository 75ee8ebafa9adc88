#ifndef StyleTable_h
#define StyleTable_h

#include "external/PlotStyles.h"

#include <vector>

class vtkContextScene;

namespace Talmesh::plot
{

struct PlotState;

/// Everything in which one plot style differs from another. A function that is null does nothing.
struct StyleRow
{
  plotStyles style;
  /// Builds the chart into `scene`; never null.
  void (*build)(PlotState& state, vtkContextScene* scene);
  /// Gives the chart that is shown margins and gutters that have changed. Other styles take them
  /// when they are drawn.
  void (*applyBorders)(PlotState& state) = nullptr;
  /// Gives the settings' point size, in pixels, to the markers that it is meant for.
  void (*resizeMarkers)(PlotState& state, double size) = nullptr;
  /// Gives the settings' line width, in pixels, to lines that are shown already.
  void (*widenLines)(PlotState& state, double width) = nullptr;
  /// Adds the sensitivity indices of the table, `total` or first-order ones, to the XY chart.
  void (*addSobolIndices)(PlotState& state, bool total) = nullptr;
  /// An XY chart is shown, alone or as the main one of a page: one whose left axis can be
  /// logarithmic and which can have a legend.
  bool showsXYChart = false;
  /// Rows of the table are drawn, so a drawing cuts the selection to it.
  bool drawsRows = true;
  /// A summary that a client has set is drawn in place of the table; on a page of several charts in
  /// the one with the chosen columns.
  bool drawsSummaries = false;
  /// New data are ranked as soon as they arrive.
  bool ranksNewData = false;
  /// The runs selected are those that the last split accepted, not all with a selected row.
  bool selectsAcceptedRuns = false;
};

/// A row per plot style, in the order of their numbers.
const std::vector<StyleRow>& styleTable();

/// The row of `style`; values that name no chart have one that draws like the reserved styles.
const StyleRow& styleRow(plotStyles style);

/// The row of the style that the settings ask for.
const StyleRow& currentStyle(const PlotState& state);

} // namespace Talmesh::plot

#endif
