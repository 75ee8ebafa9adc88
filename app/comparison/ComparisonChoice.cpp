#include "app/comparison/ComparisonChoice.h"

#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"

#include <QSignalBlocker>
#include <QVariant>

namespace Talmesh::app
{

namespace
{

constexpr const char* comparedByProperty = "talmeshComparedBy";
constexpr const char* adjustmentProperty = "talmeshAdjustment";
constexpr const char* halvesProperty = "talmeshHalves";
constexpr const char* seedProperty = "talmeshSeed";
constexpr const char* saltelliProperty = "talmeshSaltelliDesign";
constexpr const char* designedProperty = "talmeshDesignedParameters";
constexpr const char* comparedProperty = "talmeshCompared";
constexpr const char* comparedWithProperty = "talmeshComparedWith";

/// No property is 0, the first enumerator.
template <typename Enumeration>
Enumeration propertyOf(const PlotContainer& container, const char* name)
{
  return static_cast<Enumeration>(container.property(name).toInt());
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
  choice.comparedBy = propertyOf<stats::ComparedBy>(container, comparedByProperty);
  choice.adjustment = propertyOf<stats::Adjustment>(container, adjustmentProperty);
  choice.halves = container.property(halvesProperty).toBool();
  if (const QVariant seed = container.property(seedProperty); seed.isValid())
    choice.seed = seed.toULongLong();
  choice.design = {container.property(saltelliProperty).toBool(),
                   container.property(designedProperty).toUInt()};
  choice.compared = container.property(comparedProperty).toString().toStdString();
  choice.comparedWith = container.property(comparedWithProperty).toString().toStdString();
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
  container.setProperty(comparedByProperty, static_cast<int>(choice.comparedBy));
  container.setProperty(adjustmentProperty, static_cast<int>(choice.adjustment));
  container.setProperty(halvesProperty, choice.halves);
  container.setProperty(seedProperty, static_cast<qulonglong>(choice.seed));
  container.setProperty(saltelliProperty, choice.design.isSaltelli);
  container.setProperty(designedProperty, static_cast<uint>(choice.design.parameters));
  container.setProperty(comparedProperty, QString::fromStdString(choice.compared));
  container.setProperty(comparedWithProperty, QString::fromStdString(choice.comparedWith));
}

void refreshQuartiles(PlotContainer& container)
{
  if (container.getMetaData()->getShowQuantiles())
    container.refreshQuartiles();
}

} // namespace Talmesh::app
