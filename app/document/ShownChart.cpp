#include "app/document/ShownChart.h"

#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"

#include <utility>

namespace Talmesh::app
{

ShownChart::ShownChart(std::shared_ptr<const OwnChart> shown, PlotContainer& by)
    : QObject(&by)
    , chart(std::move(shown))
    , container(by)
    , chosen(chart->firstVariant)
{
  container.addPreparation(this, [this] { titleBefore = container.getMetaData()->title; });
  container.addCompletion(this, [this] { complete(); });
}

void ShownChart::choose(int variant)
{
  chosen = variant;
  steps = chart->steps(variant);
  std::string& title = container.getMetaData()->title;
  title = ownTitle;
  container.withoutDrawing([this] { steps.fill(container); });
  ownTitle = title;
}

void ShownChart::complete()
{
  if (!steps.complete)
    return;
  const bool renamed = titleBefore != ownTitle;
  steps.complete(container);
  ownTitle = container.getMetaData()->title;
  if (renamed)
    container.setPlotTitle(titleBefore);
}

} // namespace Talmesh::app
