#include "plot/PlotContainer.h"

void PlotContainer::generateRankedParameters(vtkSmartPointer<vtkTable>, std::size_t) {}
void PlotContainer::ksTestSelection(unsigned long, unsigned long) {}
void PlotContainer::generateQuartiles() {}
void PlotContainer::clusterTimeSeries(int, int) {}
void PlotContainer::selectionsFromClusters(std::string const&, std::vector<ParameterSelection*>&) {}
void PlotContainer::scaleColumn(double*, int) {}
void PlotContainer::scaleRelativeToMaxWithinTrajectory(int) {}
void PlotContainer::scaleColumnByColumn(int, int, bool) {}
void PlotContainer::drawFitParameterDistributionPlot(vtkContextScene*) {}
