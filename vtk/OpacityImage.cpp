#include "vtk/OpacityImage.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace Talmesh
{
namespace
{
/// Columns that are made together, so that their values for a row share cache lines.
constexpr int block = 32;

void sumColumn(const std::vector<PixelCounts>& counts, const CoverageScale& scale, int firstPart,
               int parts, int rows, std::uint32_t* sums)
{
  std::fill(sums, sums + rows, 0);
  for (int part = firstPart; part < firstPart + parts; ++part)
  {
    std::int32_t count = 0;
    for (int row = 0; row < rows; ++row)
    {
      for (const PixelCounts& one : counts)
        count += one.column(part)[row];
      sums[row] += scale.opacity(count);
    }
  }
}

unsigned char levelOf(std::uint32_t sum, int parts)
{
  const std::uint32_t whole = 65535u * static_cast<std::uint32_t>(parts);
  return static_cast<unsigned char>((sum * 255u + whole / 2) / whole);
}
} // namespace

OpacityImage emptyImage(int width, int height)
{
  OpacityImage image{width, height, {}};
  if (width > 0 && height > 0)
    image.values.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0);
  return image;
}

void fillColumns(OpacityImage& image, const std::vector<PixelCounts>& counts,
                 const CoverageScale& scale, int parts, int first, int end)
{
  const auto rows = static_cast<std::size_t>(image.height);
  std::vector<std::uint32_t> sums(rows * block);
  for (; first < end; first += block)
  {
    const int columns = std::min(block, end - first);
    for (int i = 0; i < columns; ++i)
      sumColumn(counts, scale, parts * (first + i), parts, image.height,
                sums.data() + rows * static_cast<std::size_t>(i));
    for (std::size_t row = 0; row < rows; ++row)
    {
      unsigned char* const line =
          image.values.data() + row * static_cast<std::size_t>(image.width) + first;
      for (int i = 0; i < columns; ++i)
        line[i] = levelOf(sums[rows * static_cast<std::size_t>(i) + row], parts);
    }
  }
}
} // namespace Talmesh
