#include "app/examples/PublishedViews.h"

#include "app/examples/CircuitSensitivity.h"
#include "app/examples/StudyCharts.h"
#include "plot/PlotContainer.h"

namespace Talmesh::app
{

namespace
{

using Draw = std::function<void(PlotContainer&)>;

/// A view of a chart that needs no study.
GalleryView viewOf(const std::string& name, Draw draw)
{
  return {name, [draw = std::move(draw)](const Study&, PlotContainer& container)
          {
            draw(container);
            return std::string();
          }};
}

Draw residuals(bool scaled, bool sideBySide)
{
  return [=](PlotContainer& container)
  { drawIndomethacinResiduals(container, scaled, sideBySide); };
}

/// Of the first species over time, or of all species at the last time.
Draw sensitivity(bool atTimePoint, bool total)
{
  return [=](PlotContainer& container)
  {
    const auto result = keptCircuitSensitivity();
    const std::size_t last = result->timePoints->size() - 1;
    drawSensitivity(container, *result, {atTimePoint, total, atTimePoint ? last : 0});
  };
}

std::vector<GalleryView> withPriors(std::vector<GalleryView> views)
{
  const auto priors = std::make_shared<std::vector<NamedDistribution>>(circuitPriors());
  for (const NamedDistribution& prior : *priors)
    views.push_back(viewOf("distribution-" + prior.name, [priors, &prior](PlotContainer& container)
                           { drawPrior(container, prior); }));
  return views;
}

} // namespace

const std::vector<GalleryView>& publishedViews()
{
  static const std::vector<GalleryView> views =
      withPriors({viewOf("scatterWithErrorBars", drawPuromycinRates),
                  viewOf("fitParameterDistribution", drawIndomethacinFit),
                  viewOf("fittedCourse", [](PlotContainer& container)
                         { drawIndomethacinCourse(container, false); }),
                  viewOf("fittedCourse-logarithmic",
                         [](PlotContainer& container) { drawIndomethacinCourse(container, true); }),
                  viewOf("residuals", residuals(false, false)),
                  viewOf("residuals-scaled", residuals(true, false)),
                  viewOf("residuals-sideBySide", residuals(false, true)),
                  viewOf("sensitivity-overTime", sensitivity(false, false)),
                  viewOf("sensitivity-total-overTime", sensitivity(false, true)),
                  viewOf("sensitivity-atTimePoint", sensitivity(true, false)),
                  viewOf("sensitivity-total-atTimePoint", sensitivity(true, true))});
  return views;
}

} // namespace Talmesh::app
