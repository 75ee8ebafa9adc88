#ifndef ChartLifetime_h
#define ChartLifetime_h

#include <vtkAbstractContextItem.h>
#include <vtkSmartPointer.h>

#include <vector>

class vtkChartMatrix;
class vtkChartXY;
class vtkContextScene;
class vtkObjectBase;

namespace Talmesh::plot
{

struct PlotState;

/// A new XY chart that shares the container's selection and paints its title even without plots.
vtkSmartPointer<vtkChartXY> makeXYChart(const PlotState& state);

/// Gives `state.chartXY` a chart of its own when it has none or when it is a cell of the chart
/// matrix, which belongs to a page of many charts.
void ensureStandaloneChart(PlotState& state);

/// Puts `chart` into `scene` and makes it the chart now shown. The scene's items stay as they are:
/// the widget replaces them.
void showChart(PlotState& state, vtkAbstractContextItem* chart, vtkContextScene* scene);

/// The XY chart, shown in `scene` (which may be null) and ready for other data: without plots and
/// with bottom and left axis as a new chart has them, so that nothing of a distribution or of Sobol
/// results shows through. Titles, the legend and the wish for a logarithmic left axis stay.
vtkChartXY* reuseChartXY(PlotState& state, vtkContextScene* scene);

/// Adds the chart now shown to the items of its scene, if it has one, unless it is one of them.
void addToSceneItems(PlotState& state);

/// The scene of the chart now shown, or null.
vtkContextScene* currentScene(const PlotState& state);

/// Clears the scene pointer of every chart that is in `scene`. For a scene that is dying.
void forgetScene(PlotState& state, vtkContextScene* scene);

/// Releases the stand-alone chart, as the styles do that draw none.
void releaseChartXY(PlotState& state);

/// Gives the chart matrix `columns` x `rows` fresh cells: no span, resize, title, range, log flag,
/// observer or mouse action of an earlier page survives. An XY chart that was one of the cells is
/// released. The charts dropped lose all their observers, so that a mouse handler still running in
/// one of them reports nothing to the new page; they keep their plots, which it may be walking.
void resetChartMatrix(PlotState& state, int columns, int rows);

using ChartCells = std::vector<vtkSmartPointer<vtkAbstractContextItem>>;

/// The charts that a matrix holds now.
ChartCells cellsOf(vtkChartMatrix* matrix);

/// Sets cells aside that their matrix has dropped, usable as before.
/// @param scene the scene in which they were
void retireCells(const ChartCells& cells, vtkContextScene* scene);

/// Releases an XY chart that was built from Sobol results: its axes and legend fit nothing else.
void leaveSobolChart(PlotState& state);

/// Whether the chart now shown draws rows that a selection can name. Those of Sobol results and of
/// the density of a distribution are none.
bool showsSelectableRows(const PlotState& state);

/// Makes the cell of the chart matrix at `column`, `row` the container's XY chart.
void adoptCell(PlotState& state, int column, int row);

/// Keeps `object` alive until control returns to the event loop, or until freeChartsSetAside(): a
/// redraw can run inside a mouse handler of the very chart that it replaces, and the handler can
/// end the container. Without a running application there is no such handler and nothing is kept.
void setAside(vtkSmartPointer<vtkObjectBase> object);

/// Frees what any container has set aside unless a handler of a chart is running. Programs that
/// draw often and seldom return to the event loop would keep every chart otherwise.
void freeChartsSetAside();

} // namespace Talmesh::plot

#endif
