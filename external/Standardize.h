#ifndef Standardize_h
#define Standardize_h

#include "../export/TalmeshPlotExport.h"

#include <vector>

/// Shifts and scales the values in place to zero mean and unit sample standard deviation (the sum
/// of squares divided by n - 1). Equal values, and a single one, become 0; an empty vector stays
/// empty. Any value that is not finite turns every value into NaN.
TALMESHPLOT_EXPORT void standardize(std::vector<double>& values);

#endif
