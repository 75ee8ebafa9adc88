#ifndef ReducedMetaData_h
#define ReducedMetaData_h

#include <boost/functional/hash.hpp>

#include <cstddef>

/// The part of the settings that decides which remembered axis window belongs to a plot: a key for
/// boost::unordered_map.
struct ReducedMetaData
{
  /// First plotted x column of the table.
  int xColumn = 0;
  /// First plotted y column of the table.
  int yColumn = 0;
  /// Plot style (a plotStyles value).
  int plotStyle = 0;
};

inline bool operator==(const ReducedMetaData& a, const ReducedMetaData& b)
{
  return a.xColumn == b.xColumn && a.yColumn == b.yColumn && a.plotStyle == b.plotStyle;
}

inline bool operator!=(const ReducedMetaData& a, const ReducedMetaData& b)
{
  return !(a == b);
}

/// Equal keys have equal hashes; found by boost::hash through argument-dependent lookup.
inline std::size_t hash_value(const ReducedMetaData& key)
{
  std::size_t seed = 0;
  boost::hash_combine(seed, key.xColumn);
  boost::hash_combine(seed, key.yColumn);
  boost::hash_combine(seed, key.plotStyle);
  return seed;
}

#endif
