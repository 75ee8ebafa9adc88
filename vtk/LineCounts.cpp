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

} // namespace

OpacityImage drawLines(const LinesToCount& lines, const PixelMap& map, int width, int height,
                       const LinePen& pen)
{
  OpacityImage image = emptyImage(width, height);
  if (image.values.empty() || pen.opacity <= 0.0)
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

  inParallel(threads,
             [&](unsigned thread)
             {
               const int step = width / static_cast<int>(threads) + 1;
               const int first = std::min(width, step * static_cast<int>(thread));
               fillColumns(image, counts, scale, parts, first, std::min(width, first + step));
             });
  return image;
}
} // namespace Talmesh
