#ifndef PlotWishes_h
#define PlotWishes_h

#include "external/PlotStyles.h"

#include <optional>
#include <string>
#include <vector>

namespace Talmesh::app
{

/// What a plot should show, by name. Names are UTF-8; empty for the default.
struct PlotWishes
{
  std::optional<plotStyles> style;
  std::string x;
  std::vector<std::string> y;
  std::string z;
};

/// What the viewer should open first.
struct OpeningWishes : PlotWishes
{
  /// The table to open, named by the bytes that the system knows it by; empty for the example
  /// study.
  std::string file;
  /// Width and height of the picture in pixels; 0 for the default.
  int width = 0;
  int height = 0;
};

} // namespace Talmesh::app

#endif
