#ifndef PlotState_h
#define PlotState_h

#include "external/CoordinateWindow.h"
#include "external/ReducedMetaData.h"
#include "external/TypedConcentrationName.h"
#include "plot/AxisScales.h"
#include "plot/AxisWindows.h"
#include "plot/DerivedInputs.h"
#include "plot/DistributionGroup.h"
#include "plot/DrawingSteps.h"
#include "plot/KsStatistics.h"
#include "plot/MatrixSelection.h"
#include "plot/PlotOptions.h"
#include "plot/SceneLink.h"
#include "plot/SummaryTable.h"
#include "vtk/GestureHandling.h"
#include "vtk/PictureStore.h"

#include <vtkAbstractContextItem.h>
#include <vtkAnnotationLink.h>
#include <vtkChartMatrix.h>
#include <vtkChartParallelCoordinates.h>
#include <vtkChartXY.h>
#include <vtkChartXYZ.h>
#include <vtkDoubleArray.h>
#include <vtkExtractSelectedRows.h>
#include <vtkIntArray.h>
#include <vtkPlot.h>
#include <vtkScalarsToColors.h>
#include <vtkScatterPlotMatrix.h>
#include <vtkSmartPointer.h>
#include <vtkStringArray.h>
#include <vtkTable.h>
#include <vtkWeakPointer.h>

#include <boost/shared_ptr.hpp>
#include <boost/unordered_map.hpp>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

struct LinePlotTable;
class PlotMetaData;
class vtkSelectionUpdateCallback;
class vtkShiftScaleCallback;

namespace Talmesh::plot
{

using CoordinateWindows = boost::unordered_map<ReducedMetaData, CoordinateWindow>;

/// Everything that a PlotContainer knows. The container owns one; builders and operations are free
/// functions over it, so that each can be read and tested without the others.
///
/// Pointers are null unless their comment says otherwise.
struct PlotState
{
  /// The plot data, never null: one column per quantity, one row per sample.
  vtkSmartPointer<vtkTable> table;
  /// Rank, density and further data tables. Entries may be null.
  std::vector<vtkSmartPointer<vtkTable>> derivedTables;
  /// Typed name of each data column of line-plot data.
  std::vector<Talmesh::TypedConcentrationName> columnItems;
  /// Whether drawings include the lines of decorationTable.
  bool showDecorations = false;
  /// (lower, upper) of the parameter columns that are not constant.
  std::vector<std::pair<double, double>> parameterBounds;
  /// Never null while the container lives.
  vtkSmartPointer<vtkSelectionUpdateCallback> selectionUpdateCallback;
  /// Never null while the container lives.
  vtkSmartPointer<vtkShiftScaleCallback> shiftScaleCallback;
  /// Decoration lines, one column each; the last column is their common x.
  vtkSmartPointer<vtkTable> decorationTable;
  /// Cluster number of each run.
  vtkSmartPointer<vtkIntArray> clusterMembership;
  /// Colours of the points of the special plots.
  vtkSmartPointer<vtkScalarsToColors> pointColors;
  /// The settings, never null while the container lives, which owns them.
  PlotMetaData* metaData = nullptr;
  /// What the next XY chart takes over from the one before it.
  ChartLooks looks;
  /// The axis window that the user last gave each configuration of columns and style.
  CoordinateWindows coordinateWindows;
  /// Null while the scatter-plot matrix or the 3-D chart is shown; a cell of `chartMatrix` while
  /// one of its pages is.
  vtkSmartPointer<vtkChartXY> chartXY;
  /// The chart now shown.
  vtkSmartPointer<vtkAbstractContextItem> currentChart;
  /// The charts of styles 3, of the pages (5, 6, 8), of style 4 and of style 9.
  vtkSmartPointer<vtkScatterPlotMatrix> scatterPlotMatrix;
  vtkSmartPointer<vtkChartMatrix> chartMatrix;
  vtkSmartPointer<vtkChartXYZ> chartXYZ;
  /// Null in a copied container.
  vtkSmartPointer<vtkChartParallelCoordinates> parallelCoordinates;
  /// Custom labels of the bottom axis and, in units of x, where they stand.
  vtkSmartPointer<vtkStringArray> xTickLabels;
  vtkSmartPointer<vtkDoubleArray> xTickPositions;
  /// The row filter that a container makes for itself, a copy too. No operation reads it.
  vtkSmartPointer<vtkExtractSelectedRows> extractSelectedRows;
  /// The selection of table rows that all charts share, never null.
  vtkSmartPointer<vtkAnnotationLink> annotationLink;
  /// The record whose arrays the table uses in place, shared with the client.
  boost::shared_ptr<LinePlotTable> linePlotTable;
  int leftMargin = 80;       ///< pixels
  int topMargin = 20;        ///< pixels
  int bottomMargin = 40;     ///< pixels
  int rightMargin = 20;      ///< pixels
  int horizontalGutter = 28; ///< pixels
  int verticalGutter = 28;   ///< pixels
  /// The next selection page first runs the selection-update callback.
  bool selectionUpdatePending = false;
  /// The row index stands in for the x series.
  bool useIndexForXSeries = false;
  /// One test result per ranked parameter; empty before a test.
  std::vector<KsStatistics> ksResults;
  /// The samples of those results; empty after tests that followed no selection.
  std::vector<TestedSamples> testedSamples;
  /// What a client says of the parameters in place of those results; none if it says nothing.
  std::optional<std::vector<ParameterTest>> parameterTests;
  /// What the selection page draws in place of the data sets of the derived tables, with ascending
  /// values that are all numbers; none for those.
  std::optional<std::vector<DistributionGroup>> distributionGroups;
  /// Quartiles of the runs, one row per position within a run.
  vtkSmartPointer<vtkTable> quartileTable;

