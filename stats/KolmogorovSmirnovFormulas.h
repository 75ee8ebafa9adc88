#ifndef KolmogorovSmirnovFormulas_h
#define KolmogorovSmirnovFormulas_h

#include "../export/TalmeshPlotExport.h"

/// Distribution functions of the two-sided Kolmogorov-Smirnov statistic D_n for an (effective)
/// sample size n, and the p-value chosen among them. `KolmogorovSmirnov` offers the same functions
/// as members.
///
/// All functions take d in [0, 1]; below 0 the event {D_n < d} is impossible, above 1 it is
/// certain, and NaN gives NaN.
namespace Talmesh::stats
{
/// P(D_n < d) by Durbin's matrix method in the arrangement of Marsaglia, Tsang and Wang (2003), J.
/// Stat. Softw. 8(18), with their closed form for n > 99 and n d^2 > 3.76. Where the fractional
/// part h of the lattice exceeds 1/2, the corner of the matrix gains 2h - 1 itself, not its m-th
/// power. The product is not rescaled: n of many hundreds can overflow.
/// @throws std::bad_alloc when the matrix, of order 2 floor(n d + 1) - 1, does not fit into memory.
TALMESHPLOT_EXPORT double durbin(double d, unsigned long n);

/// Two-sided upper tail P(D_n >= d), approximated as twice the one-sided tail (Miller 1956).
/// The sum runs from j = 1: the term (1 - d)^n of j = 0 is not part of it. So it is 0 for d = 0, by
/// its factor 2 d, where the tail is 1. n = 0 gives NaN, and so does a last term whose base
/// 1 - d - j/n is rounded to below zero.
/// @throws std::overflow_error when a log-gamma value overflows.
TALMESHPLOT_EXPORT double miller(double d, unsigned long n);

/// P(D_n < d) by the first two terms of the series of Pelz and Good (1976), each summed to a
/// relative tolerance of 1e-5. Ends for every input; where all terms underflow the result is 0.
TALMESHPLOT_EXPORT double pelzGood(double d, unsigned long n);

/// Probability of a distance of at least d between two samples of effective size n; in [0, 1], or
/// NaN where `miller` gives NaN.
TALMESHPLOT_EXPORT double kolmogorovSmirnovPValue(double d, unsigned long n);

/// floor(countA * countB / (countA + countB)), computed in double precision; 0 for two empty
/// samples.
TALMESHPLOT_EXPORT unsigned long effectiveSampleSize(double countA, double countB);
} // namespace Talmesh::stats

#endif
