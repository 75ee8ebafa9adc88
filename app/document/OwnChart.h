#ifndef OwnChart_h
#define OwnChart_h

#include <functional>
#include <string>
#include <vector>

class PlotContainer;

namespace Talmesh::app
{

/// How a chart comes to be in a container that is in a scene. Called again, each does the same
/// again.
struct ChartSteps
{
  /// Hands data and settings to the container. Draws nothing.
  std::function<void(PlotContainer&)> fill;
  /// Adds to each drawing of the container what a redraw does not know; empty for nothing.
  std::function<void(PlotContainer&)> complete;
};

/// A chart that a study composes by itself. Texts are UTF-8.
struct OwnChart
{
  /// Names the chart in menus and for programs.
  std::string id;
  /// What is shown and where the numbers come from.
  std::string description;
  /// What the variants differ in; empty without any.
  std::string variantLabel;
  /// What the user can choose from; may be empty.
  std::vector<std::string> variants;
  int firstVariant = 0;
  /// The steps of a variant; 0 for a chart without variants.
  std::function<ChartSteps(int variant)> steps;
};

} // namespace Talmesh::app

#endif
