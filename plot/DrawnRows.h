#ifndef DrawnRows_h
#define DrawnRows_h

class vtkAnnotationLink;
class vtkSelection;
class vtkTable;

namespace Talmesh::plot
{

struct PlotState;

/// What a chart draws of which each row can be selected: the plot table, or a summary of it.
struct DrawnRows
{
  vtkTable* table;
  /// The selection of its rows.
  vtkAnnotationLink* link;
  /// Its columns; -1 for none.
  int x;
  int y;
  int z;
};

/// Whether the present style draws the summary that a client has set.
bool drawsSummary(const PlotState& state);

/// What the present style draws, where it draws rows as points or as lines across axes.
DrawnRows drawnRows(const PlotState& state);

/// Makes the container's selection that of the rows of the summary, without announcing it: a row is
/// selected if any that it stands for is. To be called when a chart is about to draw it.
void showSelectionInSummary(PlotState& state);

/// Makes all rows that the selected rows of the summary stand for the container's selection, unless
/// they are so already.
void adoptSummarySelection(PlotState& state, vtkSelection* selection);

} // namespace Talmesh::plot

#endif
