#ifndef OwnChart_h
#define OwnChart_h

#include <functional>
#include <string>
#include <vector>

class PlotContainer;

namespace Talmesh::app
{

/// A chart that a study draws by itself, and that a redraw of its container does not know. Texts
/// are UTF-8.
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
  /// Fills a container that is in a scene with the data and draws the chart. Called again after a
  /// change of the settings or the variant. Does not render.
  std::function<void(PlotContainer&, int variant)> draw;
};

} // namespace Talmesh::app

#endif
