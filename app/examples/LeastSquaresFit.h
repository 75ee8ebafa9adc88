#ifndef LeastSquaresFit_h
#define LeastSquaresFit_h

#include <functional>
#include <vector>

namespace Talmesh::app
{

/// One recorded state of a fit.
struct FitStep
{
  double sumOfSquares = 0.0;
  std::vector<double> parameters;
};

/// Observation minus prediction, one per observation, for the given parameters.
using Residuals = std::function<std::vector<double>(const std::vector<double>& parameters)>;

/// Minimises the sum of the squared residuals by Levenberg and Marquardt's method with numerical
/// derivatives.
/// @param start one value per parameter
/// @return the start and every step until the method converges, the best parameters last
/// @throws std::invalid_argument when there are fewer residuals than parameters
std::vector<FitStep> fitLeastSquares(const Residuals& residuals, const std::vector<double>& start);

} // namespace Talmesh::app

#endif
