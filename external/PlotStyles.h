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
  scatterPlotMatrix,
  /// Points in a 3-D chart.
  xyzPlot,
  /// A matrix of charts, one per plotted item.
  multiPlot,
  /// Parameter distributions of the selected runs against the remaining runs.
  selectionCdfPlot,
  scatterWithErrorBars,
  /// Pairwise scatter of the parameters that a fit went through.
  fitParameterDistribution,
  parallelCoordinates
};

#endif
