#ifndef KolmogorovSmirnov_h
#define KolmogorovSmirnov_h

#include "../stats/KolmogorovSmirnovFormulas.h"

#include <algorithm>
#include <cmath>
#include <iterator>

/// Two-sample Kolmogorov-Smirnov test of two samples, each sorted ascending.
///
/// The constructor walks both samples once; the ranges are not kept. Sortedness is not checked.
/// The distribution functions are those of `stats/KolmogorovSmirnovFormulas.h`, which states their
/// domains, exceptions and sources.
/// @tparam ItA, ItB forward iterators over values comparable as doubles
template <class ItA, class ItB>
class KolmogorovSmirnov
{
public:
  KolmogorovSmirnov(ItA firstA, ItA lastA, ItB firstB, ItB lastB)
      : distance(largestDistance(firstA, lastA, firstB, lastB))
      , size(Talmesh::stats::effectiveSampleSize(static_cast<double>(std::distance(firstA, lastA)),
                                                 static_cast<double>(std::distance(firstB, lastB))))
      , probability(pValue(distance, size))
  {
  }
  virtual ~KolmogorovSmirnov() = default;

  /// The largest distance D found by the walk, in [0, 1]; 0 when a sample is empty.
  /// A value found in both samples counts for the second sample first, so that two identical
  /// samples of m distinct values have D = 1/m, not 0.
  double statistic() const { return distance; }
  /// Probability of a distance of at least D when both samples come from one distribution.
  double pValue() const { return probability; }
  /// floor(m n / (m + n)) of the two sample sizes m and n.
  unsigned long effectiveSize() const { return size; }

  /// The p-value of a statistic `d` in [0, 1] at effective sample size `n`.
  static double pValue(double d, unsigned long n)
  {
    return Talmesh::stats::kolmogorovSmirnovPValue(d, n);
  }
  static double durbin(double d, unsigned long n) { return Talmesh::stats::durbin(d, n); }
  static double miller(double d, unsigned long n) { return Talmesh::stats::miller(d, n); }
  static double pelzGood(double d, unsigned long n) { return Talmesh::stats::pelzGood(d, n); }

private:
  static double largestDistance(ItA a, ItA lastA, ItB b, ItB lastB)
  {
    const double stepA = 1.0 / static_cast<double>(std::distance(a, lastA));
    const double stepB = 1.0 / static_cast<double>(std::distance(b, lastB));
    double difference = 0.0;
    double largest = 0.0;
    while (a != lastA && b != lastB)
    {
      // Ties, and NaN in either sample, advance the second sample.
      if (*b > *a)
      {
        difference += stepA;
        ++a;
      }
      else
      {
        difference -= stepB;
        ++b;
      }
      largest = std::max(largest, std::abs(difference));
    }
    return std::min(largest, 1.0);
  }

  double distance;
  unsigned long size;
  double probability;
};

#endif
