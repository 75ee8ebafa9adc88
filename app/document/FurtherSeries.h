#ifndef FurtherSeries_h
#define FurtherSeries_h

class PlotContainer;

namespace Talmesh::app
{

/// Completes the XY chart of a drawing that is about to end: a redraw plots the first y column
/// only. Adds one plot of the same kind for every further y column, each in a colour of its own,
/// and names all of them in the legend without their kind. Without a remembered window the left
/// axis fits all of them. Does nothing where the container shows no XY chart.
void addFurtherSeries(PlotContainer& container);

} // namespace Talmesh::app

#endif
