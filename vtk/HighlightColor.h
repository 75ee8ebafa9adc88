#ifndef HighlightColor_h
#define HighlightColor_h

#include <array>

/// The colour of what is selected, wherever it is drawn.
namespace Talmesh
{
/// Red, green, blue and opacity, 0 to 255, of runs and points on top of the others.
inline constexpr std::array<unsigned char, 4> highlightColor{255, 50, 0, 150};

/// The same of rows on parallel coordinates: VTK's, as many of them lie on top of each other.
inline constexpr std::array<unsigned char, 4> highlightColorOfParallelLines{255, 0, 0, 100};

/// The red of runs, but of curves and opaque, 0 to 1. VTK makes 51 of its green, as on pages drawn
/// before.
inline constexpr std::array<double, 3> highlightShade{1.0, 0.2, 0.0};

/// How runs and points that are selected are drawn on top of the others.
struct Highlight
{
  std::array<unsigned char, 4> color = highlightColor;
  /// So much wider than those of the others their lines are, in pixels, and their markers larger.
  double widening = 2.7;
};

inline bool operator==(const Highlight& one, const Highlight& other)
{
  return one.color == other.color && one.widening == other.widening;
}
} // namespace Talmesh

#endif
