#ifndef RunTracer_h
#define RunTracer_h

#include "vtk/IntervalSink.h"
#include "vtk/PenReach.h"
#include "vtk/RunBits.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace Talmesh
{
/// Where an item's coordinates lie among pixels: pixel = coordinate * scale + shift.
struct PixelMap
{
  double scaleX = 1.0;
  double shiftX = 0.0;
  double scaleY = 1.0;
  double shiftY = 0.0;
};

/// A polyline of consecutive points, and how often it counts.
struct CountedRun
{
  std::int64_t first = 0;
  std::int64_t count = 0;
  std::int64_t weight = 1;
};

/// Turns polylines into the intervals that they cover in each column of a grid. A column may be a
/// part of a pixel's width.
class RunTracer
{
public:
  struct Pen
  {
    double width = 1.0;      ///< pixels
    double dotSize = 0.0;    ///< pixels across a point that has no line, 0 for none
    int columnsPerPixel = 1; ///< across; the grid has as many columns
  };

  /// @param target gets the intervals; it has @p columns columns of @p rows pixels
  RunTracer(IntervalSink& target, int columns, int rows, const Pen& pen);

  /// Adds a run, every part of a column once. Lines break at coordinates that are no finite numbers
  /// and at points whose entry of @p broken, if there is such a list, is not 0.
  void trace(const float* points, const unsigned char* broken, const CountedRun& run,
             const PixelMap& map);

private:
  struct Position
  {
    double x; ///< in elements
    double y; ///< pixels
  };

  static Position positionOf(const float* point, const PixelMap& toElements);
  std::int64_t traceForward(const float* points, std::int64_t count, const PixelMap& toElements);
  void addPoint(const Position& point);
  void endPiece();
  void segment(const Position& from, const Position& to);
  void segmentWithin(const Position& from, const Position& to);
  void enter(const Position& from, const Position& to, int first, int last);
  void include(const Position& point);
  void dot(const Position& center);
  void flushToBits();
  void finish(std::int32_t weight);
  bool reachColumns(int& first, int& end);
  void forgetStretch();

  IntervalSink& sink;
  int columns;
  int rows;
  Pen pen;
  PenReach reach;
  double shift; ///< of elements against columns

  /// The present stretch.
  std::vector<float> border;
  std::vector<float> lowest;
  std::vector<float> highest;
  int firstElement;
  int lastElement = -1;

  std::vector<float> low; ///< of the columns, with the pen's width
  std::vector<float> high;

  std::optional<RunBits> bits;
  bool usesBits = false;
  Position previous{};
  int pieceLength = 0;
  int direction = 0;
};
} // namespace Talmesh

#endif
