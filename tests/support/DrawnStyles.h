#ifndef DrawnStyles_h
#define DrawnStyles_h

#include "external/PlotStyles.h"

/// The plot styles that draw a table of runs, without those that wait for sensitivities.
constexpr plotStyles drawnStyles[] = {xyPlot,
                                      scatterPlotMatrix,
                                      xyzPlot,
                                      multiPlot,
                                      selectionCdfPlot,
                                      scatterWithErrorBars,
                                      fitParameterDistribution,
                                      parallelCoordinates};

#endif
