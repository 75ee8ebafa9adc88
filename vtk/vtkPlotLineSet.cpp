#include "vtk/vtkPlotLineSet.h"

#include "vtk/AggregateTarget.h"
#include "vtk/MarkerCopy.h"
#include "vtk/PlotItemPainting.h"
#include "vtk/RunPieces.h"
#include "vtk/SelectionColumns.h"

#include <vtkContext2D.h>
#include <vtkContextMapper2D.h>
#include <vtkDataArray.h>
#include <vtkIdTypeArray.h>
#include <vtkObjectFactory.h>
#include <vtkPen.h>
#include <vtkPoints2D.h>
#include <vtkTable.h>

#include <algorithm>
#include <cmath>

vtkStandardNewMacro(vtkPlotLineSet);

namespace
{
using Shapes = Talmesh::AggregateDevice::Shapes;

// Across a point that has no line, so that it shows beside lines.
float dotSize(float penWidth)
{
  return penWidth + 3.0f;
}
} // namespace

vtkPlotLineSet::vtkPlotLineSet()
    : SelectedLineIds(vtkIdTypeArray::New())
    , RemainderSelection(vtkIdTypeArray::New())
{
}

vtkPlotLineSet::~vtkPlotLineSet()
{
  this->SelectedLineIds->Delete();
  this->RemainderSelection->Delete();
}

void vtkPlotLineSet::PrintSelf(ostream& os, vtkIndent indent)
{
  this->Superclass::PrintSelf(os, indent);
}

void vtkPlotLineSet::Update()
{
  vtkTable* table = this->Data->GetInput();
  if (!this->Visible || !table)
    return;
  // Lines do not have the colours of their points.
  const Talmesh::ColorsWithin noColors(nullptr, "", this->ScalarVisibility, this->Colors);
  this->Superclass::Update();
  this->ReadMarkers(table, false);
  this->Modified();
}

bool vtkPlotLineSet::UpdateSelectionCache(vtkTable* table)
{
  this->ReadMarkers(table, true);
  return true;
}

void vtkPlotLineSet::ReadMarkers(vtkTable* table, bool always)
{
  this->NumberOfRemainderRows = 0;
  auto* markers = vtkDataArray::SafeDownCast(
      table ? table->GetColumnByName(Talmesh::RemainderSelectionColumn) : nullptr);
  if (markers)
  {
    std::vector<double> identity;
    Talmesh::addColumn(identity, markers);
    if (always || identity != this->CopiedMarkers)
    {
      this->CopiedMarks = Talmesh::copyMarkers(markers, this->RemainderSelection);
      ++this->MarkerCopies;
    }
    this->CopiedMarkers = identity;
    this->NumberOfRemainderRows = this->CopiedMarks;
  }
  this->RemainderSelection->Modified();
}

bool vtkPlotLineSet::Paint(vtkContext2D* painter)
{
  if (!this->Visible || !this->Points || this->Stride < 1)
    return false;
  painter->ApplyPen(this->Pen);
  const auto target = Talmesh::AggregateTarget::of(painter, this);
  if (!this->OnlyShowSelected)
    this->PaintRuns(painter, target ? &*target : nullptr);

  vtkTable* table = this->Data->GetInput();
  if (this->Selection && table &&
      this->Selection->GetMTime() > this->RemainderSelection->GetMTime())
    this->ReadMarkers(table, false);

  const bool marked = this->RemainderSelection->GetNumberOfValues() > 0;
  if (!marked && !(this->Selection && this->Selection->GetNumberOfValues() > 0))
    return true;
  Talmesh::applyHighlightPen(painter, this->Pen->GetWidth());
  if (target)
  {
    this->CountHighlights(marked);
    this->PaintHighlights(painter, *target);
  }
  else
  {
    this->FindHighlights(marked);
    this->PaintHighlights(painter);
  }
  return true;
}

std::vector<Talmesh::CountedRun> vtkPlotLineSet::LinesOfRuns() const
{
  const vtkIdType count = this->Points->GetNumberOfPoints();
  if (this->BreakAtGaps || !this->BadPoints)
    return Talmesh::wholeRuns(count, this->Stride);
  return Talmesh::linesOfRuns(count, this->Stride, this->BadPoints->GetPointer(0),
                              this->BadPoints->GetNumberOfValues());
}

