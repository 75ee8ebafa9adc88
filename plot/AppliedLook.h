#ifndef AppliedLook_h
#define AppliedLook_h

#include "plot/PlotLook.h"

#include <vtkSmartPointer.h>

#include <cstddef>

class vtkChart;
class vtkColorSeries;
class vtkPlot;
class vtkTextProperty;

/// What builders take from PlotOptions::look.
namespace Talmesh::plot
{

struct PlotState;

/// Text, colours and ticks of the chart that is shown, or of all charts of the page, if there is
/// one.
void dressInLook(PlotState& state);

/// The same of one chart.
void dressInLook(const PlotLook& look, vtkChart* chart);

/// Gives a text the font, the colour and the size that VTK writes it in by itself, in proportion to
/// the look's.
void dressText(const PlotLook& look, vtkTextProperty* text,
               int usualSize = PlotLook::usualTextSize);

/// The look's colours of several series; without any VTK's scheme WILD_FLOWER.
vtkSmartPointer<vtkColorSeries> seriesColors(const PlotLook& look);

/// The look's first colour of a series; without any `usual`.
PlotLook::Color firstSeriesColor(const PlotLook& look, const PlotLook::Color& usual);

void setColor(vtkPlot* plot, const PlotLook::Color& color);

} // namespace Talmesh::plot

#endif
