#ifndef BenchStudies_h
#define BenchStudies_h

#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/SelectionNodes.h"
#include "support/ParameterStudy.h"

#include <vtkAnnotationLink.h>
#include <vtkContextScene.h>
#include <vtkNew.h>
#include <vtkSelection.h>
#include <vtkSmartPointer.h>

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
    container.setLinePlotTable(parameterStudy(runs, studyPoints, studyParameters), true);
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
    return Talmesh::plot::makeRowSelection(rows);
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
