#ifndef Titles_h
#define Titles_h

#include <string>

namespace Talmesh::plot
{

struct PlotState;

/// Stores the title in the settings and shows it on the XY chart, when there is one.
void setPlotTitle(PlotState& state, const std::string& title);

/// Stores the x label in the settings and shows it on the XY chart's bottom axis.
void setXLabel(PlotState& state, const std::string& label);

/// Stores the y label in the settings and shows it on the XY chart's left axis.
void setYLabel(PlotState& state, const std::string& label);

} // namespace Talmesh::plot

#endif
