#include "app/examples/IndomethacinStudy.h"

#include "external/TypedConcentrationName.h"
#include "plot/TableColumns.h"

#include <vtkTable.h>

#include <cmath>
#include <string>

namespace Talmesh::app
{

namespace
{

/// A start from which the fast and the slow compartment stay the first and the second.
const std::vector<double> fitStart = {2.0, 3.0, 0.5, 0.2};

const char* const parameterNames[] = {"A1", "k1", "A2", "k2"};

std::vector<double> decayResiduals(const std::vector<double>& parameters)
{
  const std::vector<double> prediction = twoCompartmentDecay(parameters, indomethacinTimes());
  std::vector<double> residuals;
  for (const std::vector<double>& subject : indomethacinConcentrations())
  {
    for (std::size_t i = 0; i < subject.size(); ++i)
      residuals.push_back(subject[i] - prediction[i]);
  }
  return residuals;
}

/// Standard deviation of the subjects at time `i`.
double spread(std::size_t i)
{
  const auto& subjects = indomethacinConcentrations();
  double sum = 0.0;
  double squares = 0.0;
  for (const std::vector<double>& subject : subjects)
  {
    sum += subject[i];
    squares += subject[i] * subject[i];
  }
  const auto count = static_cast<double>(subjects.size());
  return std::sqrt((squares - sum * sum / count) / (count - 1.0));
}

} // namespace

const std::vector<double>& indomethacinTimes()
{
  static const std::vector<double> times = {0.25, 0.5, 0.75, 1.0, 1.25, 2.0,
                                            3.0,  4.0, 5.0,  6.0, 8.0};
  return times;
}

const std::vector<std::vector<double>>& indomethacinConcentrations()
{
  static const std::vector<std::vector<double>> concentrations = {
      {1.5, 0.94, 0.78, 0.48, 0.37, 0.19, 0.12, 0.11, 0.08, 0.07, 0.05},
      {2.03, 1.63, 0.71, 0.7, 0.64, 0.36, 0.32, 0.2, 0.25, 0.12, 0.08},
      {2.72, 1.49, 1.16, 0.8, 0.8, 0.39, 0.22, 0.12, 0.11, 0.08, 0.08},
      {1.85, 1.39, 1.02, 0.89, 0.59, 0.4, 0.16, 0.11, 0.1, 0.07, 0.07},
      {2.05, 1.04, 0.81, 0.39, 0.3, 0.23, 0.13, 0.11, 0.08, 0.1, 0.06},
      {2.31, 1.44, 1.03, 0.84, 0.64, 0.42, 0.24, 0.17, 0.13, 0.1, 0.09}};
  return concentrations;
}

std::vector<double> twoCompartmentDecay(const std::vector<double>& parameters,
                                        const std::vector<double>& times)
{
  std::vector<double> concentrations;
  for (const double time : times)
    concentrations.push_back(parameters[0] * std::exp(-parameters[1] * time) +
                             parameters[2] * std::exp(-parameters[3] * time));
  return concentrations;
}

std::vector<FitStep> fitIndomethacin()
{
  return fitLeastSquares(decayResiduals, fitStart);
}

vtkSmartPointer<vtkTable> indomethacinFitTable()
{
  const std::vector<FitStep> steps = fitIndomethacin();
  std::vector<double> scores;
  std::vector<double> iterations;
  std::vector<std::vector<double>> courses(std::size(parameterNames));
  for (const FitStep& step : steps)
  {
    iterations.push_back(static_cast<double>(iterations.size()));
    scores.push_back(step.sumOfSquares);
    for (std::size_t i = 0; i < courses.size(); ++i)
      courses[i].push_back(step.parameters[i]);
  }
  auto table = vtkSmartPointer<vtkTable>::New();
  table->AddColumn(plot::makeColumn("Sum of squares", scores));
  table->AddColumn(plot::makeColumn("Iteration", iterations));
  for (std::size_t i = 0; i < courses.size(); ++i)
    table->AddColumn(
        plot::makeColumn(selectionPairToString({Parameter, parameterNames[i]}), courses[i]));
  return table;
}

IndomethacinResiduals indomethacinResiduals()
{
  IndomethacinResiduals result;
  const std::vector<double> best = fitIndomethacin().back().parameters;
  for (std::size_t i = 0; i < best.size(); ++i)
    result.run.parameters[parameterNames[i]] = static_cast<float>(best[i]);
  result.run.timePoints = indomethacinTimes();
  result.settings = std::make_unique<FitSettings>();
  std::vector<double> errors;
  for (std::size_t i = 0; i < indomethacinTimes().size(); ++i)
    errors.push_back(spread(i));
  for (const std::vector<double>& subject : indomethacinConcentrations())
  {
    result.settings->observations.push_back(subject);
    result.settings->errors.push_back(errors);
    result.settings->outputs.emplace_back(
        Molecule, "Subject " + std::to_string(result.settings->outputs.size() + 1));
    result.predictions.push_back(twoCompartmentDecay(best, indomethacinTimes()));
  }
  return result;
}

} // namespace Talmesh::app
