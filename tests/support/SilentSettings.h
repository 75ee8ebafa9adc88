#ifndef SilentSettings_h
#define SilentSettings_h

#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"

/// Write a setting without drawing it. The settings speak afterwards.
inline void storeStyle(PlotContainer& container, int style)
{
  container.getMetaData()->blockSignals(true);
  container.getMetaData()->setPlotStyle(static_cast<plotStyles>(style));
  container.getMetaData()->blockSignals(false);
}

inline void storeStride(PlotContainer& container, int stride)
{
  container.getMetaData()->blockSignals(true);
  container.getMetaData()->setStride(stride);
  container.getMetaData()->blockSignals(false);
}

#endif
