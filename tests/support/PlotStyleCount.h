#ifndef PlotStyleCount_h
#define PlotStyleCount_h

#include "external/PlotStyles.h"

/// How many plot styles there are. The tests that go through all of them also draw the number
/// beyond, which stands for every value without a style.
constexpr int plotStyleCount = parallelCoordinates + 1;

#endif
