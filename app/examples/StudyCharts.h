#ifndef StudyCharts_h
#define StudyCharts_h

#include "app/document/OwnChart.h"

#include <cstddef>
#include <memory>

struct SobolPostProcessResult;

/// The charts of the computed studies.
namespace Talmesh::app
{

struct NamedDistribution;

/// Every step of the indomethacin fit, one chart per pair of parameters.
ChartSteps indomethacinFit();

/// The measured concentrations under the fitted decay.
ChartSteps indomethacinCourse(bool logarithmic);

/// Residuals of all subjects, or, `sideBySide`, predictions and observations.
ChartSteps indomethacinResidualChart(bool scaled, bool sideBySide);

/// Mean initial rates with their standard errors and the fitted curve.
ChartSteps puromycinRateChart();

/// Which part of sensitivity indices is shown.
struct SensitivityView
{
  /// Bars of all outputs at one time rather than bands of one output over time.
  bool atTimePoint = false;
  /// Total indices rather than first-order ones.
  bool total = false;
  /// The time point or the output.
  std::size_t position = 0;
};

/// @param result only read
ChartSteps sensitivityChart(std::shared_ptr<SobolPostProcessResult> result,
                            const SensitivityView& view);

/// The density of a parameter, with its name.
ChartSteps priorDensity(const NamedDistribution& prior);

} // namespace Talmesh::app

#endif
