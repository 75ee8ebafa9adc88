#include "app/CircuitSensitivity.h"
#include "app/StatisticsViews.h"
#include "app/StudyCharts.h"
#include "plot/PlotContainer.h"

namespace Talmesh::app
{

namespace
{

constexpr std::size_t sensitivitySamples = 1024;

/// A view of a chart that needs no study.
GalleryView viewOf(const char* name, std::function<void(PlotContainer&)> draw)
{
  return {name, [draw = std::move(draw)](const Study&, PlotContainer& container)
          {
            draw(container);
            return std::string();
          }};
}

void drawCircuitSensitivity(PlotContainer& container, bool atTimePoint)
{
  const auto result = circuitSensitivity(sensitivitySamples);
  const std::size_t last = result->timePoints->size() - 1;
  drawSensitivity(container, *result, {atTimePoint, false, atTimePoint ? last : 0});
}

} // namespace

const std::vector<GalleryView>& publishedViews()
{
  static const std::vector<GalleryView> views = {
      viewOf("scatterWithErrorBars", drawPuromycinRates),
      viewOf("fitParameterDistribution", drawIndomethacinFit),
      viewOf("fittedCourse",
             [](PlotContainer& container) { drawIndomethacinCourse(container, false); }),
      viewOf("residuals",
             [](PlotContainer& container) { drawIndomethacinResiduals(container, false, false); }),
      viewOf("residuals-scaled",
             [](PlotContainer& container) { drawIndomethacinResiduals(container, true, false); }),
      viewOf("residuals-sideBySide",
             [](PlotContainer& container) { drawIndomethacinResiduals(container, false, true); }),
      viewOf("sensitivity-overTime",
             [](PlotContainer& container) { drawCircuitSensitivity(container, false); }),
      viewOf("sensitivity-atTimePoint",
             [](PlotContainer& container) { drawCircuitSensitivity(container, true); }),
      viewOf("distribution",
             [](PlotContainer& container) { drawPrior(container, circuitPriors().front()); })};
  return views;
}

} // namespace Talmesh::app
