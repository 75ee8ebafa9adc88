#include "vtk/LineCounts.h"

#include "stats/ParallelParts.h"

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
/// Below this another thread costs more than it saves.
constexpr std::int64_t pointsWorthAWorker = 20000;
constexpr unsigned mostWorkers = 8;
/// Runs that a worker takes at a time.
constexpr std::size_t share = 8;
/// What parts of columns may cost: so many runs through columns, and so many counts of 4 bytes.
constexpr double mostCrossings = 8.0e5;
constexpr double mostCounts = 4.0e6;
/// Of all workers, of 4 bytes: a page at 600 dots per inch has 35 million pixels.
constexpr std::int64_t mostCounters = 64000000;

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

// The first to work takes all runs that no other takes.
std::size_t workersFor(std::int64_t points, std::int64_t counters)
{
  const std::int64_t wanted = 1 + points / pointsWorthAWorker;
  const std::int64_t affordable = std::max<std::int64_t>(mostCounters / counters, 1);
  const unsigned there = std::clamp(std::thread::hardware_concurrency(), 1u, mostWorkers);
  return static_cast<std::size_t>(std::min<std::int64_t>({wanted, affordable, there}));
}

int columnsPerPixel(const LinePen& pen, std::size_t runs, int width, int height)
{
  int parts = pen.finest;
  const double crossings = static_cast<double>(runs) * width;
  const double counts = static_cast<double>(width) * height;
  while (parts > 1 && (parts * crossings > mostCrossings || parts * counts > mostCounts))
    parts /= 2;
  return parts;
}

OpacityImage drawLines(const LinesToCount& lines, const PixelMap& map, int width, int height,
                       const LinePen& pen)
{
  OpacityImage image = emptyImage(width, height);
  if (image.values.empty() || pen.opacity <= 0.0)
    return image;

  const std::int64_t most = CoverageScale(pen.opacity, 1).mostRepeats();
  const CoverageScale scale(pen.opacity, totalWeight(lines.runs, most));
  const int parts = columnsPerPixel(pen, lines.runs.size(), width, height);
  const int columns = parts * width;
  const std::size_t workers = workersFor(pointCount(lines.runs), std::int64_t(columns) * height);
  std::vector<PixelCounts> counts;
  counts.reserve(workers);
  while (counts.size() < workers)
    counts.emplace_back(columns, height, scale);
  std::atomic<std::size_t> next{0};
  const auto countRuns = [&](std::size_t worker, std::size_t)
  {
    RunTracer tracer(counts[worker], columns, height, {pen.width, pen.dotSize, parts});
    for (std::size_t first = next.fetch_add(share); first < lines.runs.size();
         first = next.fetch_add(share))
    {
      const std::size_t end = std::min(first + share, lines.runs.size());
      for (std::size_t run = first; run < end; ++run)
      {
        CountedRun counted = lines.runs[run];
        counted.weight = std::min(counted.weight, most);
        tracer.trace(lines.points, lines.broken, counted, map);
      }
    }
  };
  stats::inParallelParts(workers, 1, countRuns);
  const auto fill = [&](std::size_t first, std::size_t end)
  { fillColumns(image, counts, scale, parts, static_cast<int>(first), static_cast<int>(end)); };
  stats::inParallelParts(static_cast<std::size_t>(width),
                         static_cast<std::size_t>(width) / workers + 1, fill);
  return image;
}
} // namespace Talmesh