std::vector<unsigned char> vtkPlotLineSet::MaskOfGaps() const
{
  if (!this->BreakAtGaps || !this->BadPoints)
    return {};
  return Talmesh::maskOf(this->Points->GetNumberOfPoints(), this->BadPoints->GetPointer(0),
                         this->BadPoints->GetNumberOfValues());
}

Talmesh::CachedPicture::Pixels
vtkPlotLineSet::CountLines(const std::vector<Talmesh::CountedRun>& lines, vtkPen* pen,
                           const Talmesh::AggregateTarget& target) const
{
  const std::vector<unsigned char> mask = this->MaskOfGaps();
  Talmesh::LinePen used;
  used.width = std::max(1.0, pen->GetWidth() * target.penScale());
  used.opacity = pen->GetOpacity() / 255.0;
  used.dotSize = this->BreakAtGaps ? dotSize(pen->GetWidth()) * target.penScale() : 0.0;
  return Talmesh::CachedPicture::tinted(
      Talmesh::drawLines({static_cast<float*>(this->Points->GetVoidPointer(0)),
                          mask.empty() ? nullptr : mask.data(), lines},
                         target.map(), target.width(), target.height(), used),
      pen);
}

void vtkPlotLineSet::PaintLine(vtkContext2D* painter, const Talmesh::CountedRun& line)
{
  // VTK reports an error for lines of fewer than two points.
  if (line.count < 2)
    return;
  float* points = static_cast<float*>(this->Points->GetVoidPointer(0));
  painter->DrawPoly(points + 2 * line.first, static_cast<int>(line.count));
}

void vtkPlotLineSet::PaintPieces(vtkContext2D* painter,
                                 const std::vector<Talmesh::CountedRun>& runs,
                                 const std::vector<unsigned char>& gaps)
{
  const float* points = static_cast<float*>(this->Points->GetVoidPointer(0));
  std::vector<float> dots;
  for (const Talmesh::CountedRun& run : runs)
  {
    for (const auto& piece : Talmesh::piecesOf(run, points, gaps.empty() ? nullptr : gaps.data()))
    {
      this->PaintLine(painter, piece);
      if (piece.count == 1)
        dots.insert(dots.end(), points + 2 * piece.first, points + 2 * piece.first + 2);
    }
  }
  if (dots.empty())
    return;
  const float width = painter->GetPen()->GetWidth();
  painter->GetPen()->SetWidth(dotSize(width));
  painter->DrawMarkers(VTK_MARKER_CIRCLE, false, dots.data(), static_cast<int>(dots.size() / 2));
  painter->GetPen()->SetWidth(width);
}

void vtkPlotLineSet::PaintLines(vtkContext2D* painter,
                                const std::vector<Talmesh::CountedRun>& lines,
                                const std::vector<unsigned char>& gaps)
{
  if (this->BreakAtGaps)
    return this->PaintPieces(painter, lines, gaps);
  for (const Talmesh::CountedRun& line : lines)
    this->PaintLine(painter, line);
}

void vtkPlotLineSet::PaintRuns(vtkContext2D* painter, const Talmesh::AggregateTarget* target)
{
  const vtkIdType runCount = this->Points->GetNumberOfPoints() / this->Stride;
  if (!target || this->Pen->GetLineType() != vtkPen::SOLID_LINE ||
      target->wantsShapes(Shapes::Bundle, runCount))
    return this->PaintLines(painter, this->LinesOfRuns(), this->MaskOfGaps());
  this->RunPicture.paint(
      painter, *target,
      {double(this->Points->GetMTime()), double(this->Stride), double(this->BreakAtGaps)},
      [&] { return this->CountLines(this->LinesOfRuns(), this->Pen, *target); });
}

