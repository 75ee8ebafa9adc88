#ifndef PlottedRows_h
#define PlottedRows_h

class vtkAnnotationLink;
class vtkPlot;

namespace Talmesh
{

/// Makes the selection that a chart has just handed to `plot` name only rows of the plot's
/// table; a plot whose columns have others is not shown (vtk/LostColumns.h). A selection in the
/// link that is more than one list of row numbers (values, everything but some rows, several lists)
/// becomes the rows of the plot's table that it names. A plot without input, and lists for single
/// plots, stay as they are.
void showRowsOfPlot(vtkPlot* plot, vtkAnnotationLink* link);

} // namespace Talmesh

#endif
