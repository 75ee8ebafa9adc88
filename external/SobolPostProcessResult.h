#ifndef SobolPostProcessResult_h
#define SobolPostProcessResult_h

#include "external/TypedConcentrationName.h"

#include <memory>
#include <string>
#include <vector>

/// The result of a variance-based sensitivity analysis.
struct SobolPostProcessResult
{
  /// Sensitivity indices, [output][time point][parameter]; estimates may fall below 0.
  using Indices = std::vector<std::vector<std::vector<double>>>;

  /// One entry per parameter; plots use only its length.
  std::vector<double> parameterValues;
  /// One name per parameter.
  std::vector<std::string> parameterNames;
  std::vector<Talmesh::TypedConcentrationName> outputs;
  /// Seconds.
  std::shared_ptr<std::vector<double>> timePoints;
  std::shared_ptr<Indices> firstOrder;
  std::shared_ptr<Indices> total;
};

#endif
