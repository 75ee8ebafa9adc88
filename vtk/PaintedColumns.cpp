#include "vtk/PaintedColumns.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Talmesh
{
namespace
{
/// Light that is left to come through, below which lines further down cannot be seen: a quarter of
/// one of 255 levels.
constexpr float unseen = 1.0f / 1024.0f;

/// The next number, from one on, that is not closed, if each closed one points to a later one.
int nextOpen(int* next, int number)
{
  while (next[number] != number)
  {
    next[number] = next[next[number]];
    number = next[number];
  }
  return number;
}
} // namespace

PaintedColumns::PaintedColumns(int columnCount, int rowCount, double lineOpacity)
    : columns(columnCount)
    , rows(rowCount)
    , opacity(static_cast<float>(lineOpacity))
    , pixels(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows), Paint{0, 0, 0, 1})
    , next(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows + 1))
    , nextRow(static_cast<std::size_t>(rows + 1))
    , closedOfRow(static_cast<std::size_t>(rows), 0)
{
  std::iota(nextRow.begin(), nextRow.end(), 0);
  for (int column = 0; column < columns; ++column)
    std::iota(rowsOf(column), rowsOf(column) + rows + 1, 0);
}

void PaintedColumns::setColor(const std::array<unsigned char, 3>& over)
{
  for (std::size_t i = 0; i < over.size(); ++i)
    color[i] = static_cast<float>(over[i]) / 255.0f;
}

bool PaintedColumns::isOpen(double low, double high)
{
  const int first = static_cast<int>(std::clamp(low, 0.0, static_cast<double>(rows)));
  return nextOpen(nextRow.data(), first) < std::min(high, static_cast<double>(rows));
}

void PaintedColumns::add(int first, int end, const float* low, const float* high,
                         std::int32_t weight)
{
  repeats = weight;
  whole = opacityOf(1.0f);
  for (int column = first; column < end; ++column)
  {
    const float bottom = std::max(low[column], 0.0f);
    const float top = std::min(high[column], static_cast<float>(rows));
    if (low[column] < high[column] && bottom < top)
      addTo(column, bottom, top);
  }
}

/// Of lines that cover a part of a pixel.
float PaintedColumns::opacityOf(float part) const
{
  const float once = opacity * part;
  return repeats == 1 ? once : 1.0f - std::pow(1.0f - once, static_cast<float>(repeats));
}

int* PaintedColumns::rowsOf(int column)
{
  return next.data() + static_cast<std::size_t>(column) * static_cast<std::size_t>(rows + 1);
}

void PaintedColumns::addTo(int column, float low, float high)
{
  int* const open = rowsOf(column);
  Paint* const pixel =
      pixels.data() + static_cast<std::size_t>(column) * static_cast<std::size_t>(rows);
  for (int row = nextOpen(open, static_cast<int>(low)); static_cast<float>(row) < high;
       row = nextOpen(open, row + 1))
  {
    const auto bottom = static_cast<float>(row);
    const bool inside = bottom >= low && bottom + 1.0f <= high;
    const float part =
        inside ? whole : opacityOf(std::min(high, bottom + 1.0f) - std::max(low, bottom));
    if (coverFromBelow(pixel[row], part))
      close(open, row);
  }
}

/// @return whether the pixel is opaque now
bool PaintedColumns::coverFromBelow(Paint& pixel, float part) const
{
  const float seen = pixel[3] * part;
  for (std::size_t i = 0; i < color.size(); ++i)
    pixel[i] += seen * color[i];
  pixel[3] -= seen;
  return pixel[3] < unseen;
}

void PaintedColumns::close(int* open, int row)
{
  open[row] = row + 1;
  if (++closedOfRow[static_cast<std::size_t>(row)] == columns)
    nextRow[static_cast<std::size_t>(row)] = row + 1;
}
} // namespace Talmesh
