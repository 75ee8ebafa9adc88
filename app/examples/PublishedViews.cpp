#include "app/examples/PublishedViews.h"

#include "app/examples/CircuitSensitivity.h"
#include "app/examples/StudyCharts.h"

namespace Talmesh::app
{

namespace
{

/// A view of a chart that needs no study, and is made when it is drawn.
GalleryView viewOf(const std::string& name, std::function<ChartSteps()> chart)
{
  return {name, [chart = std::move(chart)](const Study&, Document& document)
          { return showChart(document, chart()); }};
}

std::function<ChartSteps()> residuals(bool scaled, bool sideBySide)
{
  return [=] { return indomethacinResidualChart(scaled, sideBySide); };
}

/// Of the first species over time, or of all species at the last time.
std::function<ChartSteps()> sensitivity(bool atTimePoint, bool total)
{
  return [=]
  {
    const CircuitIndices result = keptCircuitSensitivity().value();
    const std::size_t last = result->timePoints->size() - 1;
    return sensitivityChart(result, {atTimePoint, total, atTimePoint ? last : 0});
  };
}

std::vector<GalleryView> withPriors(std::vector<GalleryView> views)
{
  for (const NamedDistribution& prior : circuitPriors())
    views.push_back(viewOf("distribution-" + prior.name, [prior] { return priorDensity(prior); }));
  return views;
}

} // namespace

const std::vector<GalleryView>& publishedViews()
{
  static const std::vector<GalleryView> views =
      withPriors({viewOf("scatterWithErrorBars", puromycinRateChart),
                  viewOf("fitParameterDistribution", indomethacinFit),
                  viewOf("fittedCourse", [] { return indomethacinCourse(false); }),
                  viewOf("fittedCourse-logarithmic", [] { return indomethacinCourse(true); }),
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
