#ifndef PointInputs_h
#define PointInputs_h

#include <vtkRect.h>
#include <vtkStdString.h>

#include <vector>

class vtkAbstractArray;
class vtkAxis;
class vtkContextMapper2D;
class vtkObject;
class vtkTable;

namespace Talmesh
{
/// What the cached points of a vtkPlotPoints are made of, as numbers that are equal while they are
/// current. VTK makes the points anew whenever the item was modified, which a selection or a pen
/// does as well as data.
using PointInputs = std::vector<double>;

/// What of them does not lie in the columns.
/// @param shiftScale of the item
PointInputs scaleInputs(vtkAxis* x, vtkAxis* y, bool useIndexForX, const vtkRectd& shiftScale);

/// @param shiftScale of the item
/// @param validPointMask the column that marks valid points, null for none
PointInputs pointInputs(vtkContextMapper2D* data, vtkAxis* x, vtkAxis* y, bool useIndexForX,
                        const vtkRectd& shiftScale, vtkAbstractArray* validPointMask);

/// Appends what the colours of the points are made of, nothing if they have none.
void addColors(PointInputs& inputs, vtkTable* table, const vtkStdString& column, bool visible,
               vtkObject* lookupTable);

/// Appends what tells one content of a column, which may be null, from others.
void addColumn(std::vector<double>& key, vtkAbstractArray* column);
} // namespace Talmesh

#endif
