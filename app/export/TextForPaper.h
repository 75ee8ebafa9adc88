#ifndef TextForPaper_h
#define TextForPaper_h

#include "plot/PlotLook.h"

#include <array>
#include <optional>

class PlotContainer;
class VtkPlotWidget;

namespace Talmesh::app
{

/// While it lives, the chart that a widget shows has text of another size, and as much room around
/// it as that takes.
class TextForPaper
{
public:
  /// @param size in units of the scene; none to leave all as it is
  TextForPaper(VtkPlotWidget& widget, std::optional<int> size);
  ~TextForPaper();
  TextForPaper(const TextForPaper&) = delete;
  TextForPaper& operator=(const TextForPaper&) = delete;

private:
  /// Margins left, top, right and bottom, then gutters.
  using Room = std::array<int, 6>;

  Room room() const;
  void apply(int textSize, const Room& room);

  VtkPlotWidget& widget;
  PlotContainer& dressed;
  const int sizeBefore;
  const Room roomBefore;
};

} // namespace Talmesh::app

#endif
