#ifndef RoundTicks_h
#define RoundTicks_h

#include <cstddef>
#include <string>
#include <vector>

namespace Talmesh::stats
{

/// Places on an axis that are multiples of a round step: 1, 2 or 5 times a power of ten.
class RoundTicks
{
public:
  /// @param low the smaller end of the axis, finite as `high`
  /// @param high above `low` by at least 1e-12 times the larger of both
  RoundTicks(double low, double high);

  /// Takes the smallest round step that is not below `least`, which is above 0.
  void take(double least);
  double step() const { return taken; }

  /// The multiples within the ends, rising; at most 1,000.
  std::vector<double> positions() const;
  /// The number of a position, with the decimals that the step needs, so that all labels of an axis
  /// have equally many; as 2.5e6 where the ends are very large or small.
  std::string label(double position) const;
  /// Characters of the longest label.
  std::size_t longestLabel() const;

private:
  double low;
  double high;
  double taken;
};

} // namespace Talmesh::stats

#endif
