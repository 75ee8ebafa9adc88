#ifndef ViewerStyles_h
#define ViewerStyles_h

#include "external/PlotStyles.h"

#include <vtkType.h>

#include <QString>

#include <cstddef>
#include <string_view>
#include <vector>

class PlotMetaData;

namespace Talmesh::app
{

/// What the extent of a page depends on.
struct PageColumns
{
  std::size_t all = 0;
  std::size_t chosen = 0; ///< over x, or as axes
  std::size_t parameters = 0;
  /// Where a style can leave columns out, it shows x, y and the parameters only.
  bool limited = false;
};

/// The controls of the plot panel that act in a style; that of the y columns always does.
struct PlotControls
{
  bool x = true;
  bool z = false;
  bool lines = false;
  bool legend = false;
  bool logX = false;
  /// Not with error bars, which are lengths on a linear axis.
  bool logY = false;
};

/// Room around the charts, in pixels.
struct PageRoom
{
  int top = 30;
  int right = 30;
  int bottom = 45;
  /// Between the columns of a page.
  int betweenColumns = 28;
};

/// What a point or a line of a chart stands for in a table of runs; on a page of several charts, of
/// the one with the chosen columns.
enum class ChartUnit
{
  /// A row, or a run drawn over its points.
  Rows,
  Runs,
  /// A run where the x axis has one value for each.
  RunsOverRuns,
  /// A run unless an axis is time.
  RunsUnlessOverTime
};

/// One plot style as the viewer offers it: everything that depends on the style.
struct ViewerStyle
{
  plotStyles style;
  /// The enumerator, which sessions keep, the command line takes and gallery files are named by.
  const char* name;
  /// What the window calls it, in English.
  const char* title;
  /// In panel and menu.
  bool offered = true;
  PlotControls controls;
  /// The y columns are series over x, which further series, groups and bands complete.
  bool hasSeries = false;
  /// The y columns are axes of the chart.
  bool hasColumnsAsAxes = false;
  /// The page sets the parameters of selected runs against those of the others, of which it holds
  /// copies, along axes that can be logarithmic.
  bool comparesRuns = false;
  /// The page has curves, which densities and bands can accompany.
  bool showsDistributions = false;
  ChartUnit unit = ChartUnit::Rows;
  PageRoom room;
  /// How many charts, or parallel axes, a page has.
  std::size_t (*charts)(const PageColumns& columns);
  /// As how many points a row of the table is painted.
  std::size_t (*pointsOfRow)(const PageColumns& columns);
};

/// All plot styles in the order of their values.
const std::vector<ViewerStyle>& viewerStyles();

/// The style of an enumerator's name, or null.
const ViewerStyle* findStyle(std::string_view name);

/// The entry of a style, or null for a value that is no enumerator.
const ViewerStyle* findStyle(plotStyles style);

/// The entry of a style; a value that is no enumerator counts as reserved.
const ViewerStyle& viewerStyle(plotStyles style);

/// The entry of the style that the settings ask for.
const ViewerStyle& styleOf(const PlotMetaData& settings);

/// What the extent of the page of a table with that many columns depends on.
PageColumns pageColumns(const PlotMetaData& settings, vtkIdType columns);

/// Whether charts of a style can have runs in colours of groups.
bool showsColoursOfRuns(const ViewerStyle& style);

/// What the window calls a style, in the user's language.
QString titleOf(const ViewerStyle& style);

} // namespace Talmesh::app

#endif
