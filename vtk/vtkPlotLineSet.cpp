#include "vtk/vtkPlotLineSet.h"

#include "vtk/AggregateTarget.h"
#include "vtk/CachedPicture.h"
#include "vtk/MarkerCopy.h"
#include "vtk/PlotItemPainting.h"
#include "vtk/PointInputs.h"
#include "vtk/RunLines.h"
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

#include <cmath>
#include <utility>

vtkStandardNewMacro(vtkPlotLineSet);

namespace
{
using Shapes = Talmesh::AggregateDevice::Shapes;

Talmesh::CachedPicture::Pixels countLines(Talmesh::PictureStore* store, Talmesh::RunLines& runs,
                                          const std::vector<Talmesh::CountedRun>& lines,
                                          vtkPen* pen, const Talmesh::AggregateTarget& target)
{
  if (store)
    store->countLines(lines.size());
  return runs.count(lines, pen, target);
}

// The marks may be fewer than the points, where their column is, and count as none once it has
// gone.
std::vector<Talmesh::CountedRun> countMarked(vtkIdTypeArray* marks, vtkIdType marked,
                                             vtkIdType runCount, vtkIdType stride)
{
  if (marked == 0)
    return {};
  return Talmesh::countMarkedRuns(marks->GetPointer(0), marks->GetNumberOfValues(), runCount,
                                  stride);
}
} // namespace

struct vtkPlotLineSet::Layers
{
  std::vector<double> countedFor;              ///< tells what the counted highlights are
  std::vector<Talmesh::CountedRun> highlights; ///< each highlighted run once
  std::vector<double> readPoints;              ///< tells what `content` is of
  Talmesh::PictureStore::Key content;          ///< of the points
  Talmesh::CachedPicture runs;
  Talmesh::CachedPicture highlighted;
};

vtkPlotLineSet::vtkPlotLineSet()
    : SelectedLineIds(vtkIdTypeArray::New())
    , RemainderSelection(vtkIdTypeArray::New())
    , Painted(std::make_unique<Layers>())
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

void vtkPlotLineSet::SetHighlight(const Talmesh::Highlight& highlight)
{
  if (!(highlight == this->SelectedLook))
    this->Modified();
  this->SelectedLook = highlight;
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
  Talmesh::RunLines runs(this->Points, this->BadPoints, this->Stride, this->BreakAtGaps != 0);
  if (!this->OnlyShowSelected)
    this->PaintRuns(painter, target ? &*target : nullptr, runs);

  vtkTable* table = this->Data->GetInput();
  if (this->Selection && table &&
      this->Selection->GetMTime() > this->RemainderSelection->GetMTime())
    this->ReadMarkers(table, false);

  const bool marked = this->RemainderSelection->GetNumberOfValues() > 0;
  if (!marked && !(this->Selection && this->Selection->GetNumberOfValues() > 0))
    return true;
  Talmesh::applyHighlightPen(painter, this->SelectedLook, this->Pen->GetWidth());
  if (target)
  {
    this->CountHighlights(marked);
    this->PaintHighlights(painter, *target, runs);
  }
  else
  {
    marked ? this->FindMarkedRuns() : this->FindSelectedRuns();
    this->PaintHighlights(painter, runs);
  }
  return true;
}

// Reading all points takes time, so it is done once for every picture of them.
const std::vector<double>& vtkPlotLineSet::ContentOf(const Talmesh::RunLines& runs)
{
  const std::vector<double> identity{double(this->Points->GetMTime()), double(this->Stride),
                                     double(this->BreakAtGaps)};
  if (identity != this->Painted->readPoints)
  {
    this->Painted->content = this->SharedKey();
    if (this->Painted->content.empty())
      this->Painted->content = runs.content();
    else
      this->Painted->content.insert(this->Painted->content.end(), identity.begin() + 1,
                                    identity.end());
  }
  this->Painted->readPoints = identity;
  return this->Painted->content;
}

