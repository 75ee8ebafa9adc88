#ifndef DerivedInputs_h
#define DerivedInputs_h

#include <vtkType.h>

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

/// A column of the plot table as it was at some moment. No two changes of any columns have one
/// time.
struct ColumnVersion
{
  int column = -1;
  vtkMTimeType changed = 0; ///< 0 where there is no such column
};

/// What the quartiles were computed from.
struct QuartileInputs
{
  int stride = 1;
  ColumnVersion x;
  ColumnVersion y;
};

inline bool operator==(const ColumnVersion& a, const ColumnVersion& b)
{
  return a.column == b.column && a.changed == b.changed;
}

inline bool operator==(const QuartileInputs& a, const QuartileInputs& b)
{
  return a.stride == b.stride && a.x == b.x && a.y == b.y;
}

} // namespace Talmesh::plot

#endif
