#ifndef PlotItemPainting_h
#define PlotItemPainting_h

#include "vtk/HighlightColor.h"

#include <vtkRect.h>
#include <vtkSmartPointer.h>
#include <vtkStdString.h>
#include <vtkType.h>

class vtkContext2D;
class vtkIdTypeArray;
class vtkObject;
class vtkPen;
class vtkPoints2D;
class vtkTable;
class vtkUnsignedCharArray;

/// What the plot items of this library have in common when they paint.
namespace Talmesh
{
/// Gives the painter's pen the colour of what is selected, and a width that is as much above
/// @p width, in pixels, as it says.
void applyHighlightPen(vtkContext2D* painter, const Highlight& highlight, float width);

/// Applies @p pen and draws a horizontal line across @p rect at half its height.
void paintLegendLine(vtkContext2D* painter, vtkPen* pen, const vtkRectf& rect);

/// Size of a marker in pixels: @p markerSize if it is set (not negative), else 2.3 times the pen
/// width but at least 8.
float effectiveMarkerSize(float markerSize, vtkPen* pen);

/// Lets an item that knows nothing of its chart's shift and scale paint under them: while this
/// object lives, the painter takes (x, y) to ((x + shift x) * scale x, (y + shift y) * scale y).
/// Points that are logarithms are shifted as such, as the chart does with those of its axes.
class ShiftedPainting
{
public:
  /// @param shiftScale the shifts as position, the scales as size
  ShiftedPainting(vtkContext2D* painter, const vtkRectd& shiftScale);
  ~ShiftedPainting();
  ShiftedPainting(const ShiftedPainting&) = delete;
  ShiftedPainting& operator=(const ShiftedPainting&) = delete;

private:
  vtkContext2D* shifted;
};

/// Replaces a plot item's selection, while this object lives, by its ids inside
/// [0, pointCount): the painting of vtkPlotPoints reads coordinates for every id it is given. If
/// the points have changed since the selected ones were gathered, a copy, which counts as new,
/// makes the painting gather them again. Otherwise a selection that has no other ids, and a null
/// one, stays as it is.
class SelectionWithin
{
public:
  /// @param selection the item's selection pointer; it must outlive this object.
  SelectionWithin(vtkIdTypeArray*& selection, vtkPoints2D* points, vtkObject* selectedPoints);
  ~SelectionWithin();
  SelectionWithin(const SelectionWithin&) = delete;
  SelectionWithin& operator=(const SelectionWithin&) = delete;

private:
  vtkIdTypeArray*& selection;
  vtkIdTypeArray* original;
  vtkSmartPointer<vtkIdTypeArray> inside;
};

/// Keeps vtkPlotPoints from colouring by a column that @p table does not have (any more) or that
/// has too few rows: its reading of the table would call a null pointer and its painting read past
/// the colours. The item's colours are released and its visibility of scalars is off while this
/// object lives.
class ColorsWithin
{
public:
  ColorsWithin(vtkTable* table, const vtkStdString& column, vtkTypeBool& visibility,
               vtkUnsignedCharArray*& colors);
  ~ColorsWithin();
  ColorsWithin(const ColorsWithin&) = delete;
  ColorsWithin& operator=(const ColorsWithin&) = delete;

private:
  vtkTypeBool& visibility;
  vtkTypeBool original;
};
} // namespace Talmesh

#endif
