#ifndef RunScaling_h
#define RunScaling_h

#include <cstddef>

/// In-place rescaling of one column of stacked runs: run t is the rows t * stride to
/// (t + 1) * stride - 1. Rows behind the last whole run are never touched, and a stride below 1
/// means that there is no whole run. All arithmetic is plain IEEE: nothing guards against
/// infinities or NaN.
namespace Talmesh::stats
{
/// Number of whole runs in `rows` rows; 0 for a stride below 1.
std::size_t wholeRuns(std::size_t rows, int stride);

/// Multiplies every value of run t by factors[t]. `factors` holds one entry per whole run.
void scaleRuns(double* values, std::size_t rows, int stride, const double* factors);

/// Multiplies every value of a run by the reciprocal of the run's largest value, which counts as at
/// least 0: in a run without a positive value zeros become NaN and negative values -infinity.
/// NaN values never are the largest.
void normaliseRunsToMaximum(double* values, std::size_t rows, int stride);

/// values[r] = values[r] * by[r] for every row; the two columns may be the same.
void multiplyElementwise(double* values, const double* by, std::size_t rows);

/// values[r] = values[r] / by[r] for every row; the two columns may be the same.
void divideElementwise(double* values, const double* by, std::size_t rows);
} // namespace Talmesh::stats

#endif
