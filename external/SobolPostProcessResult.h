#ifndef SobolPostProcessResult_h
#define SobolPostProcessResult_h

#include "../external/TypedConcentrationName.h"

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
  /// The analysed outputs, the outer index of the indices.
  std::vector<Talmesh::TypedConcentrationName> outputs;
  /// In seconds, the middle index of the indices; shared with whoever made the result, may be null.
  std::shared_ptr<std::vector<double>> timePoints;
  /// The share of the variance that each parameter explains alone; may be null.
  std::shared_ptr<Indices> firstOrder;
  /// The share that each parameter takes part in; may be null.
  std::shared_ptr<Indices> total;
};

#endif
