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

/// Lines of table rows, like ones that follow each other as one.
class RowLines
{
public:
  explicit RowLines(const std::vector<Axis>& shown)
      : axes(shown)
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

  const LinesToCount& toCount()
  {
    lines.points = points.data();
    return lines;
  }
  const std::vector<LineColor>& lineColors() const { return colors; }

private:
  const std::vector<Axis>& axes;
  std::vector<float> points;
  LinesToCount lines;
  std::vector<LineColor> colors;
};

LinePen penOf(vtkPen* pen, const AggregateTarget& target)
{
  LinePen used;
  used.width = std::max(1.0, pen->GetWidth() * target.penScale());
  used.opacity = pen->GetOpacity() / 255.0;
  return used;
}

CachedPicture::Pixels count(RowLines& rows, vtkPen* pen, const AggregateTarget& target)
{
  return CachedPicture::tinted(
      drawLines(rows.toCount(), target.map(), target.width(), target.height(), penOf(pen, target)),
      pen);
}

} // namespace

vtkStandardNewMacro(ParallelLines);

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
  return this->Visible && table && this->Pen->GetLineType() == vtkPen::SOLID_LINE &&
         !target.wantsShapes(Shapes::Bundle, table->GetNumberOfRows()) &&
         axesOf(this, table).size() > 1 &&
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

void ParallelLines::PaintAll(vtkContext2D* painter, const AggregateTarget& target)
{
  vtkTable* const table = this->Data->GetInput();
  const std::vector<Axis> axes = axesOf(this, table);
  vtkUnsignedCharArray* const colors = this->LineColors();
  CachedPicture::Key key = keyOf(axes);
  addColumn(key, colors);
  this->Lines.paint(painter, target, key,
                    [&]
                    {
                      RowLines rows(axes);
                      LineColor color{};
                      for (vtkIdType row = 0; row < table->GetNumberOfRows(); ++row)
                      {
                        // Lines have the pen's opacity in any colour.
                        if (colors)
                          std::copy_n(colors->GetPointer(4 * row), color.size(), color.data());
                        rows.add(row, color);
                      }
                      if (!colors)
                        return count(rows, painter->GetPen(), target);
                      return paintLines(rows.toCount(), rows.lineColors(), target.map(),
                                        target.width(), target.height(),
                                        penOf(painter->GetPen(), target));
                    });
}

void ParallelLines::PaintSelected(vtkContext2D* painter, const AggregateTarget& target)
{
  vtkTable* const table = this->Data->GetInput();
  const std::vector<Axis> axes = axesOf(this, table);
  painter->GetPen()->SetColor(selectedColor[0], selectedColor[1], selectedColor[2],
                              selectedColor[3]);
  CachedPicture::Key key = keyOf(axes);
  addColumn(key, this->Selection);
  this->SelectedLines.paint(painter, target, key,
                            [&]
                            {
                              RowLines rows(axes);
                              for (vtkIdType i = 0; i < this->Selection->GetNumberOfValues(); ++i)
                              {
                                const vtkIdType row = this->Selection->GetValue(i);
                                if (row >= 0 && row < table->GetNumberOfRows())
                                  rows.add(row, {});
                              }
                              return count(rows, painter->GetPen(), target);
                            });
}
} // namespace Talmesh