void vtkPlotLineSet::PaintRuns(vtkContext2D* painter, const Talmesh::AggregateTarget* target,
                               Talmesh::RunLines& runs)
{
  if (!target || this->Pen->GetLineType() != vtkPen::SOLID_LINE ||
      target->wantsShapes(Shapes::Bundle, runs.runCount()))
    return runs.draw(painter, runs.all());
  this->Painted->runs.paint(
      painter, *target,
      {double(this->Points->GetMTime()), double(this->Stride), double(this->BreakAtGaps)},
      [&]
      { return countLines(this->GetPictureStore().get(), runs, runs.all(), this->Pen, *target); },
      {this->GetPictureStore().get(), [&] { return this->ContentOf(runs); }});
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
  if (source == this->Painted->countedFor)
    return;
  const vtkIdType runCount = pointCount / this->Stride;
  if (marked)
    this->Painted->highlights =
        countMarked(this->RemainderSelection, this->NumberOfRemainderRows, runCount, this->Stride);
  else
  {
    this->FindSelectedRuns();
    this->Painted->highlights =
        Talmesh::countRuns(this->SelectedLineIds->GetPointer(0),
                           this->SelectedLineIds->GetNumberOfValues(), runCount, this->Stride);
  }
  this->Painted->countedFor = source;
}

void vtkPlotLineSet::PaintHighlights(vtkContext2D* painter, Talmesh::RunLines& runs)
{
  std::vector<Talmesh::CountedRun> lines;
  for (vtkIdType i = 0; i < this->SelectedLineIds->GetNumberOfValues(); ++i)
  {
    const vtkIdType run = this->SelectedLineIds->GetValue(i);
    if (run >= 0 && run < runs.runCount())
      lines.push_back({run * this->Stride, this->Stride, 1});
  }
  runs.draw(painter, lines);
}

void vtkPlotLineSet::PaintHighlights(vtkContext2D* painter, const Talmesh::AggregateTarget& target,
                                     Talmesh::RunLines& runs)
{
  vtkPen* const pen = painter->GetPen();
  const auto count = static_cast<vtkIdType>(this->Painted->highlights.size());
  if (count == 0)
    return;
  if (pen->GetLineType() != vtkPen::SOLID_LINE || target.wantsShapes(Shapes::Highlights, count))
    return this->PaintSums(painter, runs);
  Talmesh::CachedPicture::Key key = this->Painted->countedFor;
  key.insert(key.end(), {double(this->Points->GetMTime()), double(this->BreakAtGaps)});
  const auto content = [&]
  {
    Talmesh::PictureStore::Key all = this->ContentOf(runs);
    Talmesh::addContent(all, this->Painted->highlights.data(),
                        this->Painted->highlights.size() * sizeof(Talmesh::CountedRun));
    return all;
  };
  this->Painted->highlighted.paint(painter, target, key,
                                   [&] {
                                     return countLines(this->GetPictureStore().get(), runs,
                                                       this->Painted->highlights, pen, target);
                                   },
                                   {this->GetPictureStore().get(), content});
}

void vtkPlotLineSet::PaintSums(vtkContext2D* painter, Talmesh::RunLines& runs)
{
  const double once = painter->GetPen()->GetOpacity() / 255.0;
  for (const Talmesh::CountedRun& run : this->Painted->highlights)
  {
    const double sum = 1.0 - std::pow(1.0 - once, static_cast<double>(run.weight));
    painter->GetPen()->SetOpacity(static_cast<unsigned char>(std::lround(255.0 * sum)));
    runs.draw(painter, {run});
  }
}

bool vtkPlotLineSet::PaintLegend(vtkContext2D* painter, const vtkRectf& rect, int)
{
  Talmesh::paintLegendLine(painter, this->Pen, rect);
  this->Superclass::PaintLegend(painter, rect, 0);
  return true;
}
