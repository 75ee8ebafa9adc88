#include "plot/PlotContainer.h"

#include "external/PlotMetaData.h"
#include "plot/ChartLifetime.h"
#include "plot/ColumnReduction.h"
#include "plot/DrawnRows.h"
#include "plot/MatrixSelection.h"
#include "plot/PlotState.h"
#include "plot/PlotTable.h"
#include "plot/PointChart3D.h"
#include "plot/Redraw.h"
#include "plot/SelectionFlags.h"
#include "plot/SettingsSignals.h"
#include "plot/vtkSelectionUpdateCallback.h"
#include "plot/vtkShiftScaleCallback.h"
#include "vtk/vtkSelectableChartMatrix.h"
#include "vtk/vtkSelectableParallelCoordinates.h"
#include "vtk/vtkSelectableScatterPlotMatrix.h"

#include <vtkCommand.h>

#include <exception>
#include <iostream>
#include <utility>

using Talmesh::plot::PlotState;

namespace
{

void makeCharts(PlotState& state)
{
  state.annotationLink = vtkSmartPointer<vtkAnnotationLink>::New();
  state.summaryLink = vtkSmartPointer<vtkAnnotationLink>::New();
  state.chartXY = Talmesh::plot::makeXYChart(state);
  auto matrix = vtkSmartPointer<vtkSelectableScatterPlotMatrix>::New();
  matrix->SetGestures(state.gestures);
  state.scatterPlotMatrix = matrix;
  state.chartXYZ = Talmesh::plot::makeChart3D();
  state.chartMatrix = vtkSmartPointer<vtkSelectableChartMatrix>::New();
  state.extractSelectedRows = vtkSmartPointer<vtkExtractSelectedRows>::New();
  state.currentChart = state.chartXY;
  state.chartXY->AddPlot(vtkChart::POINTS);
}

void copyPlainFields(PlotState& to, const PlotState& from)
{
  to.columnItems = from.columnItems;
  to.parameterBounds = from.parameterBounds;
  to.coordinateWindows = from.coordinateWindows;
  to.windowScales = from.windowScales;
  to.showDecorations = from.showDecorations;
  to.leftMargin = from.leftMargin;
  to.topMargin = from.topMargin;
  to.bottomMargin = from.bottomMargin;
  to.rightMargin = from.rightMargin;
  to.horizontalGutter = from.horizontalGutter;
  to.verticalGutter = from.verticalGutter;
  to.useIndexForXSeries = from.useIndexForXSeries;
  to.options = from.options;
}

} // namespace

PlotContainer::PlotContainer(QObject* parent)
    : QObject(parent)
    , PlotSeams(std::make_unique<PlotState>())
{
  d->metaData = new PlotMetaData(this);
  d->coordinateWindows.max_load_factor(1.0F);
  d->table = vtkSmartPointer<vtkTable>::New();
  makeCharts(*d);
  d->parallelCoordinates = vtkSmartPointer<vtkSelectableParallelCoordinates>::New();
  d->parallelCoordinates->SetAnnotationLink(d->annotationLink);
  connectParts();
}

PlotContainer::PlotContainer(const PlotContainer& other)
    : QObject(other.parent())
    , PlotSeams(std::make_unique<PlotState>())
{
  copyPlainFields(*d, *other.d);
  d->selectionUpdatePending = true;
  d->metaData = new PlotMetaData(*other.d->metaData);
  d->metaData->setParent(this);
  Talmesh::plot::replaceTable(*d, Talmesh::plot::deepCopyOf(other.d->table));
  makeCharts(*d);
  connectParts();
  if (vtkSmartPointer<vtkIntArray> selected = vtk::TakeSmartPointer(other.getCurrentSelection()))
    Talmesh::plot::appendFlagColumn(*d, selected);
  selectionFromFlagColumn();
  redraw();
}

PlotContainer::~PlotContainer()
{
  d->selectionUpdateCallback->Container = nullptr;
  d->shiftScaleCallback->Container = nullptr;
  d->annotationLink->RemoveObserver(d->selectionUpdateCallback);
  if (d->chartXY)
    d->chartXY->RemoveObserver(d->shiftScaleCallback);
  // A container can die inside a mouse handler of its own charts.
  if (d->currentChart)
    Talmesh::plot::setAside(d->currentChart);
  delete d->metaData;
  d.reset();
  Talmesh::plot::freeChartsSetAside();
}

void PlotContainer::connectParts()
{
  connect(d->metaData, SIGNAL(redrawNeeded()), this, SLOT(redraw()));
  d->selectionUpdateCallback = vtkSmartPointer<vtkSelectionUpdateCallback>::New();
  d->selectionUpdateCallback->Container = this;
  d->annotationLink->AddObserver(vtkCommand::AnnotationChangedEvent, d->selectionUpdateCallback);
  d->shiftScaleCallback = vtkSmartPointer<vtkShiftScaleCallback>::New();
  d->shiftScaleCallback->Container = this;
  d->matrixSelection.watch(d->scatterPlotMatrix->GetAnnotationLink());
  d->matrixSelection.selected = [this](vtkSelection* selection)
  { Talmesh::plot::adoptMatrixSelection(*d, selection); };
  d->summarySelection.watch(d->summaryLink);
  d->summarySelection.selected = [this](vtkSelection* selection)
  { Talmesh::plot::adoptSummarySelection(*d, selection); };
  d->sceneLink.sceneDied = [this](vtkContextScene* scene)
  { Talmesh::plot::forgetScene(*d, scene); };
}

void PlotContainer::setScene(vtkContextScene* scene)
{
  if (!d->currentChart)
    return;
  if (vtkContextScene* before = d->currentChart->GetScene())
  {
    before->ClearItems();
    Talmesh::plot::forgetScene(*d, before);
  }
  Talmesh::plot::showChart(*d, d->currentChart, scene);
}

void PlotContainer::redraw()
{
  if (sender())
  {
    drawOrReport();
    return;
  }
  try
  {
    Talmesh::plot::redraw(*d);
  }
  catch (...)
  {
    Talmesh::plot::unblockSettings(*d);
    throw;
  }
}

void PlotContainer::drawOrReport()
{
  try
  {
    Talmesh::plot::redraw(*d);
  }
  catch (const std::exception& problem)
  {
    Talmesh::plot::unblockSettings(*d);
    std::cerr << "void PlotContainer::redraw(): " << problem.what() << std::endl;
  }
}

void PlotContainer::dirty()
{
  Talmesh::plot::markDirty(*d);
}

void PlotContainer::annotationUpdate()
{
  d->selectionUpdateCallback->Execute(d->annotationLink, 0, nullptr);
}

void PlotContainer::setPlotStyle(plotStyles plotStyle)
{
  d->metaData->setPlotStyle(plotStyle);
}

vtkAbstractContextItem* PlotContainer::getItem() const
{
  return d->currentChart;
}

PlotMetaData* PlotContainer::getMetaData() const
{
  return d->metaData;
}

vtkChartXY* PlotContainer::getChartXY() const
{
  return d->chartXY;
}

vtkChartMatrix* PlotContainer::getChartMatrix() const
{
  return d->chartMatrix;
}
