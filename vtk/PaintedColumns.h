#ifndef PaintedColumns_h
#define PaintedColumns_h

#include "vtk/IntervalSink.h"

#include <array>
#include <cstddef>
#include <vector>

namespace Talmesh
{
/// Pixels in columns, painted under one colour after another: what lies under opaque paint costs
/// nothing.
class PaintedColumns : public IntervalSink
{
public:
  /// Red, green, blue, 0 to 1 times the opacity, and the light that comes through.
  using Paint = std::array<float, 4>;

  PaintedColumns(int columns, int rows, double opacity);

  /// Of what is added next.
  void setColor(const std::array<unsigned char, 3>& over);

  /// Whether light comes through anywhere from one height to another.
  bool isOpen(double low, double high);

  void add(int first, int end, const float* low, const float* high, std::int32_t weight) override;

  const Paint& at(int column, int row) const
  {
    return pixels[static_cast<std::size_t>(column) * static_cast<std::size_t>(rows) +
                  static_cast<std::size_t>(row)];
  }

private:
  float opacityOf(float part) const;
  int* rowsOf(int column);
  void addTo(int column, float low, float high);
  bool coverFromBelow(Paint& pixel, float part) const;
  void close(int* open, int row);

  int columns;
  int rows;
  float opacity;
  std::array<float, 3> color{};
  std::int32_t repeats = 1;
  float whole = 0.0f; ///< opacity of a pixel that is covered entirely
  std::vector<Paint> pixels;
  std::vector<int> next;        ///< row of each column that is not closed, see nextOpen()
  std::vector<int> nextRow;     ///< that is open in any column
  std::vector<int> closedOfRow; ///< columns
};
} // namespace Talmesh

#endif
