#include "app/styles/ViewerStyles.h"

#include "external/PlotMetaData.h"

#include <QCoreApplication>

#include <algorithm>

namespace Talmesh::app
{

namespace
{

/// With fewer chosen columns, parallel coordinates show all.
constexpr std::size_t fewestChosenAxes = 3;

std::size_t one(const PageColumns&)
{
  return 1;
}

std::size_t pairsOf(std::size_t columns)
{
  return columns * (columns - 1) / 2;
}

/// A row of the table is a point of each series.
std::size_t seriesOf(const PageColumns& columns)
{
  return std::max<std::size_t>(columns.chosen, 1);
}

std::size_t parametersOf(const PageColumns& columns)
{
  return columns.parameters;
}

std::size_t parameterGrid(const PageColumns& columns)
{
  return columns.parameters * columns.parameters;
}

std::size_t columnsOfMatrix(const PageColumns& columns)
{
  return columns.limited ? columns.parameters + 2 : columns.all;
}

std::size_t axesOf(const PageColumns& columns)
{
  return columns.chosen < fewestChosenAxes ? columns.all : columns.chosen;
}

ViewerStyle makeStyle(plotStyles style, const char* name, const char* title)
{
  ViewerStyle made;
  made.style = style;
  made.name = name;
  made.title = title;
  made.charts = one;
  made.pointsOfRow = seriesOf;
  return made;
}

ViewerStyle xyStyle()
{
  ViewerStyle style = makeStyle(xyPlot, "xyPlot", QT_TRANSLATE_NOOP("ViewerStyles", "XY plot"));
  style.controls.lines = true;
  style.controls.legend = true;
  style.controls.logX = true;
  style.controls.logY = true;
  style.hasSeries = true;
  style.unit = ChartUnit::RunsOverRuns;
  return style;
}

/// The computed studies show sensitivities in them.
ViewerStyle reservedStyle(plotStyles number, const char* name, const char* title)
{
  ViewerStyle style = makeStyle(number, name, title);
  style.offered = false;
  return style;
}

ViewerStyle scatterMatrixStyle()
{
  ViewerStyle style = makeStyle(scatterPlotMatrix, "scatterPlotMatrix",
                                QT_TRANSLATE_NOOP("ViewerStyles", "Scatter-plot matrix"));
  // It has titles above and tick labels to the right, which the other charts do not.
  style.room = {45, 60, 50};
  style.unit = ChartUnit::Runs;
  style.charts = [](const PageColumns& columns)
  { return columnsOfMatrix(columns) * columnsOfMatrix(columns); };
  style.pointsOfRow = [](const PageColumns& columns) { return pairsOf(columnsOfMatrix(columns)); };
  return style;
}

ViewerStyle pointStyle3D()
{
  ViewerStyle style =
      makeStyle(xyzPlot, "xyzPlot", QT_TRANSLATE_NOOP("ViewerStyles", "3-D points"));
  style.controls.z = true;
  style.unit = ChartUnit::RunsUnlessOverTime;
  return style;
}

ViewerStyle multiPlotStyle()
{
  ViewerStyle style =
      makeStyle(multiPlot, "multiPlot", QT_TRANSLATE_NOOP("ViewerStyles", "Multi-plot matrix"));
  style.controls.legend = true;
  // The pages of runs draw their time courses with it too.
  style.controls.logX = true;
  style.controls.logY = true;
  style.comparesRuns = true;
  style.unit = ChartUnit::RunsOverRuns;
  style.charts = parameterGrid;
  // The pairs and the main chart, which goes with them.
  style.pointsOfRow = [](const PageColumns& columns)
  { return pairsOf(columns.parameters) + std::min<std::size_t>(columns.parameters, 1); };
  return style;
}

ViewerStyle selectionPageStyle()
{
  ViewerStyle style = makeStyle(selectionCdfPlot, "selectionCdfPlot",
                                QT_TRANSLATE_NOOP("ViewerStyles", "Selection CDFs"));
  style.controls.lines = true;
  style.controls.legend = true;
  style.controls.logX = true;
  style.controls.logY = true;
  style.comparesRuns = true;
  style.showsDistributions = true;
  // Each chart has numbers and a name to its left.
  style.room.betweenColumns = 60;
  style.unit = ChartUnit::RunsOverRuns;
  style.charts = parametersOf;
  // The runs; the curves of the parameters have few points.
  style.pointsOfRow = one;
  return style;
}

ViewerStyle errorBarStyle()
{
  ViewerStyle style = makeStyle(scatterWithErrorBars, "scatterWithErrorBars",
                                QT_TRANSLATE_NOOP("ViewerStyles", "Scatter with error bars"));
  style.controls.z = true;
  style.controls.legend = true;
  style.controls.logX = true;
  style.unit = ChartUnit::RunsOverRuns;
  return style;
}

ViewerStyle fitParameterStyle()
{
  ViewerStyle style = makeStyle(fitParameterDistribution, "fitParameterDistribution",
                                QT_TRANSLATE_NOOP("ViewerStyles", "Fit-parameter distributions"));
  style.comparesRuns = true;
  style.charts = parameterGrid;
  style.pointsOfRow = [](const PageColumns& columns)
  { return pairsOf(columns.parameters) + columns.parameters; };
  return style;
}

ViewerStyle parallelStyle()
{
  ViewerStyle style = makeStyle(parallelCoordinates, "parallelCoordinates",
                                QT_TRANSLATE_NOOP("ViewerStyles", "Parallel coordinates"));
  style.controls.x = false;
  style.hasColumnsAsAxes = true;
  style.unit = ChartUnit::Runs;
  style.charts = axesOf;
  style.pointsOfRow = axesOf;
  return style;
}

template <typename Predicate>
const ViewerStyle* find(Predicate wanted)
{
  const std::vector<ViewerStyle>& styles = viewerStyles();
  const auto found = std::find_if(styles.begin(), styles.end(), wanted);
  return found == styles.end() ? nullptr : &*found;
}

} // namespace

const std::vector<ViewerStyle>& viewerStyles()
{
  static const std::vector<ViewerStyle> styles = {
      xyStyle(),
      reservedStyle(reservedStyle1, "reservedStyle1",
                    QT_TRANSLATE_NOOP("ViewerStyles", "Reserved style 1")),
      reservedStyle(reservedStyle2, "reservedStyle2",
                    QT_TRANSLATE_NOOP("ViewerStyles", "Reserved style 2")),
      scatterMatrixStyle(),
      pointStyle3D(),
      multiPlotStyle(),
      selectionPageStyle(),
      errorBarStyle(),
      fitParameterStyle(),
      parallelStyle()};
  return styles;
}

const ViewerStyle* findStyle(std::string_view name)
{
  return find([name](const ViewerStyle& entry) { return entry.name == name; });
}

const ViewerStyle* findStyle(plotStyles style)
{
  return find([style](const ViewerStyle& entry) { return entry.style == style; });
}

const ViewerStyle& viewerStyle(plotStyles style)
{
  const ViewerStyle* known = findStyle(style);
  return known ? *known : *findStyle(reservedStyle1);
}

const ViewerStyle& styleOf(const PlotMetaData& settings)
{
  return viewerStyle(settings.getPlotStyle());
}

PageColumns pageColumns(const PlotMetaData& settings, vtkIdType columns)
{
  return {static_cast<std::size_t>(columns), settings.yColumns.size(),
          settings.parameterColumns.size(), settings.getLimitColumVisibility()};
}

bool showsColoursOfRuns(const ViewerStyle& style)
{
  return style.hasSeries || style.unit == ChartUnit::Runs;
}

QString titleOf(const ViewerStyle& style)
{
  return QCoreApplication::translate("ViewerStyles", style.title);
}

} // namespace Talmesh::app
