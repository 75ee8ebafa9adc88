#ifndef BenchStudies_h
#define BenchStudies_h

#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/ParameterStudy.h"
#include "vtk/RowSelections.h"

#include <vtkAnnotationLink.h>
#include <vtkContextScene.h>
#include <vtkNew.h>
#include <vtkSelection.h>
#include <vtkSmartPointer.h>

#include <array>
#include <benchmark/benchmark.h>
#include <random>
#include <vector>

/// Points per run and parameters of all studies that are measured.
constexpr int studyPoints = 100;
constexpr int studyParameters = 6;

/// Numbers of runs, 100 to 10000: a benchmark tells from them how its time grows.
inline void runCounts(benchmark::internal::Benchmark* benchmark)
{
  benchmark->RangeMultiplier(10)->Range(100, 10000)->Unit(benchmark::kMillisecond);
}

/// Runs with a value of their own for every parameter, as sampled ones have: each takes 1, 2, ...
/// in an order of its own, for the factors have no divisor in common with a power of ten.
inline boost::shared_ptr<LinePlotTable> measuredStudy(int runs)
{
  constexpr std::array<int, studyParameters> factors = {1, 3, 7, 9, 11, 13};
  const auto table = parameterStudy(runs, studyPoints, studyParameters);
  const std::size_t first = table->items.size() - factors.size();
  for (std::size_t p = 0; p < factors.size(); ++p)
    for (int row = 0; row < runs * studyPoints; ++row)
      table->values[first + p][row] = 1.0 + row / studyPoints * factors[p] % runs;
  return table;
}

/// A container that shows a parameter study in a scene, in the given style.
struct ShownStudy
{
  ShownStudy(int runCount, plotStyles style)
      : runs(runCount)
  {
    container.setScene(scene);
    container.getMetaData()->blockSignals(true);
    container.setPlotStyle(style);
    container.getMetaData()->blockSignals(false);
    container.setLinePlotTable(measuredStudy(runs), true);
    container.redraw();
  }

  /// The rows of every fourth run: what a user selects who takes a quarter of the runs.
  vtkSmartPointer<vtkSelection> quarterOfTheRuns() const
  {
    std::vector<vtkIdType> rows;
    for (int run = 0; run < runs; run += 4)
    {
      for (int point = 0; point < studyPoints; ++point)
        rows.push_back(vtkIdType(run) * studyPoints + point);
    }
    return Talmesh::makeRowSelection(rows);
  }

  int runs;
  vtkNew<vtkContextScene> scene;
  PlotContainer container{nullptr};
};

/// Normally distributed values, the same for the same seed.
inline std::vector<double> normalSample(std::size_t count, unsigned seed)
{
  std::mt19937 generator(seed);
  std::normal_distribution<double> normal;
  std::vector<double> sample(count);
  for (double& value : sample)
    value = normal(generator);
  return sample;
}

#endif
