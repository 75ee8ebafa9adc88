#ifndef Residuals_h
#define Residuals_h

#include <vtkSmartPointer.h>

#include <vector>

class FitSettings;
class vtkTable;
struct FitRun;

namespace Talmesh::plot
{

struct PlotState;

/// Predictions in the units of the observations, [output][observation].
using Predictions = std::vector<std::vector<double>>;

/// What a residual plot shows.
struct ResidualOptions
{
  /// Divide residuals by the errors of the observations.
  bool scaled = false;
  /// Predictions and observations instead of residuals.
  bool sideBySide = false;
};

/// The factor of the observations: 1 for standardised data, otherwise the fitted global scale when
/// it is fitted and known, otherwise the settings' scale.
double observationScale(const FitRun& run, const FitSettings& settings);

/// Standardises the predictions, or divides every row by its own value at the reference index, as
/// the settings say. A reference outside a row leaves that row alone; a zero there makes the row
/// infinite or NaN.
void normalizePredictions(const FitSettings& settings, Predictions& predictions);

/// The single-precision table of a residual plot: "Time" for time courses, then per output either
/// "Residual ..." or "Prediction ..." and "Observation ...". A residual is scale * observation -
/// prediction. Values that are missing, or that a shorter column lacks, are NaN; predictions beyond
/// the last observation of their output are left out.
vtkSmartPointer<vtkTable> residualTable(const FitRun& run, const FitSettings& settings,
                                        const Predictions& predictions, ResidualOptions options);

/// Plots the plot table, which is one of residualTable, on the XY chart and titles it. The settings
/// get square markers of 3 pixels, which reach the plots that setMarkerStyle and setPointSize
/// reach: the first one, be it points or a line.
/// @param outputs number of series, or of pairs of series side by side
/// @param timeCourse the table begins with "Time", which is x; otherwise the row index is
void drawResiduals(PlotState& state, std::size_t outputs, bool timeCourse, ResidualOptions options);

} // namespace Talmesh::plot

#endif
