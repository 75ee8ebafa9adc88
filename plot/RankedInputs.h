#ifndef RankedInputs_h
#define RankedInputs_h

#include <utility>
#include <vector>

namespace Talmesh::plot
{

/// What, besides the table itself, the ranked data of the plot table were computed from.
struct RankedInputs
{
  int stride = 1;
  std::vector<int> parameterColumns;
  std::vector<std::pair<double, double>> parameterBounds;
};

inline bool operator==(const RankedInputs& a, const RankedInputs& b)
{
  return a.stride == b.stride && a.parameterColumns == b.parameterColumns &&
         a.parameterBounds == b.parameterBounds;
}

} // namespace Talmesh::plot

#endif
