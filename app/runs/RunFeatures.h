#ifndef RunFeatures_h
#define RunFeatures_h

#include "app/runs/RunCourse.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Talmesh::app
{

/// A number that tells one run's course of one item from another's.
enum class RunFeature
{
  Max,
  Mean,
  Final,
  Min,
  First,
  /// How many there are of the standard prominence.
  Peaks,
  Period
};

/// All of them, those first that say most of any course.
const std::vector<RunFeature>& runFeatures();

/// How many of the first ones stand for an item where none is named.
constexpr std::size_t leadingFeatures = 3;

/// NaN where there is none.
double featureOf(RunFeature feature, const RunCourse& course);

/// The name of its function in filters.
const char* functionOf(RunFeature feature);

/// What a filter calls it: `max(TetR)`.
/// @param item its name, UTF-8
std::string featureWords(RunFeature feature, const std::string& item);

/// A feature of the item that its name in words names.
struct NamedFeature
{
  RunFeature feature;
  std::string item;
};

/// Reads such words; nothing where they are something else.
std::optional<NamedFeature> readFeature(std::string_view words);

} // namespace Talmesh::app

#endif
