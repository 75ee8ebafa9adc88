#include "app/examples/ExampleStudy.h"

#include "external/ColumnNames.h"

#include <boost/make_shared.hpp>

#include <cmath>
#include <random>

namespace Talmesh::app
{

namespace
{

constexpr std::mt19937::result_type seed = 403335;

/// The standard's distributions may differ between libraries; this is the same everywhere.
double uniform(std::mt19937& generator)
{
  constexpr double steps = 4294967296.0;
  return (static_cast<double>(generator()) + 0.5) / steps;
}

double sample(const ParameterRange& range, std::mt19937& generator)
{
  const double u = uniform(generator);
  if (range.logarithmic)
    return range.lower * std::pow(range.upper / range.lower, u);
  return range.lower + (range.upper - range.lower) * u;
}

std::vector<double> timesInLifetimes()
{
  std::vector<double> times;
  for (std::size_t point = 0; point < exampleStudy::pointsPerRun; ++point)
    times.push_back(static_cast<double>(point) * exampleStudy::timeStep / mRnaLifetimeInSeconds());
  return times;
}

void storeRun(LinePlotTable& table, std::size_t run, const RepressilatorParameters& parameters,
              const std::vector<RepressilatorState>& states)
{
  for (std::size_t point = 0; point < states.size(); ++point)
  {
    const RepressilatorState& state = states[point];
    const std::array<double, 12> row = {state[3],
                                        state[4],
                                        state[5],
                                        state[0],
                                        state[1],
                                        state[2],
                                        static_cast<double>(point) * exampleStudy::timeStep,
                                        static_cast<double>(run),
                                        parameters.alpha,
                                        parameters.alpha0,
                                        parameters.beta,
                                        parameters.n};
    const std::size_t place = run * exampleStudy::pointsPerRun + point;
    for (std::size_t item = 0; item < row.size(); ++item)
      table.values[item][place] = row[item];
  }
}

} // namespace

std::vector<TypedConcentrationName> exampleItems()
{
  return {{Molecule, "TetR"},          {Molecule, "LacI"},     {Molecule, "cI"},
          {Pattern, "tetR mRNA"},      {Pattern, "lacI mRNA"}, {Pattern, "cI mRNA"},
          {TimeOrValue, timeItemName}, runIndexItem(),         {Parameter, "alpha"},
          {Parameter, "alpha0"},       {Parameter, "beta"},    {Parameter, "n"}};
}

const std::vector<ParameterRange>& exampleParameterRanges()
{
  static const std::vector<ParameterRange> ranges = {
      {10.0, 300.0, true}, {0.01, 10.0, true}, {0.05, 1.0, true}, {1.5, 3.0, false}};
  return ranges;
}

std::vector<RepressilatorParameters> exampleParameters()
{
  std::mt19937 generator(seed);
  std::vector<RepressilatorParameters> parameters(exampleStudy::runs);
  const std::vector<ParameterRange>& ranges = exampleParameterRanges();
  for (RepressilatorParameters& run : parameters)
  {
    run.alpha = sample(ranges[0], generator);
    run.alpha0 = sample(ranges[1], generator);
    run.beta = sample(ranges[2], generator);
    run.n = sample(ranges[3], generator);
  }
  return parameters;
}

RepressilatorState exampleStart()
{
  return {0.0, 0.0, 0.0, 10.0, 5.0, 0.0};
}

boost::shared_ptr<LinePlotTable> makeExampleStudy(const ImportProgress& progress)
{
  auto table = boost::make_shared<LinePlotTable>();
  table->items = exampleItems();
  table->numberOfTrajectories = exampleStudy::runs;
  table->pointsPerTrajectory = exampleStudy::pointsPerRun;
  for (const ParameterRange& range : exampleParameterRanges())
    table->parameterRanges.emplace_back(range.lower, range.upper);
  table->values.reserve(table->items.size());
  for (std::size_t item = 0; item < table->items.size(); ++item)
    table->values.push_back(new double[exampleStudy::runs * exampleStudy::pointsPerRun]);

  const std::vector<double> times = timesInLifetimes();
  const std::vector<RepressilatorParameters> parameters = exampleParameters();
  for (std::size_t run = 0; run < parameters.size(); ++run)
  {
    storeRun(*table, run, parameters[run],
             integrateRepressilator(parameters[run], exampleStart(), times));
    const double done = static_cast<double>(run + 1) / static_cast<double>(parameters.size());
    if (progress && !progress(done))
      return nullptr;
  }
  return table;
}

Study exampleStudyOfRepressilator(const ImportProgress& progress)
{
  return {"Repressilator", makeExampleStudy(progress), nullptr};
}

} // namespace Talmesh::app
