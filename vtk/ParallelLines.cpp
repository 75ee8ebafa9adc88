#include "vtk/ParallelLines.h"

#include "vtk/AggregateTarget.h"
#include "vtk/HighlightColor.h"
#include "vtk/LineCounts.h"
#include "vtk/PaintedLines.h"
#include "vtk/PointInputs.h"
#include "vtk/RowLines.h"

#include <vtkAxis.h>
#include <vtkChartParallelCoordinates.h>
#include <vtkContext2D.h>
#include <vtkContextMapper2D.h>
#include <vtkDataArray.h>
#include <vtkIdTypeArray.h>
#include <vtkObjectFactory.h>
#include <vtkPen.h>
#include <vtkStringArray.h>
#include <vtkTable.h>
#include <vtkUnsignedCharArray.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

namespace Talmesh
{
namespace
{
using Shapes = AggregateDevice::Shapes;

/// Empty if a column has no numbers.
std::vector<ParallelAxis> axesOf(vtkContextItem* item, vtkTable* table)
{
  auto* chart = vtkChartParallelCoordinates::SafeDownCast(item->GetParent());
  std::vector<ParallelAxis> axes;
  if (!chart || !table)
    return axes;
  vtkStringArray* const columns = chart->GetVisibleColumns();
  for (vtkIdType i = 0; i < columns->GetNumberOfValues(); ++i)
  {
    vtkAxis* const axis = chart->GetAxis(static_cast<int>(i));
    auto* values = vtkDataArray::SafeDownCast(table->GetColumnByName(columns->GetValue(i).c_str()));
    if (!axis || !values)
      return {};
    const double minimum = axis->GetUnscaledMinimum();
    axes.push_back(
        {values, axis->GetPoint1()[0], minimum, 1.0 / (axis->GetUnscaledMaximum() - minimum)});
  }
  return axes;
}

CachedPicture::Key keyOf(const std::vector<ParallelAxis>& axes)
{
  CachedPicture::Key key;
  for (const ParallelAxis& axis : axes)
  {
    addColumn(key, axis.values);
    key.insert(key.end(), {double(axis.x), axis.minimum, axis.scale});
  }
  return key;
}

LinePen penOf(vtkPen* pen, const AggregateTarget& target)
{
  LinePen used;
  used.width = std::max(1.0, pen->GetWidth() * target.penScale());
  used.opacity = pen->GetOpacity() / 255.0;
  return used;
}
} // namespace

vtkStandardNewMacro(ParallelLines);

struct ParallelLines::Layer
{
  std::function<void(RowLines&)> gather;
  bool coloured; ///< each line with a colour of its own
};

vtkUnsignedCharArray* ParallelLines::LineColors()
{
  return this->ScalarVisibility && this->Colors && this->Colors->GetNumberOfComponents() == 4
             ? this->Colors
             : nullptr;
}

bool ParallelLines::HasLines()
{
  vtkTable* const table = this->Data->GetInput();
  vtkUnsignedCharArray* const colors = this->LineColors();
  const auto axes = table ? static_cast<vtkIdType>(axesOf(this, table).size()) : 0;
  return this->Visible && axes > 1 && this->Pen->GetLineType() == vtkPen::SOLID_LINE &&
         (!colors || colors->GetNumberOfTuples() >= table->GetNumberOfRows());
}

bool ParallelLines::Paint(vtkContext2D* painter)
{
  const auto target = AggregateTarget::of(painter, this);
  if (!target || !this->HasLines())
    return this->vtkPlotParallelCoordinates::Paint(painter);
  painter->ApplyPen(this->Pen);
  this->PaintAll(painter, *target);
  if (this->Selection && this->Selection->GetNumberOfValues() > 0)
    this->PaintSelected(painter, *target);
  return true;
}

void ParallelLines::SetPictureStore(std::shared_ptr<PictureStore> store)
{
  this->Store = std::move(store);
}

CachedPicture::Pixels ParallelLines::Count(RowLines& rows, bool coloured, vtkPen* pen,
                                           const AggregateTarget& target)
{
  const LinesToCount& lines = rows.toCount();
  if (this->Store)
    this->Store->countLines(lines.runs.size());
  const LinePen used = penOf(pen, target);
  if (coloured)
    return paintLines(lines, rows.lineColors(), target.map(), target.width(), target.height(),
                      used);
  return CachedPicture::tinted(
      drawLines(lines, target.map(), target.width(), target.height(), used), pen);
}

RowLines ParallelLines::Gathered(const Layer& layer, bool merged)
{
  RowLines rows(axesOf(this, this->Data->GetInput()));
  layer.gather(rows);
  if (merged)
    rows.mergeAll();
  return rows;
}

void ParallelLines::PaintLayer(vtkContext2D* painter, const AggregateTarget& target,
                               CachedPicture& layer, const CachedPicture::Key& key,
                               const Layer& content)
{
  std::optional<RowLines> rows;
  const auto gathered = [&]() -> RowLines&
  {
    if (!rows)
      rows.emplace(this->Gathered(content, false));
    return *rows;
  };
  layer.paint(painter, target, key,
              [&] { return this->Count(gathered(), content.coloured, painter->GetPen(), target); },
              {this->Store.get(), [&] { return gathered().content(content.coloured); }});
}

void ParallelLines::PaintAll(vtkContext2D* painter, const AggregateTarget& target)
{
  vtkTable* const table = this->Data->GetInput();
  vtkUnsignedCharArray* const colors = this->LineColors();
  CachedPicture::Key key = keyOf(axesOf(this, table));
  addColumn(key, colors);
  const auto gather = [&](RowLines& rows)
  {
    LineColor color{};
    for (vtkIdType row = 0; row < table->GetNumberOfRows(); ++row)
    {
      // Lines have the pen's opacity in any colour.
      if (colors)
        std::copy_n(colors->GetPointer(4 * row), color.size(), color.data());
      rows.add(row, color);
    }
  };
  const Layer layer{gather, colors != nullptr};
  const auto corners =
      static_cast<vtkIdType>(axesOf(this, table).size()) * table->GetNumberOfRows();
  if (target.wantsShapes(Shapes::Corners, corners))
    this->Gathered(layer, colors == nullptr).draw(painter, layer.coloured);
  else
    this->PaintLayer(painter, target, this->Lines, key, layer);
}

void ParallelLines::PaintSelected(vtkContext2D* painter, const AggregateTarget& target)
{
  vtkTable* const table = this->Data->GetInput();
  const auto& color = highlightColorOfParallelLines;
  painter->GetPen()->SetColor(color[0], color[1], color[2], color[3]);
  CachedPicture::Key key = keyOf(axesOf(this, table));
  addColumn(key, this->Selection);
  const auto gather = [&](RowLines& rows)
  {
    for (vtkIdType i = 0; i < this->Selection->GetNumberOfValues(); ++i)
    {
      const vtkIdType row = this->Selection->GetValue(i);
      if (row >= 0 && row < table->GetNumberOfRows())
        rows.add(row, {});
    }
  };
  const Layer layer{gather, false};
  // Looking for like ones takes time, which a device that wants none is spared.
  if (target.wantsShapes(Shapes::Highlights, 1))
  {
    RowLines rows = this->Gathered(layer, true);
    if (target.wantsShapes(Shapes::Highlights, rows.count()))
      return rows.draw(painter, false);
  }
  this->PaintLayer(painter, target, this->SelectedLines, key, layer);
}
} // namespace Talmesh
