#ifndef StudyCharts_h
#define StudyCharts_h

#include <cstddef>

class PlotContainer;
struct SobolPostProcessResult;

/// The charts of the computed studies. Each function fills a container, which is in a scene, with
/// the data and draws; called again it draws the same again. None renders.
namespace Talmesh::app
{

struct NamedDistribution;

/// Every step of the indomethacin fit, one chart per pair of parameters.
void drawIndomethacinFit(PlotContainer& container);

/// The measured concentrations under the fitted decay.
void drawIndomethacinCourse(PlotContainer& container, bool logarithmic);

/// Residuals of all subjects, or, `sideBySide`, predictions and observations.
void drawIndomethacinResiduals(PlotContainer& container, bool scaled, bool sideBySide);

/// Mean initial rates with their standard errors and the fitted curve.
void drawPuromycinRates(PlotContainer& container);

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
void drawSensitivity(PlotContainer& container, SobolPostProcessResult& result,
                     const SensitivityView& view);

/// The density of a parameter, with its name.
void drawPrior(PlotContainer& container, const NamedDistribution& prior);

} // namespace Talmesh::app

#endif
