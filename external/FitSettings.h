#ifndef FitSettings_h
#define FitSettings_h

#include "../export/TalmeshPlotExport.h"
#include "../external/TypedConcentrationName.h"

#include <vector>

/// What was fitted and how. The outer index of the nested vectors is the fitted output.
class TALMESHPLOT_EXPORT FitSettings
{
public:
  /// dataKind() of time-course data.
  static constexpr int timeCourse = 1;

  FitSettings() = default;
  FitSettings(const FitSettings&) = default;
  FitSettings& operator=(const FitSettings&) = default;
  virtual ~FitSettings() = default;

  /// The kind of the fitted data: timeCourse here; subclasses for other data return another value.
  virtual int dataKind() const { return timeCourse; }

  /// Measured values, [output][observation].
  std::vector<std::vector<double>> observations;
  /// Measurement errors in the units and shape of observations.
  std::vector<std::vector<double>> errors;
  /// The fitted outputs.
  std::vector<Talmesh::TypedConcentrationName> outputs;
  /// The scale of the observations is itself fitted (see FitRun::parameters).
  bool globalScaleFitted = false;
  /// Factor of the observations where it is not fitted.
  double globalScale = 1.0;
  /// Predictions are divided by their own value at referenceIndex.
  bool normalizeToReference = false;
  /// Observation index, 0-based.
  int referenceIndex = 0;
  /// Predictions are standardised; takes precedence over normalizeToReference.
  bool standardize = false;
};

#endif
