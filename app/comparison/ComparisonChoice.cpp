#include "app/comparison/ComparisonChoice.h"

#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"

#include <QSignalBlocker>

namespace Talmesh::app
{

ComparisonChoice comparisonChoiceOf(const PlotContainer& container)
{
  const PlotMetaData& settings = *container.getMetaData();
  ComparisonChoice choice;
  choice.pThreshold = settings.getPThreshold();
  choice.ksThreshold = settings.getKsThreshold();
  choice.density = settings.getUseDensity();
  choice.commonDensityScale = settings.getCommonDensityScale();
  choice.logParameterAxes = settings.getLogParameterAxes();
  choice.bands = settings.getShowQuantiles();
  return choice;
}

void writeComparisonChoice(PlotContainer& container, const ComparisonChoice& choice)
{
  PlotMetaData& settings = *container.getMetaData();
  // The settings must not announce each change, or every one of them would draw.
  const QSignalBlocker silence(settings);
  settings.setPThreshold(choice.pThreshold);
  settings.setKsThreshold(choice.ksThreshold);
  settings.setUseDensity(choice.density);
  settings.setCommonDensityScale(choice.commonDensityScale);
  settings.setLogParameterAxes(choice.logParameterAxes);
  settings.setShowQuantiles(choice.bands);
}

void refreshQuartiles(PlotContainer& container)
{
  if (container.getMetaData()->getShowQuantiles())
    container.refreshQuartiles();
}

} // namespace Talmesh::app
