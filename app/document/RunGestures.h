#ifndef RunGestures_h
#define RunGestures_h

#include "app/document/GestureSelection.h"
#include "app/document/TableRuns.h"
#include "app/runs/GestureWords.h"
#include "vtk/SelectionGesture.h"

#include <QPointer>

#include <functional>
#include <string>
#include <utility>

class PlotContainer;

namespace Talmesh::app
{

/// Has the mouse select runs in the charts of a container, and say beside it which run is there.
///
/// A gesture that is about no runs is left to the charts.
class RunGestures
{
public:
  /// Selects the runs that are meant, and answers whether it could.
  using Select = std::function<bool(const PointedAt& meant, RunCombination how)>;

  explicit RunGestures(Select selectThem);
  ~RunGestures();
  RunGestures(const RunGestures&) = delete;
  RunGestures& operator=(const RunGestures&) = delete;

  /// Turns to another container, not owned; null for none.
  void follow(PlotContainer* container);

  /// What says how many pixels of the scene make one of the usual size, where it is seen; without
  /// it, one does.
  void setPixelRatio(std::function<double()> says) { pixelRatio = std::move(says); }
  /// Which runs a rectangle means: `Through` or `Inside`.
  void setRule(GestureRule wanted) { chosenRule = wanted; }
  GestureRule rule() const { return chosenRule; }
  void setTool(SelectionTool wanted);
  SelectionTool tool() const { return chosenTool; }

private:
  void leave();
  bool take(const SelectionGesture& gesture);
  double reach() const;

  Select select;
  std::function<double()> pixelRatio;
  QPointer<PlotContainer> followed;
  GestureRule chosenRule = GestureRule::Through;
  SelectionTool chosenTool = SelectionTool::Rectangle;
};

} // namespace Talmesh::app

#endif
