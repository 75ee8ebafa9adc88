#include "external/PlotMetaData.h"
#include "plot/AppliedLook.h"
#include "plot/AxisScales.h"
#include "plot/Decorations.h"
#include "plot/Margins.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "plot/PlotTexts.h"
#include "plot/PointAppearance.h"
#include "plot/Redraw.h"

#include <vtkAxis.h>

bool PlotContainer::getUseIndexForXSeries() const
{
  return d->useIndexForXSeries;
}

void PlotContainer::setUseIndexForXSeries(bool use)
{
  d->useIndexForXSeries = use;
  dirty();
}

const PlotOptions& PlotContainer::getOptions() const
{
  return d->options;
}

void PlotContainer::setOptions(const PlotOptions& options)
{
  d->options = options;
  Talmesh::plot::dressInLook(*d);
  Talmesh::plot::markDirty(*d);
}

void PlotContainer::setColor(int r, int g, int b, int a)
{
  d->metaData->color = {r, g, b, a};
  useColors(nullptr);
}

void PlotContainer::setColorScheme(std::string column, bool solid)
{
  Talmesh::plot::setColorScheme(*d, column, solid);
}

void PlotContainer::useColors(vtkPlot* plot)
{
  Talmesh::plot::useColors(*d, plot);
}

void PlotContainer::setMarkerStyle(int style)
{
  Talmesh::plot::setMarkerStyle(*d, style);
}

void PlotContainer::setPointSize(double size)
{
  Talmesh::plot::setPointSize(*d, size);
}

void PlotContainer::setLineWidth(double width)
{
  Talmesh::plot::setLineWidth(*d, width);
}

void PlotContainer::setPlotTitle(std::string title)
{
  Talmesh::plot::setPlotTitle(*d, title);
}

void PlotContainer::setXLabel(std::string label)
{
  Talmesh::plot::setXLabel(*d, label);
}

void PlotContainer::setYLabel(std::string label)
{
  Talmesh::plot::setYLabel(*d, label);
}

void PlotContainer::setXTickLabels(std::vector<std::string> labels)
{
  Talmesh::plot::setXTickLabels(*d, labels);
}

void PlotContainer::setXTickPosition(const std::vector<double>& positions)
{
  Talmesh::plot::setXTickPositions(*d, positions);
}

void PlotContainer::setLogScaleY(bool log)
{
  Talmesh::plot::setLogScaleY(*d, log);
}

void PlotContainer::LogScaleX()
{
  Talmesh::plot::applyLogScaleX(*d);
}

bool PlotContainer::showsLogScaleX() const
{
  return Talmesh::plot::showsLogScale(*d, vtkAxis::BOTTOM);
}

bool PlotContainer::showsLogScaleY() const
{
  return Talmesh::plot::showsLogScale(*d, vtkAxis::LEFT);
}

void PlotContainer::setShowLegend(bool legend)
{
  Talmesh::plot::setShowLegend(*d, legend);
}

void PlotContainer::drawDecorations(vtkContextScene*)
{
  Talmesh::plot::drawDecorations(*d);
}

void PlotContainer::setDecorations(vtkSmartPointer<vtkTable> decorations, bool show)
{
  d->decorationTable = decorations;
  d->showDecorations = show;
}

bool PlotContainer::getShowDecorations() const
{
  return d->showDecorations;
}

void PlotContainer::setShowDecorations(bool show)
{
  d->showDecorations = show;
}

int PlotContainer::getLeftMargin() const
{
  return d->leftMargin;
}

int PlotContainer::getTopMargin() const
{
  return d->topMargin;
}

int PlotContainer::getBottomMargin() const
{
  return d->bottomMargin;
}

int PlotContainer::getRightMargin() const
{
  return d->rightMargin;
}

int PlotContainer::getHorizontalGutter() const
{
  return d->horizontalGutter;
}

int PlotContainer::getVerticalGutter() const
{
  return d->verticalGutter;
}

void PlotContainer::setLeftMargin(int pixels)
{
  d->leftMargin = pixels;
  updateMargins();
}

void PlotContainer::setTopMargin(int pixels)
{
  d->topMargin = pixels;
  updateMargins();
}

void PlotContainer::setBottomMargin(int pixels)
{
  d->bottomMargin = pixels;
  updateMargins();
}

void PlotContainer::setRightMargin(int pixels)
{
  d->rightMargin = pixels;
  updateMargins();
}

void PlotContainer::setHorizontalGutter(int pixels)
{
  d->horizontalGutter = pixels;
  updateMargins();
}

void PlotContainer::setVerticalGutter(int pixels)
{
  d->verticalGutter = pixels;
  updateMargins();
}

void PlotContainer::updateMargins()
{
  Talmesh::plot::updateMargins(*d);
}
