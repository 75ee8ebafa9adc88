#ifndef RunShape_h
#define RunShape_h

#include <cstddef>

namespace Talmesh::stats
{
/// How the values of one observation vary: what its Pearson correlation with others is made of.
struct RunShape
{
  enum Kind
  {
    varying,
    /// The values differ by no more than 1e-12 of the largest magnitude: rounding noise, or less.
    steady,
    /// Some value is not finite.
    undefined
  };
  Kind kind = steady;
  /// A power of two that brings the values near 1, so that no square overflows or vanishes.
  double scale = 1.0;
  /// Mean of the scaled values.
  double mean = 0.0;
  /// 1 / length of the vector of scaled values less their mean; 0 unless varying.
  double inverseLength = 0.0;
};

/// No values at all count as steady.
RunShape shapeOf(const double* values, std::size_t count);

/// Writes the values scaled and less their mean, as a vector of length 1; zeros unless varying.
void writeUnitVector(const double* values, std::size_t count, const RunShape& shape, double* unit);

/// Sum of the products, added up in an order that depends on `count` alone.
double dotProduct(const double* a, const double* b, std::size_t count);

/// 1 - r for the Pearson correlation r, clamped to [0, 2]. Where r does not exist: 0 for two steady
/// observations, 1 for exactly one, 2 for any that is undefined.
/// @param correlation product of the unit vectors; read only where both vary
double shapeDistance(const RunShape& a, const RunShape& b, double correlation);
} // namespace Talmesh::stats

#endif
