#ifndef SmallTails_h
#define SmallTails_h

/// Logarithms of probabilities that are too small for doubles.
namespace Talmesh::stats
{
/// Below, sums of products of probabilities lose digits on the way.
constexpr double smallestSafeP = 1e-290;

/// Natural logarithm of erfc(x), for any finite x. Relative error of erfc(x) below 1e-12 where that
/// is above 1e-300; below, its logarithm is right to 1e-15 of its size.
double logErfc(double x);

/// Natural logarithm of the upper incomplete gamma function Q(a, x) = Gamma(a, x) / Gamma(a), for a
/// from 1/2 to 100 and x >= 0; right as `logErfc`.
double logGammaQ(double a, double x);
} // namespace Talmesh::stats

#endif
