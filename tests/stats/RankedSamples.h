#ifndef RankedSamples_h
#define RankedSamples_h

#include "stats/RankedDensity.h"

#include <cmath>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

/// Helpers of the tests of ranked parameters.
namespace RankedSamples
{
using List = std::vector<double>;
using Lists = std::vector<std::optional<List>>;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

inline double normalDensity(double x, double mean, double deviation)
{
  const double z = (x - mean) / deviation;
  return std::exp(-0.5 * z * z) / (deviation * std::sqrt(2.0 * 3.14159265358979323846));
}

/// What the kernel was asked for, with the exact estimate as its answer.
struct KernelCalls
{
  int count = 0;
  List sources;
  List targets;
  double bandwidth = 0.0;

  Talmesh::stats::KernelDensity exact()
  {
    return [this](List& from, List& to, double h, List& density)
    {
      ++count;
      sources = from;
      targets = to;
      bandwidth = h;
      for (std::size_t i = 0; i < to.size(); ++i)
      {
        double sum = 0.0;
        for (double source : from)
        {
          sum += normalDensity(to[i], source, h);
        }
        density[i] = sum / static_cast<double>(from.size());
      }
    };
  }
};

inline List copy(const Talmesh::stats::DoubleBuffer& buffer)
{
  return List(buffer.begin(), buffer.end());
}

/// The estimate's columns, and how the kernel was asked for it.
struct Density
{
  KernelCalls calls;
  List densities;
  List locations;
};

inline Density estimate(const List& sorted,
                        const std::optional<std::pair<double, double>>& bounds = {})
{
  Density result;
  Talmesh::stats::DoubleBuffer densities(Talmesh::stats::densityLocations);
  Talmesh::stats::DoubleBuffer locations(Talmesh::stats::densityLocations);
  Talmesh::stats::estimateDensity(sorted, Talmesh::stats::parameterSupport(sorted, bounds),
                                  result.calls.exact(), densities, locations);
  result.densities = copy(densities);
  result.locations = copy(locations);
  return result;
}

/// 1, 2, ..., count.
inline List countingList(std::size_t count)
{
  List values(count);
  for (std::size_t i = 0; i < count; ++i)
  {
    values[i] = static_cast<double>(i + 1);
  }
  return values;
}

/// (1^2, 2^2, ..., count^2) / 10.
inline List squares(std::size_t count)
{
  List values = countingList(count);
  for (double& value : values)
  {
    value = value * value / 10.0;
  }
  return values;
}
} // namespace RankedSamples

#endif
