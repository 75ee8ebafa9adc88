#ifndef DistributionGroup_h
#define DistributionGroup_h

#include <array>
#include <vector>

/// The colours in which the page draws selected runs and others by itself.
constexpr std::array<unsigned char, 3> colorOfSelectedRuns = {255, 51, 0};
constexpr std::array<unsigned char, 3> colorOfOtherRuns = {12, 153, 229};

/// Runs of which a client has the selection page draw how their parameters are distributed.
struct DistributionGroup
{
  /// For each parameter of the settings' list a value of every run, in any order. Equal ones count
  /// as often as they come; NaN is no value.
  std::vector<std::vector<double>> values;
  /// Red, green and blue of its curves.
  std::array<unsigned char, 3> color = {0, 0, 0};
};

#endif
