#ifndef vtkSelectableChartMatrix_h
#define vtkSelectableChartMatrix_h

#include "vtk/VtkCompat.h"

#include <vtkChartMatrix.h>

/// A chart matrix whose cells are vtkSelectableChartXY.
class vtkSelectableChartMatrix : public vtkChartMatrix
{
public:
  static vtkSelectableChartMatrix* New();
  TALMESH_VTK_TYPE(vtkSelectableChartMatrix, vtkChartMatrix);

  vtkChart* GetChart(const vtkVector2i& position) override;
  /// Paints nothing without a scene of its own, as vtkSelectableChartXY.
  bool Paint(vtkContext2D* painter) override { return Scene && Superclass::Paint(painter); }

protected:
  vtkSelectableChartMatrix() = default;
  ~vtkSelectableChartMatrix() override = default;

private:
  vtkSelectableChartMatrix(const vtkSelectableChartMatrix&) = delete;
  void operator=(const vtkSelectableChartMatrix&) = delete;
};

#endif
