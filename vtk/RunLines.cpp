#include "vtk/RunLines.h"

#include "vtk/AggregateTarget.h"
#include "vtk/LineCounts.h"
#include "vtk/RunPieces.h"

#include <vtkContext2D.h>
#include <vtkIdTypeArray.h>
#include <vtkPen.h>
#include <vtkPoints2D.h>
#include <vtkRenderingCoreEnums.h>

#include <algorithm>

namespace Talmesh
{
namespace
{
// Across a point that has no line, so that it shows beside lines.
float dotSize(float penWidth)
{
  return penWidth + 3.0f;
}
} // namespace

RunLines::RunLines(vtkPoints2D* runPoints, vtkIdTypeArray* bad, vtkIdType pointsOfRun, bool broken)
    : points(runPoints)
    , badPoints(bad)
    , stride(pointsOfRun)
    , breakAtGaps(broken)
{
}

vtkIdType RunLines::runCount() const
{
  return points->GetNumberOfPoints() / stride;
}

std::vector<CountedRun> RunLines::all() const
{
  const vtkIdType count = points->GetNumberOfPoints();
  if (breakAtGaps || !badPoints)
    return wholeRuns(count, stride);
  return linesOfRuns(count, stride, badPoints->GetPointer(0), badPoints->GetNumberOfValues());
}

float* RunLines::coordinates() const
{
  return static_cast<float*>(points->GetVoidPointer(0));
}

const unsigned char* RunLines::gaps()
{
  if (!breakAtGaps || !badPoints)
    return nullptr;
  if (!mask)
    mask = maskOf(points->GetNumberOfPoints(), badPoints->GetPointer(0),
                  badPoints->GetNumberOfValues());
  return mask->empty() ? nullptr : mask->data();
}

CachedPicture::Pixels RunLines::count(const std::vector<CountedRun>& lines, vtkPen* pen,
                                      const AggregateTarget& target)
{
  LinePen used;
  used.width = std::max(1.0, pen->GetWidth() * target.penScale());
  used.opacity = pen->GetOpacity() / 255.0;
  used.dotSize = breakAtGaps ? dotSize(pen->GetWidth()) * target.penScale() : 0.0;
  return CachedPicture::tinted(drawLines({coordinates(), gaps(), lines}, target.map(),
                                         target.width(), target.height(), used),
                               pen);
}

void RunLines::draw(vtkContext2D* painter, const std::vector<CountedRun>& lines)
{
  if (breakAtGaps)
    return drawPieces(painter, lines);
  for (const CountedRun& line : lines)
    drawLine(painter, line);
}

void RunLines::drawPieces(vtkContext2D* painter, const std::vector<CountedRun>& lines)
{
  const float* const places = coordinates();
  std::vector<float> dots;
  for (const CountedRun& line : lines)
  {
    for (const CountedRun& piece : piecesOf(line, places, gaps()))
    {
      drawLine(painter, piece);
      if (piece.count == 1)
        dots.insert(dots.end(), places + 2 * piece.first, places + 2 * piece.first + 2);
    }
  }
  if (dots.empty())
    return;
  const float width = painter->GetPen()->GetWidth();
  painter->GetPen()->SetWidth(dotSize(width));
  painter->DrawMarkers(VTK_MARKER_CIRCLE, false, dots.data(), static_cast<int>(dots.size() / 2));
  painter->GetPen()->SetWidth(width);
}

void RunLines::drawLine(vtkContext2D* painter, const CountedRun& line) const
{
  // VTK reports an error for lines of fewer than two points.
  if (line.count >= 2)
    painter->DrawPoly(coordinates() + 2 * line.first, static_cast<int>(line.count));
}

PictureStore::Key RunLines::content() const
{
  PictureStore::Key key{double(points->GetNumberOfPoints()), double(stride), double(breakAtGaps)};
  addContent(key, points->GetVoidPointer(0),
             2 * sizeof(float) * static_cast<std::size_t>(points->GetNumberOfPoints()));
  if (badPoints)
    addContent(key, badPoints->GetPointer(0),
               sizeof(vtkIdType) * static_cast<std::size_t>(badPoints->GetNumberOfValues()));
  return key;
}
} // namespace Talmesh
