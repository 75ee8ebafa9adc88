#include "app/import/RunPoints.h"

#include <algorithm>
#include <cstring>

namespace Talmesh::app
{

namespace
{

constexpr int nothing = -1;
constexpr std::size_t fewestPlaces = 1024;

std::uint64_t mixed(std::uint64_t bits)
{
  // The finaliser of SplitMix64 (Steele, Lea and Flood 2014).
  bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9ULL;
  bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBULL;
  return bits ^ (bits >> 31U);
}

std::size_t hashOf(int run, double time)
{
  std::uint64_t bits = 0;
  std::memcpy(&bits, &time, sizeof bits);
  return static_cast<std::size_t>(mixed(bits + mixed(static_cast<std::uint32_t>(run))));
}

} // namespace

/// The place of a point, or the free one that it would have.
std::size_t RunPoints::placeOf(int run, double time) const
{
  const std::size_t last = places.size() - 1;
  std::size_t place = hashOf(run, time) & last;
  while (places[place] != nothing)
  {
    const auto point = static_cast<std::size_t>(places[place]);
    if (runs[point] == run && times[point] == time)
      break;
    place = (place + 1) & last;
  }
  return place;
}

/// Half of the places stay free, so that a search ends soon.
void RunPoints::grow()
{
  places.assign(std::max(fewestPlaces, 2 * places.size()), nothing);
  for (std::size_t point = 0; point < runs.size(); ++point)
    places[placeOf(runs[point], times[point])] = static_cast<int>(point);
}

int RunPoints::at(int run, double time)
{
  // The rows of a point often follow each other.
  if (latest != nothing && runs[static_cast<std::size_t>(latest)] == run &&
      times[static_cast<std::size_t>(latest)] == time)
    return latest;
  if (2 * (runs.size() + 1) > places.size())
    grow();
  int& point = places[placeOf(run, time)];
  if (point == nothing)
  {
    point = static_cast<int>(runs.size());
    runs.push_back(run);
    times.push_back(time);
  }
  latest = point;
  return latest;
}

} // namespace Talmesh::app
