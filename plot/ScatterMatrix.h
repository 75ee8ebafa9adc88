#ifndef ScatterMatrix_h
#define ScatterMatrix_h

class vtkContextScene;
class vtkTable;

namespace Talmesh::plot
{

struct PlotState;

/// Style 3: every column against every other. When the settings limit the columns, only the first x
/// column, the first y column and the parameter columns, with (x, y) as the active plot. A matrix
/// that is shown already, with the same columns, keeps its active plot if its columns are not
/// limited or the state says so. Columns that are not
/// numeric, have no name or no finite range are left out.
void drawScatterMatrix(PlotState& state, vtkContextScene* scene);

/// Lets the matrix, if it is the chart now shown, go on showing what it shows from `copy`: it looks
/// its columns up in its input whenever another pair is chosen. To be called while the plot table
/// still has all columns of `copy`.
void feedScatterMatrixFrom(PlotState& state, vtkTable* copy);

/// Has the matrix, if it is the chart now shown, show the present values of columns that it has
/// copies of or needs some of, see withoutInfinities(). To be called when values have changed in
/// place.
void renewMatrixCopies(PlotState& state);

} // namespace Talmesh::plot

#endif
