#include "vtk/RowLines.h"

#include <vtkContext2D.h>
#include <vtkDataArray.h>
#include <vtkPen.h>

#include <algorithm>
#include <cmath>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace Talmesh
{
RowLines::RowLines(std::vector<ParallelAxis> shown)
    : axes(std::move(shown))
{
}

void RowLines::add(vtkIdType row, const LineColor& color)
{
  const std::size_t first = points.size();
  for (const ParallelAxis& axis : axes)
  {
    points.push_back(axis.x);
    points.push_back(static_cast<float>((axis.values->GetTuple1(row) - axis.minimum) * axis.scale));
  }
  const std::size_t length = points.size() - first;
  if (first >= length && color == colors.back() &&
      std::equal(points.begin() + static_cast<std::ptrdiff_t>(first), points.end(),
                 points.begin() + static_cast<std::ptrdiff_t>(first - length)))
  {
    points.resize(first);
    ++lines.runs.back().weight;
    return;
  }
  lines.runs.push_back(
      {static_cast<std::int64_t>(first / 2), static_cast<std::int64_t>(length / 2), 1});
  colors.push_back(color);
}

void RowLines::mergeAll()
{
  std::unordered_map<std::string_view, std::size_t> places;
  std::vector<CountedRun> merged;
  for (const CountedRun& line : lines.runs)
  {
    const std::string_view values(reinterpret_cast<const char*>(points.data() + 2 * line.first),
                                  2 * sizeof(float) * static_cast<std::size_t>(line.count));
    const auto [found, isNew] = places.emplace(values, merged.size());
    if (isNew)
      merged.push_back(line);
    else
      merged[found->second].weight += line.weight;
  }
  lines.runs = std::move(merged);
  colors.resize(lines.runs.size());
}

void RowLines::draw(vtkContext2D* painter, bool coloured)
{
  vtkPen* const pen = painter->GetPen();
  const double once = pen->GetOpacity() / 255.0;
  for (std::size_t i = 0; i < lines.runs.size(); ++i)
  {
    const CountedRun& line = lines.runs[i];
    const double sum = 1.0 - std::pow(1.0 - once, static_cast<double>(line.weight));
    if (coloured)
      pen->SetColor(colors[i].data());
    pen->SetOpacity(static_cast<unsigned char>(std::lround(255.0 * sum)));
    painter->DrawPoly(points.data() + 2 * line.first, static_cast<int>(line.count));
  }
}

PictureStore::Key RowLines::content(bool coloured) const
{
  PictureStore::Key key{double(lines.runs.size()), double(coloured)};
  addContent(key, points.data(), points.size() * sizeof(float));
  addContent(key, lines.runs.data(), lines.runs.size() * sizeof(CountedRun));
  addContent(key, colors.data(), colors.size() * sizeof(LineColor));
  return key;
}

const LinesToCount& RowLines::toCount()
{
  lines.points = points.data();
  return lines;
}
} // namespace Talmesh
