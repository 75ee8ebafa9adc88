#include "external/Distribution.h"
#include "external/FitRun.h"
#include "external/FitSettings.h"
#include "external/LinePlotData.h"
#include "external/LinePlotTable.h"
#include "external/ParameterSelection.h"
#include "external/SobolPostProcessResult.h"
#include "plot/PlotState.h"

#include <boost/make_shared.hpp>

#include <map>

#include "FuzzedContainer.h"

namespace
{

using Rows = std::vector<std::vector<double>>;

Rows rows(FuzzChoices& choose)
{
  Rows made;
  for (int i = choose.pick(4); i > 0; --i)
    made.push_back(choose.numbers(6));
  return made;
}

std::shared_ptr<SobolPostProcessResult::Indices> indices(FuzzChoices& choose)
{
  if (choose.pick(6) == 1)
    return nullptr;
  auto made = std::make_shared<SobolPostProcessResult::Indices>();
  for (int i = choose.pick(4); i > 0; --i)
    made->push_back(rows(choose));
  return made;
}

/// A density that nobody would write.
class FuzzedDistribution : public Distribution
{
public:
  explicit FuzzedDistribution(FuzzChoices& choose)
      : kindOfIt(choose.pick(7))
      , low(choose.number())
      , high(choose.number())
      , densities(choose.numbers(6))
  {
  }

  int kind() const override { return kindOfIt; }
  double density(double) const override
  {
    return densities.empty() ? 1.0 : densities[asked++ % densities.size()];
  }
  std::pair<double, double> range(int) const override { return {low, high}; }

private:
  int kindOfIt;
  double low;
  double high;
  std::vector<double> densities;
  mutable std::size_t asked = 0;
};

class FuzzedFit : public FitSettings
{
public:
  explicit FuzzedFit(FuzzChoices& choose)
      : kindOfIt(choose.pick(3))
  {
    observations = rows(choose);
    errors = rows(choose);
    outputs = choose.items();
    globalScaleFitted = choose.flip();
    normalizeToReference = choose.flip();
    referenceIndex = choose.column();
    standardize = choose.flip();
  }
  int dataKind() const override { return kindOfIt; }

private:
  int kindOfIt;
};

} // namespace

void FuzzedContainer::setLines(bool additional)
{
  auto lines = boost::make_shared<LinePlotTable>();
  lines->items = choose.items();
  lines->numberOfTrajectories = static_cast<std::size_t>(choose.pick(6));
  lines->pointsPerTrajectory = static_cast<std::size_t>(choose.pick(6));
  const std::size_t count = lines->numberOfTrajectories * lines->pointsPerTrajectory;
  for (std::size_t i = 0; i < lines->items.size(); ++i)
  {
    const std::vector<double> some = choose.numbers(8);
    const bool index = lines->items[i].second == "Run Index";
    lines->values.push_back(new double[count]);
    for (std::size_t row = 0; row < count; ++row)
      lines->values.back()[row] = some.empty() || index
                                      ? static_cast<double>(row / lines->pointsPerTrajectory)
                                      : some[row % some.size()];
    if (lines->items[i].first == Talmesh::Parameter)
      lines->parameterRanges.emplace_back(choose.number(), choose.number());
  }
  if (!additional)
    container->setLinePlotTable(lines, choose.flip());
  else
  {
    container->setLinePlotTableAsAdditionalData(lines.get());
    additionalLines.push_back(lines);
  }
}

void FuzzedContainer::setSeries(bool additional)
{
  std::vector<double> x = choose.numbers(10);
  std::vector<std::vector<double>> values;
  LinePlotData data;
  data.xName = choose.name();
  data.yName = choose.name();
  data.xValues = choose.pick(8) == 1 ? nullptr : &x;
  for (const auto& item : choose.items())
  {
    if (data.series.count(item) != 0)
      continue;
    values.push_back(x);
    data.series[item] = nullptr;
  }
  std::size_t next = 0;
  for (auto& series : data.series)
    series.second = choose.pick(8) == 1 ? nullptr : &values[next++];
  if (additional)
    container->setLinePlotDataAsAdditionalData(&data);
  else
    container->setLinePlotData(&data);
}

FuzzedContainer::Actions FuzzedContainer::specialActions()
{
  return {[&] { showSobol(); }, [&] { container->setupStackedSobol(choose.flip()); },
          [&] { showResiduals(); }, [&] { showDistribution(); },
          [&]
          {
            std::vector<double> x = choose.numbers(8);
            std::vector<double> y = choose.flip() ? x : choose.numbers(8);
            std::vector<double> error = choose.flip() ? x : choose.numbers(8);
            container->setSimpleXYPlot(x, y, error);
          }};
}

void FuzzedContainer::showSobol()
{
  SobolPostProcessResult result;
  for (int i = choose.pick(5); i > 0; --i)
  {
    result.parameterNames.push_back(choose.name());
    result.parameterValues.push_back(choose.number());
  }
  result.outputs = choose.items();
  if (choose.pick(6) != 1)
    result.timePoints = std::make_shared<std::vector<double>>(choose.numbers(6));
  result.firstOrder = indices(choose);
  result.total = indices(choose);
  container->setSobolPostprocessResult(&result, choose.flip(), choose.flip(),
                                       static_cast<unsigned long>(choose.pick(5)),
                                       static_cast<unsigned long>(choose.pick(5)));
}

void FuzzedContainer::showResiduals()
{
  FitRun run;
  run.timePoints = choose.numbers(6);
  if (choose.flip())
    run.parameters["Global Scale"] = static_cast<float>(choose.pick(9));
  FuzzedFit fit(choose);
  Rows predictions = rows(choose);
  container->setResidualPlot(&run, &fit, predictions, choose.flip(), choose.flip());
}

void FuzzedContainer::showDistribution()
{
  FuzzedDistribution distribution(choose);
  container->setDistribution(&distribution);
}

void FuzzedContainer::chooseRuns()
{
  ParameterSelection runs;
  for (int i = choose.pick(5); i > 0; --i)
    runs.runs.insert(choose.pick(10) - 2);
  if (choose.flip())
    container->setSelection(&runs, choose.pick(8) - 2);
  else
    container->setExternalSelection(&runs);
  delete container->getSelection();
}

void FuzzedContainer::collectClusters()
{
  std::vector<ParameterSelection*> selections;
  container->selectionsFromClusters("Cluster ", selections);
  for (const ParameterSelection* selection : selections)
    delete selection;
}
