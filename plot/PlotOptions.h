#ifndef PlotOptions_h
#define PlotOptions_h

#include "../plot/PlotLook.h"

/// What a program can have otherwise than a container does by itself. Changes take effect with the
/// next redraw or computation; a copied container has those of its original.
struct PlotOptions
{
  /// The scatter-plot matrix keeps the pair in its large chart through redraws with the same
  /// columns. Otherwise each redraw with limited columns makes it the first x and y column.
  bool keepsScatterPair = false;
  /// Lines of runs end at missing values, see vtkPlotLineSet::SetBreakAtGaps. Otherwise they lead
  /// on into the next run.
  bool breaksLinesAtGaps = false;
  /// The columns in which rows are marked for the selection of the moment are columns like others
  /// where a style shows all of them.
  bool showsSelectionMarks = true;
  /// The left button moves the axes of parallel coordinates, see
  /// vtkSelectableParallelCoordinates. Otherwise it does nothing there.
  bool movesParallelAxes = false;
  /// Remarks on computed tables go to standard output: the sizes of a clustering, and parameters
  /// with fewer values than others. A program that shows its results otherwise switches them off.
  bool showsDiagnostics = true;
  /// Text, colours and ticks of all charts. Those of the chart that is shown change at once but for
  /// the colours of what is drawn.
  PlotLook look;
};

#endif
