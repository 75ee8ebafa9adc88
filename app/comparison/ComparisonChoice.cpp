#include "app/comparison/ComparisonChoice.h"

#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/TableColumns.h"

#include <vtkTable.h>

#include <QString>
#include <QVariant>

namespace Talmesh::app
{

namespace
{

/// Under this name a container remembers which quartiles it has and what of.
constexpr const char* quartileSource = "talmeshQuartileSource";

QString sourceOfQuartiles(const PlotContainer& container)
{
  const PlotMetaData& settings = *container.getMetaData();
  const auto stateOf = [&container](int column)
  {
    vtkAbstractArray* array = plot::columnAt(container.getTable(), column);
    return QStringLiteral("%1:%2 ").arg(column).arg(array ? array->GetMTime() : 0);
  };
  return stateOf(plot::firstOf(settings.xColumns)) + stateOf(plot::firstOf(settings.yColumns)) +
         QString::number(settings.getStride());
}

/// Tells one computation of the quartiles from another: others compute them too, and for other
/// columns. The table itself counts as changed with every drawing, its columns do not.
QString quartilesNow(const PlotContainer& container)
{
  vtkAbstractArray* range = plot::columnNamed(container.getQuartileTable(), "Range");
  return range ? QStringLiteral(" %1").arg(range->GetMTime()) : QString();
}

} // namespace

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
  settings.blockSignals(true);
  settings.setPThreshold(choice.pThreshold);
  settings.setKsThreshold(choice.ksThreshold);
  settings.setUseDensity(choice.density);
  settings.setCommonDensityScale(choice.commonDensityScale);
  settings.setLogParameterAxes(choice.logParameterAxes);
  settings.setShowQuantiles(choice.bands);
  settings.blockSignals(false);
}

void refreshQuartiles(PlotContainer& container)
{
  if (!container.getMetaData()->getShowQuantiles())
    return;
  const QString source = sourceOfQuartiles(container);
  if (container.getQuartileTable() &&
      container.property(quartileSource).toString() == source + quartilesNow(container))
    return;
  container.generateQuartiles();
  container.setProperty(quartileSource, source + quartilesNow(container));
}

} // namespace Talmesh::app
