#ifndef FitParameterPage_h
#define FitParameterPage_h

class vtkContextScene;

namespace Talmesh::plot
{

struct PlotState;

/// Shows the course of a parameter fit as a triangle of charts, one row of the plot table per
/// recorded step: below the diagonal a scatter chart for every pair of parameter columns, on the
/// diagonal every parameter over the iteration number in column 1.
///
/// With P parameters, cell (i, j), column i and row j from the bottom, shows parameter i on x and
/// parameter P - 1 - j on y. Points are coloured by column 0, from blue over dark to red, on a
/// logarithmic scale when all of it is positive; a column 0 that is not a double column with a
/// finite range switches colouring off. Parameters are titled by their column names without the
/// type word, "Parameter: "; a position outside the table gives a chart without points and title.
/// The page becomes one of the scene's items, beside those that are there, so that it is painted
/// also where no widget replaces them. `scene` may be null.
/// @throws std::out_of_range for a parameter column with a name shorter than 11 characters; nothing
///   has changed then
void drawFitParameterPage(PlotState& state, vtkContextScene* scene);

} // namespace Talmesh::plot

#endif
