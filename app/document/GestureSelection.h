#ifndef GestureSelection_h
#define GestureSelection_h

#include "app/runs/GestureWords.h"
#include "vtk/SelectionGesture.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

class PlotContainer;

/// What the mouse points at in the charts of a container, as runs of its table.
namespace Talmesh::app
{

class TableRuns;

/// Pixels that a line or point may be away from the mouse, where pixels have their usual size.
constexpr double pointingReach = 6.0;

/// What to say beside the mouse: "Run 17", or "Run 17, TetR: 4.5, 8.55".
std::string textBeside(const TableRuns& runs, std::size_t run);
std::string textBeside(const TableRuns& runs, std::size_t run, const std::string& column,
                       const DrawnPoint& point);

/// The runs that a gesture means.
struct PointedAt
{
  /// The condition that selects them.
  std::string words;
  /// For each run whether it is one of them, where that is known without asking the words.
  std::optional<std::vector<bool>> runs{};
};

/// A single run.
PointedAt meantByRun(const TableRuns& runs, std::size_t run);

/// The runs that a gesture means. A click means the run drawn
/// nearest to it, within a few pixels.
/// @param rule of rectangles; where no lines are drawn, points go through
/// @param reach pixels of the scene that a click may be away
/// @return empty words for a click beside everything, which changes nothing; `none`, or a condition
/// that no run meets, for what was drawn around nothing; none where it is not about the runs of
/// this table
std::optional<PointedAt> meantByGesture(const PlotContainer& container, const TableRuns& runs,
                                        const SelectionGesture& gesture, GestureRule rule,
                                        double reach = pointingReach);

/// What to say of the run that is drawn nearest to a place.
/// @param place a click there
/// @return as the words above
std::optional<std::string> nearestRun(const PlotContainer& container, const TableRuns& runs,
                                      const SelectionGesture& place, double reach = pointingReach);

} // namespace Talmesh::app

#endif
