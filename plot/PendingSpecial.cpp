#include "plot/PlotContainer.h"

void PlotContainer::drawScatterPlotWithErrorBars(vtkContextScene*) {}
void PlotContainer::setSobolPostprocessResult(SobolPostProcessResult*, bool, bool, unsigned long,
                                              unsigned long)
{
}
void PlotContainer::setupStackedSobol(bool) {}
void PlotContainer::setResidualPlot(FitRun*, FitSettings*, std::vector<std::vector<double>>&, bool,
                                    bool)
{
}
void PlotContainer::setDistribution(Distribution*) {}