void vtkPlotLineSet::FindMarkedRuns()
{
  const vtkMTimeType built = this->SelectedLineIds->GetMTime();
  if (this->RemainderSelection->GetMTime() <= built && this->GetMTime() <= built)
    return;
  this->SelectedLineIds->SetNumberOfValues(this->NumberOfRemainderRows);
  vtkIdType next = 0;
  const vtkIdType rowCount = this->RemainderSelection->GetNumberOfValues();
  for (vtkIdType row = 0; row < rowCount && next < this->NumberOfRemainderRows; ++row)
  {
    if (this->RemainderSelection->GetValue(row) != 0)
      this->SelectedLineIds->SetValue(next++, row / this->Stride);
  }
  this->SelectedLineIds->Modified();
}

void vtkPlotLineSet::FindSelectedRuns()
{
  const vtkMTimeType built = this->SelectedLineIds->GetMTime();
  // The runs found last may be marked ones of a column that has lost its rows since.
  if (this->Selection->GetMTime() <= built && this->GetMTime() <= built &&
      this->RemainderSelection->GetMTime() <= built)
    return;
  const vtkIdType count = this->Selection->GetNumberOfValues();
  this->SelectedLineIds->SetNumberOfValues(count);
  for (vtkIdType i = 0; i < count; ++i)
  {
    const vtkIdType id = this->Selection->GetValue(i);
    // Division would carry the small negative ids to run 0.
    this->SelectedLineIds->SetValue(i, id < 0 ? -1 : id / this->Stride);
  }
  this->SelectedLineIds->Modified();
}

void vtkPlotLineSet::FindHighlights(bool marked)
{
  if (marked)
    this->FindMarkedRuns();
  else
    this->FindSelectedRuns();
}

void vtkPlotLineSet::CountHighlights(bool marked)
{
  std::vector<double> source;
  if (marked)
    source = {this->MarkerCopies};
  else
    Talmesh::addColumn(source, this->Selection);
  const vtkIdType pointCount = this->Points->GetNumberOfPoints();
  source.insert(source.end(), {double(marked), double(this->NumberOfRemainderRows),
                               double(this->Stride), double(pointCount)});
  if (source == this->CountedFor)
    return;
  this->FindHighlights(marked);
  this->Highlights = Talmesh::countRuns(this->SelectedLineIds->GetPointer(0),
                                        this->SelectedLineIds->GetNumberOfValues(),
                                        pointCount / this->Stride, this->Stride);
  this->CountedFor = source;
}

void vtkPlotLineSet::PaintHighlights(vtkContext2D* painter)
{
  const vtkIdType runCount = this->Points->GetNumberOfPoints() / this->Stride;
  std::vector<Talmesh::CountedRun> lines;
  for (vtkIdType i = 0; i < this->SelectedLineIds->GetNumberOfValues(); ++i)
  {
    const vtkIdType run = this->SelectedLineIds->GetValue(i);
    if (run >= 0 && run < runCount)
      lines.push_back({run * this->Stride, this->Stride, 1});
  }
  this->PaintLines(painter, lines, this->MaskOfGaps());
}

void vtkPlotLineSet::PaintHighlights(vtkContext2D* painter, const Talmesh::AggregateTarget& target)
{
  vtkPen* const pen = painter->GetPen();
  const auto count = static_cast<vtkIdType>(this->Highlights.size());
  if (count == 0)
    return;
  if (pen->GetLineType() == vtkPen::SOLID_LINE && !target.wantsShapes(Shapes::Highlights, count))
  {
    Talmesh::CachedPicture::Key key = this->CountedFor;
    key.insert(key.end(), {double(this->Points->GetMTime()), double(this->BreakAtGaps)});
    this->HighlightPicture.paint(painter, target, key,
                                 [&] { return this->CountLines(this->Highlights, pen, target); });
    return;
  }
  const double once = pen->GetOpacity() / 255.0;
  const std::vector<unsigned char> gaps = this->MaskOfGaps();
  for (const Talmesh::CountedRun& run : this->Highlights)
  {
    const double sum = 1.0 - std::pow(1.0 - once, static_cast<double>(run.weight));
    pen->SetOpacity(static_cast<unsigned char>(std::lround(255.0 * sum)));
    this->PaintLines(painter, {run}, gaps);
  }
}

bool vtkPlotLineSet::PaintLegend(vtkContext2D* painter, const vtkRectf& rect, int)
{
  Talmesh::paintLegendLine(painter, this->Pen, rect);
  this->Superclass::PaintLegend(painter, rect, 0);
  return true;
}
