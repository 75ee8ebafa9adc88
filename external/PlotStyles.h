#ifndef PlotStyles_h
#define PlotStyles_h

/// The kinds of plot. Any int is a legal value; values above parallelCoordinates are drawn like
/// reservedStyle1.
enum plotStyles : int
{
  /// Points or, with PlotMetaData::getPlotLine(), one line per run in an XY chart.
  xyPlot = 0,
  /// The bar chart of sensitivities; without sensitivities only the title "Not yet implemented".
  reservedStyle1,
  /// The stacked chart of sensitivities; without sensitivities only the title "Not yet
  /// implemented".
  reservedStyle2,
  /// Every column against every other.
  scatterPlotMatrix,
  /// Points in a 3-D chart.
  xyzPlot,
  /// A triangle of scatter charts, one per pair of parameters, beside the main chart.
  multiPlot,
  /// Parameter distributions of the selected runs against the remaining runs.
  selectionCdfPlot,
  /// Points with vertical error bars, and a second series as a line.
  scatterWithErrorBars,
  /// Pairwise scatter of the parameters that a fit went through.
  fitParameterDistribution,
  /// One axis per column, one line per row.
  parallelCoordinates
};

#endif
