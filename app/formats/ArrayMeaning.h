#ifndef ArrayMeaning_h
#define ArrayMeaning_h

#include "app/formats/ArraySource.h"

#include <string>
#include <string_view>
#include <vector>

namespace Talmesh::app
{

/// What an axis of an array stands for.
enum class ArrayAxis
{
  Run,
  Time,
  Item
};

/// No array of a set.
inline constexpr std::size_t noArray = static_cast<std::size_t>(-1);

/// Which of a file's arrays say what the others mean, found by their names.
struct ArrayCompanions
{
  /// The times: one for each, or one for each run and time.
  std::size_t time = noArray;
  /// The names of items.
  std::size_t items = noArray;
  /// The names or numbers of runs.
  std::size_t runs = noArray;
  /// A row of parameters per run, and their names.
  std::size_t parameters = noArray;
  std::size_t parameterNames = noArray;

  bool contains(std::size_t array) const;
};

ArrayCompanions findCompanions(const std::vector<StoredArray>& arrays);

/// An array of values with the meaning of each of its axes, in the order of its shape.
struct ArrayMeaning
{
  std::vector<ArrayAxis> axes;
  /// Whether the names of axes or the lengths of companions tell so, rather than the order alone.
  bool told = false;
};

/// What the axes of an array with two or three of them mean: what their names say, then what the
/// lengths of the companions allow, then runs before times before items. Without a meaning when all
/// of them contradict each other.
ArrayMeaning meaningOf(const StoredArray& array, const std::vector<StoredArray>& arrays,
                       const ArrayCompanions& companions);

/// The extent of the axis of a meaning; 1 without that axis.
std::size_t extentOf(const StoredArray& array, const ArrayMeaning& meaning, ArrayAxis axis);

} // namespace Talmesh::app

#endif
