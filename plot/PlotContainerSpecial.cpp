#include "external/Distribution.h"
#include "external/FitRun.h"
#include "external/FitSettings.h"
#include "external/PlotMetaData.h"
#include "external/SobolPostProcessResult.h"
#include "plot/DistributionChart.h"
#include "plot/ErrorBarChart.h"
#include "plot/FitParameterPage.h"
#include "plot/MultiPlotPage.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "plot/PlotTable.h"
#include "plot/Residuals.h"
#include "plot/SelectionPage.h"
#include "plot/SettingsSignals.h"
#include "plot/SobolChart.h"
#include "plot/SobolTables.h"

void PlotContainer::drawMulitPlot(vtkContextScene* scene)
{
  Talmesh::plot::drawMultiPlotPage(*d, scene);
}

void PlotContainer::drawSelectionCdfPlot(vtkContextScene* scene)
{
  Talmesh::plot::drawSelectionPage(*d, scene);
}

void PlotContainer::drawFitParameterDistributionPlot(vtkContextScene* scene)
{
  Talmesh::plot::drawFitParameterPage(*d, scene);
}

void PlotContainer::drawScatterPlotWithErrorBars(vtkContextScene* scene)
{
  Talmesh::plot::drawErrorBarChart(*d, scene);
}

void PlotContainer::setSobolPostprocessResult(SobolPostProcessResult* result, bool atTimePoint,
                                              bool total, unsigned long timePointIndex,
                                              unsigned long outputIndex)
{
  using namespace Talmesh::plot;
  if (!result)
    return;
  const SettingsSilence silence(*d);
  const SobolIndex index = total ? SobolIndex::Total : SobolIndex::FirstOrder;
  if (atTimePoint)
  {
    replaceTable(*d, sobolTimePointTable(*result, index, timePointIndex));
    d->metaData->title = sobolTimePointTitle(*result, index, timePointIndex);
  }
  else
  {
    replaceTable(*d, sobolTimeSeriesTable(*result, index, outputIndex));
    d->metaData->title = sobolTimeSeriesTitle(*result, index, outputIndex);
  }
  setupStackedSobol(total);
}

void PlotContainer::setupStackedSobol(bool total)
{
  const Talmesh::plot::SettingsSilence silence(*d);
  Talmesh::plot::buildSobolChart(*d, total);
}

void PlotContainer::setResidualPlot(FitRun* run, FitSettings* settings,
                                    std::vector<std::vector<double>>& predictions, bool scaled,
                                    bool sideBySide)
{
  using namespace Talmesh::plot;
  if (!run || !settings)
    return;
  const SettingsSilence silence(*d);
  const ResidualOptions options{scaled, sideBySide};
  normalizePredictions(*settings, predictions);
  replaceTable(*d, residualTable(*run, *settings, predictions, options));
  drawResiduals(*d, predictions.size(), settings->dataKind() == FitSettings::timeCourse, options);
}

void PlotContainer::setDistribution(Distribution* distribution)
{
  if (!distribution)
    return;
  const Talmesh::plot::SettingsSilence silence(*d);
  Talmesh::plot::drawDensityCurve(*d, Talmesh::plot::densityCurve(*distribution));
}
