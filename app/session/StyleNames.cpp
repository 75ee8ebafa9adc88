#include "app/session/StyleNames.h"

#include <QCoreApplication>

#include <algorithm>

namespace Talmesh::app
{

namespace
{

template <typename Predicate>
const StyleName* find(Predicate wanted)
{
  const std::vector<StyleName>& names = styleNames();
  const auto found = std::find_if(names.begin(), names.end(), wanted);
  return found == names.end() ? nullptr : &*found;
}

} // namespace

const std::vector<StyleName>& styleNames()
{
  static const std::vector<StyleName> names = {
      {xyPlot, "xyPlot", QT_TRANSLATE_NOOP("StyleNames", "XY plot")},
      {reservedStyle1, "reservedStyle1", QT_TRANSLATE_NOOP("StyleNames", "Reserved style 1")},
      {reservedStyle2, "reservedStyle2", QT_TRANSLATE_NOOP("StyleNames", "Reserved style 2")},
      {scatterPlotMatrix, "scatterPlotMatrix",
       QT_TRANSLATE_NOOP("StyleNames", "Scatter-plot matrix")},
      {xyzPlot, "xyzPlot", QT_TRANSLATE_NOOP("StyleNames", "3-D points")},
      {multiPlot, "multiPlot", QT_TRANSLATE_NOOP("StyleNames", "Multi-plot matrix")},
      {selectionCdfPlot, "selectionCdfPlot", QT_TRANSLATE_NOOP("StyleNames", "Selection CDFs")},
      {scatterWithErrorBars, "scatterWithErrorBars",
       QT_TRANSLATE_NOOP("StyleNames", "Scatter with error bars")},
      {fitParameterDistribution, "fitParameterDistribution",
       QT_TRANSLATE_NOOP("StyleNames", "Fit-parameter distributions")},
      {parallelCoordinates, "parallelCoordinates",
       QT_TRANSLATE_NOOP("StyleNames", "Parallel coordinates")}};
  return names;
}

const StyleName* findStyle(std::string_view name)
{
  return find([name](const StyleName& entry) { return entry.name == name; });
}

const StyleName* findStyle(plotStyles style)
{
  return find([style](const StyleName& entry) { return entry.style == style; });
}

QString titleOf(const StyleName& style)
{
  return QCoreApplication::translate("StyleNames", style.title);
}

} // namespace Talmesh::app
