#ifndef PlotLook_h
#define PlotLook_h

#include "../vtk/HighlightColor.h"

#include <array>
#include <string>
#include <vector>

/// How the charts of a container look apart from what is drawn: text, colours, ticks. The values
/// here are the library's own look; a program sets another one through PlotOptions::look.
///
/// Lengths are units of the scene: pixels of the screen, points (1/72 inch) on paper.
struct PlotLook
{
  /// Red, green, blue and opacity, 0 to 255.
  using Color = std::array<unsigned char, 4>;

  static constexpr int usualTextSize = 12;

  /// The size of most text; what the library writes larger or smaller than that keeps its
  /// proportion to it. At least 1.
  int textSize = usualTextSize;
  /// The name of a TrueType file that all text is written in, or nothing for VTK's Arial. One that
  /// cannot be read is not noticed before text is painted, which then is missing.
  std::string fontFile;
  /// Of text, axes and ticks, and of the lines behind the data.
  Color foreground{0, 0, 0, 255};
  Color grid{242, 242, 242, 255};
  /// Of several series, in turn; nothing for the colours that each kind of chart has by itself.
  std::vector<Color> series;
  /// Of the range, the middle half and the median of all runs.
  std::array<Color, 3> bands{{{148, 148, 255, 255}, {64, 64, 255, 255}, {0, 0, 0, 255}}};
  /// How selected runs and points are drawn.
  Talmesh::Highlight highlight;
  /// Linear axes are labelled at multiples of 1, 2 or 5 times a power of ten, as many as the text
  /// leaves room for. Otherwise ticks begin at the end of an axis, as many as its length in pixels
  /// is divided into whatever the text.
  bool ticksFollowText = false;
  /// The axes of ECDFs are labelled, and named "ECDF". Otherwise they have a name alone, "Ecdf".
  bool labelsEcdfs = false;
};

#endif
