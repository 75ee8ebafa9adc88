#include "app/examples/LeastSquaresFit.h"

#include <Eigen/Core>

#include <algorithm>
#include <stdexcept>
#include <unsupported/Eigen/NonLinearOptimization>
#include <unsupported/Eigen/NumericalDiff>

namespace Talmesh::app
{

namespace
{

/// The functor form that Eigen's minimiser asks for.
struct ResidualFunctor
{
  using Scalar = double;
  using InputType = Eigen::VectorXd;
  using ValueType = Eigen::VectorXd;
  using JacobianType = Eigen::MatrixXd;
  enum
  {
    InputsAtCompileTime = Eigen::Dynamic,
    ValuesAtCompileTime = Eigen::Dynamic
  };

  const Residuals* function = nullptr;
  int parameterCount = 0;
  int residualCount = 0;

  int inputs() const { return parameterCount; }
  int values() const { return residualCount; }
  int operator()(const InputType& parameters, ValueType& residuals) const
  {
    const std::vector<double> values =
        (*function)({parameters.data(), parameters.data() + parameters.size()});
    std::copy(values.begin(), values.end(), residuals.data());
    return 0;
  }
};

/// Steps after which a fit that does not converge is given up.
constexpr int mostSteps = 1000;

FitStep record(double norm, const Eigen::VectorXd& parameters)
{
  return {norm * norm, {parameters.data(), parameters.data() + parameters.size()}};
}

} // namespace

std::vector<FitStep> fitLeastSquares(const Residuals& residuals, const std::vector<double>& start)
{
  const std::size_t count = residuals(start).size();
  if (count < start.size())
    throw std::invalid_argument("fitLeastSquares: fewer observations than parameters");
  const ResidualFunctor functor{&residuals, static_cast<int>(start.size()),
                                static_cast<int>(count)};
  Eigen::NumericalDiff<ResidualFunctor, Eigen::Central> derivable(functor);
  Eigen::LevenbergMarquardt<decltype(derivable)> minimizer(derivable);
  minimizer.parameters.ftol = 1e-14;
  minimizer.parameters.xtol = 1e-14;

  Eigen::VectorXd parameters =
      Eigen::Map<const Eigen::VectorXd>(start.data(), static_cast<Eigen::Index>(start.size()));
  auto status = minimizer.minimizeInit(parameters);
  std::vector<FitStep> steps = {record(minimizer.fnorm, parameters)};
  for (int step = 0; step < mostSteps; ++step)
  {
    status = minimizer.minimizeOneStep(parameters);
    steps.push_back(record(minimizer.fnorm, parameters));
    if (status != Eigen::LevenbergMarquardtSpace::Running)
      break;
  }
  return steps;
}

} // namespace Talmesh::app
