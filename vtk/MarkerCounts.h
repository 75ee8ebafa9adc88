#ifndef MarkerCounts_h
#define MarkerCounts_h

#include "vtk/OpacityImage.h"
#include "vtk/RunTracer.h"

#include <cstdint>
#include <vector>

/// The picture of thousands of markers, made from how many of them lie over each pixel instead of
/// by drawing them. Needs neither VTK nor a display.
namespace Talmesh
{
/// As VTK numbers them; any other number is a plus.
enum class SpriteShape
{
  Cross = 1,
  Plus = 2,
  Square = 3,
  Circle = 4,
  Diamond = 5
};

/// The pixels of a marker as the screen has them.
class MarkerSprite
{
public:
  /// @param pixels across, at least 1
  /// @param stroke width of the lines of crosses and pluses in pixels, thrice that if highlighted
  MarkerSprite(int shape, int pixels, bool highlighted, int stroke = 1);

  int size() const { return across; }
  /// Row by row from the lowest, not 0 where the marker is.
  const std::vector<unsigned char>& mask() const { return pixels; }

private:
  void set(int row, int column);
  void drawCross(int thickness);
  void drawPlus(int thickness);
  void drawFilled(int shape);

  int across;
  std::vector<unsigned char> pixels;
};

struct MarkersToCount
{
  const float* points = nullptr; ///< x and y in turn
  std::int64_t count = 0;
  const unsigned char* broken = nullptr; ///< points to leave out besides, one entry each
};

/// Draws a marker at every point whose coordinates are finite, all of one opacity.
OpacityImage drawMarkers(const MarkersToCount& markers, const PixelMap& map, int width, int height,
                         const MarkerSprite& sprite, double opacity);

/// Draws markers of opaque colours, red, green, blue and opacity for each point, later ones over
/// earlier ones. Pixels of four values, row by row from the lowest.
std::vector<unsigned char> drawColoredMarkers(const MarkersToCount& markers,
                                              const unsigned char* colors, const PixelMap& map,
                                              int width, int height, const MarkerSprite& sprite);
} // namespace Talmesh

#endif
