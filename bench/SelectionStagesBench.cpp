#include "app/document/SelectionComparison.h"
#include "app/document/ShownStudy.h"
#include "app/examples/ExampleStudy.h"
#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/DerivedTables.h"
#include "plot/KsComparison.h"
#include "plot/PlotState.h"
#include "plot/RunSplit.h"
#include "plot/vtkSelectionUpdateCallback.h"
#include "stats/GridDensity.h"
#include "stats/RankedParameter.h"
#include "vtk/KeptMemory.h"
#include "vtk/RowSelections.h"

#include <vtkAnnotationLink.h>
#include <vtkChartXY.h>
#include <vtkDoubleArray.h>
#include <vtkTable.h>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <numeric>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "BenchWindow.h"

namespace
{

namespace stats = Talmesh::stats;
using Talmesh::plot::rankSlot;

/// Adds how long a stage took to the counter "stage: <name>", in milliseconds per iteration.
template <typename Stage>
void measure(benchmark::State& state, const char* name, Stage&& stage)
{
  const auto before = std::chrono::steady_clock::now();
  stage();
  const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - before;
  auto& counter = state.counters[std::string("stage: ") + name];
  counter.flags = benchmark::Counter::kAvgIterations;
  counter.value += took.count();
}

/// All rows of the example study selected, in one style: the reaction, the charts drawn anew, the
/// picture of them, and the picture once more.
void allSelectedOfExample(benchmark::State& state)
{
  const Talmesh::app::Study study = Talmesh::app::exampleStudyOfRepressilator();
  BenchWindow window;
  PlotContainer& container = window.container;
  Talmesh::app::showStudy(study, container);
  container.setPlotStyle(static_cast<plotStyles>(state.range(0)));
  window.paint(true);
  std::vector<vtkIdType> rows(static_cast<std::size_t>(container.getTable()->GetNumberOfRows()));
  std::iota(rows.begin(), rows.end(), 0);
  for (auto _ : state)
  {
    const auto all = Talmesh::makeRowSelection(rows);
    measure(state, "selection", [&] { container.getAnnotationLink()->SetCurrentSelection(all); });
    measure(state, "its frame", [&] { window.paint(true); });
    measure(state, "redraw", [&] { container.redraw(); });
    measure(state, "frame", [&] { window.paint(true); });
    measure(state, "unchanged frame", [&] { window.paint(false); });
  }
}
BENCHMARK(allSelectedOfExample)
    ->Arg(xyPlot)
    ->Arg(scatterPlotMatrix)
    ->Arg(multiPlot)
    ->Arg(selectionCdfPlot)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(2);

/// The values of each parameter that a rank table has.
std::vector<std::optional<std::vector<double>>> rankedValues(vtkTable* ranks)
{
  std::vector<std::optional<std::vector<double>>> lists;
  for (vtkIdType column = 1; column < ranks->GetNumberOfColumns(); column += 2)
  {
    auto* sorted = vtkDoubleArray::SafeDownCast(ranks->GetColumn(column));
    lists.emplace_back(std::vector<double>(sorted->GetPointer(0),
                                           sorted->GetPointer(0) + sorted->GetNumberOfValues()));
  }
  return lists;
}

void estimate(std::vector<double>& sources, std::vector<double>& targets, double bandwidth,
              std::vector<double>& density)
{
  if (!stats::estimateOnGrid(sources, targets, bandwidth, density))
    std::fill(density.begin(), density.end(), 0.0);
}

void addDataSet(PlotContainer& container, const vtkSmartPointer<vtkTable>& rows)
{
  auto& tables = stateOf(container).derivedTables;
  tables.push_back(rows);
  container.generateRankedParameters(rows, tables.size());
}

/// What the release of the mouse in the page that compares runs sets off, stage by stage. The
/// rectangle covers all runs; the stages behind the picking are those of every tenth run.
/// Densities are measured once more on their own, and are part of the ranks.
void selectionStages(benchmark::State& state)
{
  BenchWindow window;
  window.showComparison(static_cast<int>(state.range(0)));
  window.paint(true);
  PlotContainer& container = window.container;
  PlotContainer*& reacting = stateOf(container).selectionUpdateCallback->Container;
  int choice = 0;
  for (auto _ : state)
  {
    reacting = nullptr;
    window.drag();
    measure(state, "picking", [&] { window.release(); });
    window.select(++choice);
    reacting = &container;
    std::optional<Talmesh::KeptMemory> ofPartsBefore(std::in_place);
    stateOf(container).derivedTables.resize(Talmesh::plot::ownSlots);
    Talmesh::plot::RunSplit split;
    measure(state, "split",
            [&] {
              split = Talmesh::plot::splitRuns(stateOf(container), container.getAnnotationLink());
            });
    measure(state, "ranks and densities",
            [&]
            {
              addDataSet(container, split.selected);
              addDataSet(container, split.remaining);
            });
    ofPartsBefore.reset();
    for (const std::size_t dataSet : {1, 2})
    {
      auto lists = rankedValues(container.getDerivedTables().at(rankSlot(dataSet)));
      const std::vector<std::pair<double, double>> bounds(lists.size(), {0.0, 1.0});
      measure(state, "of these densities",
              [&] { stats::rankParameters(std::move(lists), bounds, estimate); });
    }
    measure(state, "tests",
            [&]
            {
              container.ksTestSelection(rankSlot(1), rankSlot(2));
              Talmesh::plot::alignResults(stateOf(container), rankSlot(1));
            });
    measure(state, "charts", [&] { container.redraw(); });
    measure(state, "table",
            [&]
            {
              benchmark::DoNotOptimize(Talmesh::app::compare(
                  Talmesh::app::comparedStudy(
                      container, Talmesh::app::comparedSides(container, {}, {}, {}), false),
                  {}));
            });
    measure(state, "drawing", [&] { window.paint(true); });
  }
}
BENCHMARK(selectionStages)->Arg(5000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

/// From the release of the mouse, which picks among all rows, to the finished page of another tenth
/// of the runs.
void releaseToPicture(benchmark::State& state)
{
  BenchWindow window;
  window.showComparison(static_cast<int>(state.range(0)));
  window.select(0);
  window.paint(true);
  PlotContainer& container = window.container;
  PlotContainer*& reacting = stateOf(container).selectionUpdateCallback->Container;
  int choice = 0;
  for (auto _ : state)
  {
    state.PauseTiming();
    reacting = nullptr;
    window.drag();
    state.ResumeTiming();
    window.release();
    reacting = &container;
    window.select(++choice);
    window.paint(true);
  }
}
BENCHMARK(releaseToPicture)->Arg(5000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

} // namespace
