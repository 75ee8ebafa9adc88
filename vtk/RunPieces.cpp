#include "vtk/RunPieces.h"

#include "stats/ParallelParts.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace Talmesh
{
namespace
{
/// Of how many entries a run has.
std::vector<CountedRun> runsWithEntries(const std::vector<vtkIdType>& entries, vtkIdType stride)
{
  std::vector<CountedRun> runs;
  vtkIdType first = 0;
  for (const vtkIdType count : entries)
  {
    if (count > 0)
      runs.push_back({first, stride, count});
    first += stride;
  }
  return runs;
}
} // namespace

std::vector<CountedRun> wholeRuns(vtkIdType pointCount, vtkIdType stride)
{
  std::vector<CountedRun> runs;
  runs.reserve(static_cast<std::size_t>(pointCount / stride));
  for (vtkIdType first = 0; first <= pointCount - stride; first += stride)
    runs.push_back({first, stride, 1});
  return runs;
}

std::vector<CountedRun> linesOfRuns(vtkIdType pointCount, vtkIdType stride,
                                    const vtkIdType* badPoints, vtkIdType badCount)
{
  if (badCount == 0)
    return wholeRuns(pointCount, stride);
  const vtkIdType lastBad = badPoints[badCount - 1];
  if (pointCount - lastBad <= 2)
    return {};
  std::vector<CountedRun> lines = wholeRuns(pointCount, stride);
  lines.insert(lines.begin(), {lastBad + 1, std::min(stride, pointCount - 1 - lastBad), 1});
  return lines;
}

std::vector<CountedRun> countRuns(const vtkIdType* listed, vtkIdType count, vtkIdType runCount,
                                  vtkIdType stride)
{
  std::vector<vtkIdType> entries(static_cast<std::size_t>(runCount), 0);
  for (vtkIdType i = 0; i < count; ++i)
  {
    if (listed[i] >= 0 && listed[i] < runCount)
      ++entries[static_cast<std::size_t>(listed[i])];
  }
  return runsWithEntries(entries, stride);
}

std::vector<CountedRun> countMarkedRuns(const vtkIdType* rows, vtkIdType rowCount,
                                        vtkIdType runCount, vtkIdType stride)
{
  std::vector<vtkIdType> entries(static_cast<std::size_t>(runCount), 0);
  stats::inParallelParts(
      entries.size(), stats::numbersOfPart / static_cast<std::size_t>(stride) + 1,
      [&](std::size_t first, std::size_t last)
      {
        for (std::size_t run = first; run < last; ++run)
        {
          const vtkIdType from = std::min(rowCount, static_cast<vtkIdType>(run) * stride);
          const vtkIdType end = std::min(rowCount, from + stride);
          entries[run] = end - from - std::count(rows + from, rows + end, 0);
        }
      });
  return runsWithEntries(entries, stride);
}

std::vector<unsigned char> maskOf(vtkIdType pointCount, const vtkIdType* badPoints,
                                  vtkIdType badCount)
{
  std::vector<unsigned char> mask(static_cast<std::size_t>(pointCount), 0);
  for (vtkIdType i = 0; i < badCount; ++i)
    mask[static_cast<std::size_t>(badPoints[i])] = 1;
  return mask;
}

std::vector<CountedRun> piecesOf(const CountedRun& run, const float* points,
                                 const unsigned char* broken)
{
  const auto isGap = [&](std::int64_t i)
  {
    return (broken && broken[i]) || !std::isfinite(points[2 * i]) ||
           !std::isfinite(points[2 * i + 1]);
  };
  std::vector<CountedRun> pieces;
  const std::int64_t end = run.first + run.count;
  for (std::int64_t i = run.first; i < end; ++i)
  {
    if (isGap(i))
      continue;
    const std::int64_t first = i;
    while (i < end && !isGap(i))
      ++i;
    pieces.push_back({first, i - first, run.weight});
  }
  return pieces;
}
} // namespace Talmesh
