#include "vtk/LineCounts.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <thread>

namespace Talmesh
{
namespace
{
/// Below this a second thread costs more than it saves.
constexpr std::int64_t pointsWorthAThread = 20000;
constexpr unsigned mostThreads = 8;
/// Runs that a thread takes at a time.
constexpr std::size_t share = 8;
/// What parts of columns may cost: so many runs through columns, and so many counts of 4 bytes.
constexpr double mostCrossings = 2.0e6;
constexpr double mostCounts = 4.0e6;
/// Columns that are made together, so that their values for a row share cache lines.
constexpr int block = 32;

unsigned threadsFor(std::int64_t work)
{
  const std::int64_t wanted = 1 + work / pointsWorthAThread;
  const unsigned there = std::clamp(std::thread::hardware_concurrency(), 1u, mostThreads);
  return static_cast<unsigned>(std::min<std::int64_t>(wanted, there));
}

/// Runs @p work with 0 to @p count - 1, each in a thread of its own.
template <typename Work>
void inParallel(unsigned count, const Work& work)
{
  std::vector<std::thread> threads;
  for (unsigned i = 1; i < count; ++i)
    threads.emplace_back(work, i);
  work(0);
  for (std::thread& thread : threads)
    thread.join();
}

int columnsPerPixel(int parts, std::size_t runs, int width, int height)
{
  const double crossings = static_cast<double>(runs) * width;
  const double counts = static_cast<double>(width) * height;
  while (parts > 1 && (parts * crossings > mostCrossings || parts * counts > mostCounts))
    parts /= 2;
  return parts;
}

std::int64_t pointCount(const std::vector<CountedRun>& runs)
{
  return std::accumulate(runs.begin(), runs.end(), std::int64_t(0),
                         [](std::int64_t sum, const CountedRun& run) { return sum + run.count; });
}

std::int64_t totalWeight(const std::vector<CountedRun>& runs, std::int64_t most)
{
  return std::accumulate(runs.begin(), runs.end(), std::int64_t(0),
                         [most](std::int64_t sum, const CountedRun& run)
                         { return sum + std::min(run.weight, most); });
}

/// The counts of all threads made into opacities.
class OpacityMaker
{
public:
  OpacityMaker(const std::vector<PixelCounts>& threadCounts, const CoverageScale& coverage,
               int partsOfColumn, OpacityImage& result)
      : counts(threadCounts)
      , scale(coverage)
      , parts(partsOfColumn)
      , image(result)
  {
  }

  void makeColumns(int first, int end) const
  {
    const auto rows = static_cast<std::size_t>(image.height);
    std::vector<std::uint32_t> sums(rows * block);
    for (; first < end; first += block)
    {
      const int columns = std::min(block, end - first);
      for (int i = 0; i < columns; ++i)
        sumColumn(first + i, sums.data() + rows * static_cast<std::size_t>(i));
      for (std::size_t row = 0; row < rows; ++row)
      {
        unsigned char* const line =
            image.values.data() + row * static_cast<std::size_t>(image.width) + first;
        for (int i = 0; i < columns; ++i)
          line[i] = level(sums[rows * static_cast<std::size_t>(i) + row]);
      }
    }
  }

private:
  void sumColumn(int column, std::uint32_t* sums) const
  {
    std::fill(sums, sums + image.height, 0);
    for (int part = parts * column; part < parts * (column + 1); ++part)
    {
      std::int32_t count = 0;
      for (int row = 0; row < image.height; ++row)
      {
        for (const PixelCounts& thread : counts)
          count += thread.column(part)[row];
        sums[row] += scale.opacity(count);
      }
    }
  }

  unsigned char level(std::uint32_t sum) const
  {
    const std::uint32_t whole = 65535u * static_cast<std::uint32_t>(parts);
    return static_cast<unsigned char>((sum * 255u + whole / 2) / whole);
  }

  const std::vector<PixelCounts>& counts;
  const CoverageScale& scale;
  int parts;
  OpacityImage& image;
};
} // namespace

OpacityImage drawLines(const LinesToCount& lines, const PixelMap& map, int width, int height,
                       const LinePen& pen)
{
  OpacityImage image{width, height, {}};
  if (width < 1 || height < 1)
    return image;
  image.values.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0);
  if (pen.opacity <= 0.0)
    return image;

  const std::int64_t most = CoverageScale(pen.opacity, 1).mostRepeats();
  const CoverageScale scale(pen.opacity, totalWeight(lines.runs, most));
  const int parts = columnsPerPixel(pen.finest, lines.runs.size(), width, height);
  const int columns = parts * width;
  const unsigned threads = threadsFor(pointCount(lines.runs));
  std::vector<PixelCounts> counts(threads, PixelCounts(columns, height, scale));
  std::atomic<std::size_t> next{0};
  inParallel(threads,
             [&](unsigned thread)
             {
               RunTracer tracer(counts[thread], columns, height, {pen.width, pen.dotSize, parts});
               for (std::size_t first = next.fetch_add(share); first < lines.runs.size();
                    first = next.fetch_add(share))
               {
                 const std::size_t end = std::min(first + share, lines.runs.size());
                 for (std::size_t run = first; run < end; ++run)
                   tracer.trace(lines.points, lines.broken, lines.runs[run], map);
               }
             });

  const OpacityMaker maker(counts, scale, parts, image);
  inParallel(threads,
             [&](unsigned thread)
             {
               const int step = width / static_cast<int>(threads) + 1;
               const int first = step * static_cast<int>(thread);
               maker.makeColumns(first, std::min(width, first + step));
             });
  return image;
}
} // namespace Talmesh
