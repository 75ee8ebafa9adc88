#include "external/PlotMetaData.h"

namespace
{

template <typename T>
bool sameValue(T a, T b)
{
  // The second half holds for two NaN only; without it they would announce a change for ever.
  return a == b || (a != a && b != b);
}

} // namespace

PlotMetaData::PlotMetaData(QObject* parent)
    : QObject(parent)
{
}

PlotMetaData::PlotMetaData(const PlotMetaData& other)
    : QObject(nullptr)
    , PlotMetaDataValues(other)
    , options(other.options)
{
}

PlotMetaData::~PlotMetaData() = default;

template <typename T>
void PlotMetaData::change(T& option, T value)
{
  if (sameValue(option, value))
    return;
  option = value;
  Q_EMIT redrawNeeded();
}

void PlotMetaData::setPlotStyle(plotStyles plotStyle)
{
  change(options.plotStyle, plotStyle);
}

void PlotMetaData::setStride(int stride)
{
  change(options.stride, stride);
}

void PlotMetaData::setPlotLine(bool on)
{
  change(options.plotLine, on);
}

void PlotMetaData::setLogX(bool on)
{
  change(options.logX, on);
}

void PlotMetaData::setLogParameterAxes(bool on)
{
  change(options.logParameterAxes, on);
}

void PlotMetaData::setUseDensity(bool on)
{
  change(options.useDensity, on);
}

void PlotMetaData::setCommonDensityScale(bool on)
{
  change(options.commonDensityScale, on);
}

void PlotMetaData::setShowQuantiles(bool on)
{
  change(options.showQuantiles, on);
}

void PlotMetaData::setKsThreshold(double threshold)
{
  change(options.ksThreshold, threshold);
}

void PlotMetaData::setPThreshold(double threshold)
{
  change(options.pThreshold, threshold);
}

void PlotMetaData::setLimitColumVisibility(bool on)
{
  change(options.limitColumVisibility, on);
}

void PlotMetaData::setLineWidth(double width)
{
  change(options.lineWidth, width);
}
