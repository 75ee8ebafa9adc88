#ifndef PenReach_h
#define PenReach_h

#include <vector>

namespace Talmesh
{
/// What a line covers in the columns of a grid, given where its middle runs: the pen is an ellipse
/// as high as its width says and a whole number of columns wide.
class PenReach
{
public:
  /// Where a line runs that goes one way, element by element: the height at which it enters each
  /// from the left, NaN if it does not, and what its samples reach within, an empty interval if
  /// none lies there. An element is a column, or lies half a column beside one; element padding()
  /// is that of column 0. Borders have one entry more than elements.
  struct Stretch
  {
    const float* border;
    const float* lowest;
    const float* highest;
  };

  /// @param width of the pen in pixels
  PenReach(double width, int columnsPerPixel);

  /// Columns that the pen's width takes.
  int columns() const { return taps; }
  /// Elements that a stretch must have before column 0 and behind the last one.
  int padding() const { return taps / 2 + 1; }

  /// Writes the interval that the line covers in each column of [first, end), an empty one where
  /// there is no line.
  void cover(const Stretch& stretch, int first, int end, float* low, float* high) const;

private:
  /// What reaches a column from beside it, as high as the pen is at that distance.
  struct Tap
  {
    int offset; ///< from the column
    float height;
  };

  float heightAt(double distance) const;
  void coverThin(const Stretch& stretch, int first, int end, float* low, float* high) const;
  void coverWide(const Stretch& stretch, int first, int end, float* low, float* high) const;
  void coverMiddle(const Stretch& stretch, int first, int end, float* low, float* high) const;

  double width;
  int taps;
  std::vector<Tap> borderTaps;
  std::vector<Tap> sampleTaps;
};
} // namespace Talmesh

#endif
