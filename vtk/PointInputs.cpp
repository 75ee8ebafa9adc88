#include "vtk/PointInputs.h"

#include <vtkAxis.h>
#include <vtkContextMapper2D.h>
#include <vtkDataArray.h>
#include <vtkTable.h>

#include <cstdint>

namespace Talmesh
{
namespace
{
/// Points on a logarithmic axis are logarithms, of magnitudes if the axis has negative values.
void addScale(PointInputs& inputs, vtkAxis* axis)
{
  const bool logarithmic = axis && axis->GetLogScaleActive();
  inputs.push_back(logarithmic);
  inputs.push_back(logarithmic && axis->GetUnscaledMinimum() < 0.0);
}
} // namespace

void addColumn(std::vector<double>& key, vtkAbstractArray* column)
{
  key.push_back(static_cast<double>(reinterpret_cast<std::uintptr_t>(column)));
  key.push_back(column ? static_cast<double>(column->GetMTime()) : 0.0);
  key.push_back(column ? static_cast<double>(column->GetNumberOfTuples()) : 0.0);
}

PointInputs scaleInputs(vtkAxis* x, vtkAxis* y, bool useIndexForX, const vtkRectd& shiftScale)
{
  PointInputs inputs;
  // Items take no logarithms unless they have both axes.
  const bool placed = x && y;
  addScale(inputs, placed ? x : nullptr);
  addScale(inputs, placed ? y : nullptr);
  inputs.insert(inputs.end(), {shiftScale.GetX(), shiftScale.GetY(), shiftScale.GetWidth(),
                               shiftScale.GetHeight(), double(useIndexForX)});
  return inputs;
}

PointInputs pointInputs(vtkContextMapper2D* data, vtkAxis* x, vtkAxis* y, bool useIndexForX,
                        const vtkRectd& shiftScale, vtkAbstractArray* validPointMask)
{
  PointInputs inputs;
  vtkTable* const table = data->GetInput();
  inputs.push_back(static_cast<double>(table->GetMTime()));
  addColumn(inputs, useIndexForX ? nullptr : data->GetInputArrayToProcess(0, table));
  addColumn(inputs, data->GetInputArrayToProcess(1, table));
  addColumn(inputs, validPointMask);
  const PointInputs scales = scaleInputs(x, y, useIndexForX, shiftScale);
  inputs.insert(inputs.end(), scales.begin(), scales.end());
  return inputs;
}
void addColors(PointInputs& inputs, vtkTable* table, const vtkStdString& column, bool visible,
               vtkObject* lookupTable)
{
  inputs.push_back(visible);
  if (!visible || column.empty())
    return;
  addColumn(inputs, table->GetColumnByName(column.c_str()));
  inputs.push_back(static_cast<double>(reinterpret_cast<std::uintptr_t>(lookupTable)));
  inputs.push_back(lookupTable ? static_cast<double>(lookupTable->GetMTime()) : 0.0);
}
} // namespace Talmesh
