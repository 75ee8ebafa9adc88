#include "vtk/CachedPoints.h"

#include "vtk/PlotItemPainting.h"
#include "vtk/PointPicking.h"

#include <vtkAxis.h>
#include <vtkContextMapper2D.h>
#include <vtkDoubleArray.h>
#include <vtkIdTypeArray.h>
#include <vtkPoints2D.h>
#include <vtkTable.h>
#include <vtkUnsignedCharArray.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Talmesh
{
namespace
{
constexpr double leastInFloat = std::numeric_limits<float>::min();
constexpr double mostInFloat = std::numeric_limits<float>::max();

bool isBeyondFloat(double value)
{
  const double magnitude = std::fabs(value);
  return magnitude > 0.0 && (magnitude < leastInFloat || magnitude > mostInFloat);
}

/// @param logarithms every second value, of so many points; a column of several components has more
/// values
void calculateExtremeLogarithms(vtkDoubleArray* column, double shift, double scale,
                                bool ofMagnitudes, vtkIdType points, float* logarithms)
{
  for (vtkIdType i = 0; i < std::min(points, column->GetNumberOfValues()); ++i)
  {
    const double value = (column->GetValue(i) + shift) * scale;
    if (isBeyondFloat(value))
      logarithms[2 * i] = static_cast<float>(std::log10(ofMagnitudes ? std::fabs(value) : value));
  }
}
} // namespace

void CachedPoints::Update()
{
  vtkTable* const table = this->Data->GetInput();
  if (!this->Visible || !table)
    return;
  const ColorsWithin colors(table, this->ColorArrayName, this->ScalarVisibility, this->Colors);
  const PointInputs inputs = this->Inputs();
  const bool current = this->Points && inputs == this->CachedInputs;
  // The item may be newer than its points for reasons that say nothing of them; VTK, in turn,
  // compares too little to see every change of an axis.
  if (current)
    this->BuildTime.Modified();
  else
    this->MTime.Modified();
  this->vtkPlotPoints::Update();
  if (!current)
    this->CalculateExtremeLogarithms();
  this->CachedInputs = inputs;
}

vtkIdTypeArray* CachedPoints::OwnSelection()
{
  if (!this->Selection)
    this->Selection = vtkIdTypeArray::New();
  return this->Selection;
}

bool CachedPoints::SelectPoints(const vtkVector2f& min, const vtkVector2f& max)
{
  if (!this->Points)
    return false;
  pickInRectangle(this->Points, min, max, this->OwnSelection());
  return this->Selection->GetNumberOfValues() > 0;
}

bool CachedPoints::SelectPointsInPolygon(const vtkContextPolygon& polygon)
{
  if (!this->Points)
    return false;
  pickInPolygon(this->Points, polygon, this->OwnSelection());
  return this->Selection->GetNumberOfValues() > 0;
}

PointInputs CachedPoints::Inputs() const
{
  vtkTable* const table = this->Data->GetInput();
  PointInputs inputs = pointInputs(
      this->Data, this->XAxis, this->YAxis, this->UseIndexForXSeries, this->ShiftScale,
      this->ValidPointMaskName.empty() ? nullptr
                                       : table->GetColumnByName(this->ValidPointMaskName.c_str()));
  addColors(inputs, table, this->ColorArrayName, this->ScalarVisibility, this->LookupTable);
  return inputs;
}

// VTK takes the logarithm of what single precision has left of a value.
void CachedPoints::CalculateExtremeLogarithms()
{
  vtkDataArray* columns[2];
  if (!(this->LogX || this->LogY) || !this->Points || this->Points->GetNumberOfPoints() == 0 ||
      !this->GetDataArrays(this->Data->GetInput(), columns))
    return;
  const vtkIdType count = this->Points->GetNumberOfPoints();
  auto* const points = static_cast<float*>(this->Points->GetVoidPointer(0));
  auto* const x = vtkDoubleArray::SafeDownCast(columns[0]);
  auto* const y = vtkDoubleArray::SafeDownCast(columns[1]);
  if (this->LogX && x)
    calculateExtremeLogarithms(x, this->ShiftScale.GetX(), this->ShiftScale.GetWidth(),
                               this->XAxis->GetUnscaledMinimum() < 0.0, count, points);
  if (this->LogY && y)
    calculateExtremeLogarithms(y, this->ShiftScale.GetY(), this->ShiftScale.GetHeight(),
                               this->YAxis->GetUnscaledMinimum() < 0.0, count, points + 1);
}
} // namespace Talmesh
