#ifndef RunPoints_h
#define RunPoints_h

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Talmesh::app
{

/// Numbers the points of runs, those of a run at a time, in the order in which they appear.
class RunPoints
{
public:
  /// The number of a point, a new one if it has none.
  int at(int run, double time);

  std::size_t size() const { return runs.size(); }
  const std::vector<int>& runOfPoint() const { return runs; }

private:
  std::size_t placeOf(int run, double time) const;
  void grow();

  std::vector<int> runs;
  std::vector<double> times;
  /// The points by what they hash to, or else the next free place; as many as a power of two.
  std::vector<int> places;
  int latest = -1;
};

} // namespace Talmesh::app

#endif