  /// The scales on which the windows of `coordinateWindows` were recorded.
  boost::unordered_map<ReducedMetaData, WindowScales> windowScales;
  /// What the plot table was last ranked with; none before the first time.
  std::optional<RankedInputs> rankedInputs;
  /// What `quartileTable` was computed from; none before the first time.
  std::optional<QuartileInputs> quartileInputs;
  /// The scenes that the charts were put into.
  SceneLink sceneLink;
  /// The tie to the selection that the scatter-plot matrix keeps for itself.
  MatrixSelection matrixSelection;
  /// What some styles draw in place of the table.
  SummaryTable summary;
  /// The selection of the rows of the summary, never null, and its tie to that of the container.
  vtkSmartPointer<vtkAnnotationLink> summaryLink;
  MatrixSelection summarySelection;
  /// Pictures of runs that the next charts of the same runs take over, never null.
  std::shared_ptr<Talmesh::PictureStore> pictures = std::make_shared<Talmesh::PictureStore>();
  /// The decoration lines now in the XY chart.
  std::vector<vtkWeakPointer<vtkPlot>> decorationPlots;
  /// The chart last built from Sobol results, whose plots the reserved styles keep.
  vtkWeakPointer<vtkChartXY> sobolChart;
  /// The table last made of Sobol results or of a distribution.
  vtkWeakPointer<vtkTable> tableOfResults;
  /// What the program has otherwise than a container does by itself.
  PlotOptions options;
  /// Counts the redraws completed, so that a drawing notices when one ran inside it. One that an
  /// exception ended does not count: the drawing around it still has a page to fill.
  unsigned long drawings = 0;
  /// What clients do in every redraw. A copied container has none.
  DrawingSteps steps;
  /// What the program does with gestures in all charts, never null. A copied container's does
  /// nothing.
  std::shared_ptr<Talmesh::GestureHandling> gestures = std::make_shared<Talmesh::GestureHandling>();
};

} // namespace Talmesh::plot

#endif
