#include "app/runs/RunFeatures.h"

#include "app/runs/FilterSyntax.h"

#include <algorithm>
#include <array>
#include <limits>

namespace Talmesh::app
{

namespace
{

struct FeatureName
{
  RunFeature feature;
  const char* function;
};

constexpr std::array<FeatureName, 7> names = {{{RunFeature::Max, "max"},
                                               {RunFeature::Mean, "mean"},
                                               {RunFeature::Final, "final"},
                                               {RunFeature::Min, "min"},
                                               {RunFeature::First, "first"},
                                               {RunFeature::Peaks, "peaks"},
                                               {RunFeature::Period, "period"}}};

constexpr double ofTheRange = std::numeric_limits<double>::quiet_NaN();

} // namespace

const std::vector<RunFeature>& runFeatures()
{
  static const std::vector<RunFeature> all = []
  {
    std::vector<RunFeature> features;
    for (const FeatureName& name : names)
      features.push_back(name.feature);
    return features;
  }();
  return all;
}

double featureOf(RunFeature feature, const RunCourse& course)
{
  switch (feature)
  {
  case RunFeature::Max:
    return largestOf(course);
  case RunFeature::Mean:
    return meanOf(course);
  case RunFeature::Final:
    return finalOf(course);
  case RunFeature::Min:
    return smallestOf(course);
  case RunFeature::First:
    return firstOf(course);
  case RunFeature::Peaks:
    return static_cast<double>(peaksOf(course, ofTheRange).size());
  case RunFeature::Period:
    return periodOf(course, ofTheRange);
  }
  return std::numeric_limits<double>::quiet_NaN();
}

const char* functionOf(RunFeature feature)
{
  const auto* found =
      std::find_if(names.begin(), names.end(),
                   [feature](const FeatureName& name) { return name.feature == feature; });
  return found == names.end() ? "" : found->function;
}

std::string featureWords(RunFeature feature, const std::string& item)
{
  return std::string(functionOf(feature)) + '(' + filterName(item) + ')';
}

std::optional<NamedFeature> readFeature(std::string_view words)
{
  FilterNode node;
  if (!parseFilter(words, node).text.empty() || node.kind != FilterNode::Kind::Call ||
      node.children.size() != 1 || node.children.front().kind != FilterNode::Kind::Name)
    return {};
  const auto* found =
      std::find_if(names.begin(), names.end(),
                   [&node](const FeatureName& name) { return name.function == node.name; });
  if (found == names.end())
    return {};
  return NamedFeature{found->feature, node.children.front().name};
}

} // namespace Talmesh::app
