#include "vtk/ParallelLines.h"

#include "vtk/AggregateTarget.h"
#include "vtk/PaintedLines.h"
#include "vtk/PointInputs.h"

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
#include <cmath>
#include <functional>
#include <optional>
#include <utility>

namespace Talmesh
{
namespace
{
using Shapes = AggregateDevice::Shapes;

/// Of VTK's highlighted lines.
constexpr unsigned char selectedColor[4] = {255, 0, 0, 100};

struct Axis
{
  vtkDataArray* values;
  float x;
  double minimum;
  double scale;
};

/// Empty if a column has no numbers.
std::vector<Axis> axesOf(vtkContextItem* item, vtkTable* table)
{
  auto* chart = vtkChartParallelCoordinates::SafeDownCast(item->GetParent());
  std::vector<Axis> axes;
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

CachedPicture::Key keyOf(const std::vector<Axis>& axes)
{
  CachedPicture::Key key;
  for (const Axis& axis : axes)
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

/// Lines of table rows, like ones that follow each other as one.
class ParallelLines::RowLines
{
public:
  explicit RowLines(std::vector<Axis> shown)
      : axes(std::move(shown))
  {
  }

  void add(vtkIdType row, const LineColor& color)
  {
    const std::size_t first = points.size();
    for (const Axis& axis : axes)
    {
      points.push_back(axis.x);
      points.push_back(
          static_cast<float>((axis.values->GetTuple1(row) - axis.minimum) * axis.scale));
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

  PictureStore::Key content(bool coloured) const
  {
    PictureStore::Key key{double(lines.runs.size()), double(coloured)};
    addContent(key, points.data(), points.size() * sizeof(float));
    addContent(key, lines.runs.data(), lines.runs.size() * sizeof(CountedRun));
    addContent(key, colors.data(), colors.size() * sizeof(LineColor));
    return key;
  }

  const LinesToCount& toCount()
  {
    lines.points = points.data();
    return lines;
  }
  const std::vector<LineColor>& lineColors() const { return colors; }

private:
  std::vector<Axis> axes;
  std::vector<float> points;
  LinesToCount lines;
  std::vector<LineColor> colors;
};

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

bool ParallelLines::HasPictures(const AggregateTarget& target)
{
  vtkTable* const table = this->Data->GetInput();
  vtkUnsignedCharArray* const colors = this->LineColors();
  const auto axes = table ? static_cast<vtkIdType>(axesOf(this, table).size()) : 0;
  return this->Visible && axes > 1 && this->Pen->GetLineType() == vtkPen::SOLID_LINE &&
         !target.wantsShapes(Shapes::Corners, axes * table->GetNumberOfRows()) &&
         (!colors || colors->GetNumberOfTuples() >= table->GetNumberOfRows());
}

bool ParallelLines::Paint(vtkContext2D* painter)
{
  const auto target = AggregateTarget::of(painter, this);
  if (!target || !this->HasPictures(*target))
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

void ParallelLines::PaintLayer(vtkContext2D* painter, const AggregateTarget& target,
                               CachedPicture& layer, const CachedPicture::Key& key,
                               const Layer& content)
{
  std::optional<RowLines> rows;
  const auto gathered = [&]() -> RowLines&
  {
    if (!rows)
    {
      rows.emplace(axesOf(this, this->Data->GetInput()));
      content.gather(*rows);
    }
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
  this->PaintLayer(painter, target, this->Lines, key, {gather, colors != nullptr});
}

void ParallelLines::PaintSelected(vtkContext2D* painter, const AggregateTarget& target)
{
  vtkTable* const table = this->Data->GetInput();
  painter->GetPen()->SetColor(selectedColor[0], selectedColor[1], selectedColor[2],
                              selectedColor[3]);
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
  this->PaintLayer(painter, target, this->SelectedLines, key, {gather, false});
}
} // namespace Talmesh
