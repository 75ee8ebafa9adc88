#include "app/StyleNames.h"

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
      {xyPlot, "xyPlot", "XY plot"},
      {reservedStyle1, "reservedStyle1", "Reserved style 1"},
      {reservedStyle2, "reservedStyle2", "Reserved style 2"},
      {scatterPlotMatrix, "scatterPlotMatrix", "Scatter-plot matrix"},
      {xyzPlot, "xyzPlot", "3-D points"},
      {multiPlot, "multiPlot", "Multi-plot matrix"},
      {selectionCdfPlot, "selectionCdfPlot", "Selection CDFs"},
      {scatterWithErrorBars, "scatterWithErrorBars", "Scatter with error bars"},
      {fitParameterDistribution, "fitParameterDistribution", "Fit-parameter distributions"},
      {parallelCoordinates, "parallelCoordinates", "Parallel coordinates"}};
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

} // namespace Talmesh::app
