#ifndef RankedInputs_h
#define RankedInputs_h

#include <algorithm>
#include <cmath>
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

/// A bound that is NaN equals one that is NaN too: ranking again would change nothing.
inline bool operator==(const RankedInputs& a, const RankedInputs& b)
{
  const auto sameValue = [](double x, double y)
  { return x == y || (std::isnan(x) && std::isnan(y)); };
  const auto sameBounds = [&](const auto& x, const auto& y)
  { return sameValue(x.first, y.first) && sameValue(x.second, y.second); };
  return a.stride == b.stride && a.parameterColumns == b.parameterColumns &&
         std::equal(a.parameterBounds.begin(), a.parameterBounds.end(), b.parameterBounds.begin(),
                    b.parameterBounds.end(), sameBounds);
}

} // namespace Talmesh::plot

#endif
