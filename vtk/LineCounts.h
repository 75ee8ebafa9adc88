#ifndef LineCounts_h
#define LineCounts_h

#include "vtk/OpacityImage.h"
#include "vtk/RunTracer.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// The picture of thousands of lines of one colour and opacity, made from how many of them cross
/// each pixel instead of by drawing them. Needs neither VTK nor a display.
namespace Talmesh
{
struct LinesToCount
{
  const float* points = nullptr;         ///< x and y in turn
  const unsigned char* broken = nullptr; ///< points at which lines break besides, one entry each
  std::vector<CountedRun> runs;
};

struct LinePen
{
  double width = 1.0;   ///< pixels
  double opacity = 1.0; ///< of one line
  double dotSize = 0.0; ///< pixels across a point that has no line, 0 for none
  int finest = 4;       ///< the most columns of a pixel that are drawn for themselves: 1, 2 or 4
};

/// Draws every run as a line with a round pen. What one run covers twice counts once; a run of
/// weight m counts as if it were drawn m times. Runs of less than two points have no line.
///
/// Each column of pixels, or a half or a quarter of it where runs and pixels are few enough, is
/// covered from the lowest to the highest place that the run reaches in it, in parts of pixels at
/// both ends. So a peak of a single sample colours its column, and a steep line is as wide as a
/// level one.
OpacityImage drawLines(const LinesToCount& lines, const PixelMap& map, int width, int height,
                       const LinePen& pen);

/// How many threads count so many points, each with counters of its own for so many parts of
/// pixels. Those of all threads together stay below a bound, if one thread's do.
std::size_t workersFor(std::int64_t points, std::int64_t counters);

/// Into how many columns each of @p width pixels is divided for so many runs.
int columnsPerPixel(const LinePen& pen, std::size_t runs, int width, int height);
} // namespace Talmesh

#endif
