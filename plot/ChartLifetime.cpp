#include "plot/ChartLifetime.h"

#include "plot/AppliedLook.h"
#include "plot/AxisScales.h"
#include "plot/PlotState.h"
#include "vtk/HandlerScope.h"
#include "vtk/vtkSelectableChartXY.h"

#include <vtkAxis.h>
#include <vtkContextScene.h>

#include <QCoreApplication>
#include <QMetaObject>
#include <QPointer>

#include <utility>
#include <vector>

namespace Talmesh::plot
{

namespace
{

using ChartShelf = std::vector<vtkSmartPointer<vtkObjectBase>>;

/// Charts of all containers, also of those that are gone, that may still run a handler.
ChartShelf& shelf()
{
  static ChartShelf charts;
  return charts;
}

/// Not in place: who watches a chart may draw when it goes.
void emptyShelf()
{
  ChartShelf().swap(shelf());
}

/// Frees the charts once control is back in the event loop, or when there will be none any more. A
/// handler that runs an event loop of its own is still using what it has set aside.
void freeFromEventLoop(QCoreApplication* application)
{
  static QPointer<QCoreApplication> asked;
  static QPointer<QCoreApplication> watched;
  if (watched != application)
    QObject::connect(application, &QObject::destroyed, &emptyShelf);
  watched = application;
  if (asked == application)
    return;
  asked = application;
  const auto free = []
  {
    asked = nullptr;
    freeChartsSetAside();
  };
  QMetaObject::invokeMethod(application, free, Qt::QueuedConnection);
}

/// VTK has no operation for it; the values are those of its constructor.
void restoreAxis(vtkAxis* axis)
{
  axis->SetBehavior(vtkAxis::AUTO);
  axis->SetCustomTickPositions(nullptr, nullptr);
  axis->SetNumberOfTicks(-1);
  axis->SetTicksVisible(true);
  axis->SetLabelsVisible(true);
  axis->SetNotation(vtkAxis::STANDARD_NOTATION);
  axis->SetPrecision(2);
  axis->SetMargins(15, 5);
}

bool isMatrixCell(const PlotState& state)
{
  return state.chartXY && state.chartXY->GetParent() == state.chartMatrix;
}

} // namespace

vtkSmartPointer<vtkChartXY> makeXYChart(const PlotState& state)
{
  auto chart = vtkSmartPointer<vtkSelectableChartXY>::New();
  chart->SetRenderEmpty(true);
  chart->SetAnnotationLink(state.annotationLink);
  chart->SetGestures(state.gestures);
  dressInLook(state.options.look, chart);
  return chart;
}

void ensureStandaloneChart(PlotState& state)
{
  if (state.chartXY && !isMatrixCell(state))
  {
    // It may have been that of a summary.
    state.chartXY->SetAnnotationLink(state.annotationLink);
    return;
  }
  releaseChartXY(state);
  state.chartXY = makeXYChart(state);
  applyChartLooks(state);
}

void showChart(PlotState& state, vtkAbstractContextItem* chart, vtkContextScene* scene)
{
  state.sceneLink.watch(scene);
  chart->SetScene(scene);
  state.currentChart = chart;
}

vtkChartXY* reuseChartXY(PlotState& state, vtkContextScene* scene)
{
  leaveSobolChart(state);
  ensureStandaloneChart(state);
  showChart(state, state.chartXY, scene);
  state.chartXY->ClearPlots();
  state.chartXY->SetInteractive(true);
  restoreAxis(state.chartXY->GetAxis(vtkAxis::BOTTOM));
  restoreAxis(state.chartXY->GetAxis(vtkAxis::LEFT));
  dressInLook(state.options.look, state.chartXY);
  return state.chartXY;
}

void addToSceneItems(PlotState& state)
{
  vtkContextScene* scene = currentScene(state);
  if (!scene)
    return;
  for (unsigned int i = 0; i < scene->GetNumberOfItems(); ++i)
  {
    if (scene->GetItem(i) == state.currentChart)
      return;
  }
  scene->AddItem(state.currentChart);
}

vtkContextScene* currentScene(const PlotState& state)
{
  return state.currentChart ? state.currentChart->GetScene() : nullptr;
}

void forgetScene(PlotState& state, vtkContextScene* scene)
{
  vtkAbstractContextItem* const charts[] = {
      state.chartXY,  state.scatterPlotMatrix,   state.chartMatrix,
      state.chartXYZ, state.parallelCoordinates, state.currentChart};
  for (vtkAbstractContextItem* chart : charts)
  {
    if (chart && chart->GetScene() == scene)
      chart->SetScene(nullptr);
  }
  for (vtkObjectBase* object : shelf())
  {
    auto* chart = vtkAbstractContextItem::SafeDownCast(object);
    if (chart && chart->GetScene() == scene)
      chart->SetScene(nullptr);
  }
}

void releaseChartXY(PlotState& state)
{
  if (state.chartXY)
    setAside(state.chartXY);
  state.chartXY = nullptr;
}

void resetChartMatrix(PlotState& state, int columns, int rows)
{
  const ChartCells dropped = cellsOf(state.chartMatrix);
  for (const auto& cell : dropped)
    cell->RemoveAllObservers();
  if (isMatrixCell(state))
    releaseChartXY(state);
  state.chartMatrix->SetSize(vtkVector2i(0, 0));
  state.chartMatrix->ClearSpecificResizes();
  retireCells(dropped, state.chartMatrix->GetScene());
  state.chartMatrix->SetSize(vtkVector2i(columns, rows));
}

ChartCells cellsOf(vtkChartMatrix* matrix)
{
  ChartCells cells;
  for (vtkIdType i = 0; i < matrix->GetNumberOfItems(); ++i)
    cells.emplace_back(matrix->GetItem(i));
  return cells;
}

void retireCells(const ChartCells& cells, vtkContextScene* scene)
{
  for (const auto& cell : cells)
  {
    // Removal took the chart out of its scene, but a handler that is still running in it needs one.
    cell->SetScene(scene);
    setAside(cell);
  }
}

void leaveSobolChart(PlotState& state)
{
  if (state.chartXY && state.chartXY.Get() == state.sobolChart.Get())
    releaseChartXY(state);
}

bool showsSelectableRows(const PlotState& state)
{
  auto* chart = vtkChartXY::SafeDownCast(state.currentChart);
  if (!chart || state.table != state.tableOfResults.Get())
    return true;
  // The chart of a distribution takes no mouse.
  return chart != state.sobolChart.Get() && chart->GetInteractive();
}

void adoptCell(PlotState& state, int column, int row)
{
  releaseChartXY(state);
  state.chartXY = vtkChartXY::SafeDownCast(state.chartMatrix->GetChart(vtkVector2i(column, row)));
  applyChartLooks(state);
}

void setAside(vtkSmartPointer<vtkObjectBase> object)
{
  QCoreApplication* application = QCoreApplication::instance();
  if (!application)
    return;
  shelf().push_back(std::move(object));
  freeFromEventLoop(application);
}

void freeChartsSetAside()
{
  if (!HandlerScope::isOpen())
    emptyShelf();
}

} // namespace Talmesh::plot
