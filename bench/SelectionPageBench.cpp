#include "support/PlotScene.h"

#include "BenchStudies.h"

namespace
{

/// Building the charts of the selection page with a quarter of the runs selected, unpainted.
void selectionPageRedraw(benchmark::State& state)
{
  ShownStudy study(static_cast<int>(state.range(0)), selectionCdfPlot);
  study.container.getAnnotationLink()->SetCurrentSelection(study.quarterOfTheRuns());
  for (auto _ : state)
    study.container.redraw();
  state.SetComplexityN(state.range(0));
}
BENCHMARK(selectionPageRedraw)->Apply(runCounts)->Complexity();

/// The same and painting it, all that a user waits for after changing a setting. Time to paint
/// depends on the graphics driver.
void selectionPagePaint(benchmark::State& state)
{
  PlotScene view(1200, 900);
  ShownStudy study(static_cast<int>(state.range(0)), selectionCdfPlot);
  study.container.setScene(view.scene());
  study.container.getAnnotationLink()->SetCurrentSelection(study.quarterOfTheRuns());
  for (auto _ : state)
  {
    study.container.redraw();
    view.render(study.container);
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(selectionPagePaint)->Apply(runCounts)->Complexity();

} // namespace
