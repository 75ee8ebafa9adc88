#ifndef vtkSelectableScatterPlotMatrix_h
#define vtkSelectableScatterPlotMatrix_h

#include "vtk/VtkCompat.h"

#include <vtkScatterPlotMatrix.h>

/// A scatter-plot matrix in whose large chart selections can be added to, subtracted from and
/// toggled. VTK's chart takes the selection so far from plots in its first corner only, while its
/// matrix puts the plot into the opposite one.
class vtkSelectableScatterPlotMatrix : public vtkScatterPlotMatrix
{
public:
  static vtkSelectableScatterPlotMatrix* New();
  TALMESH_VTK_TYPE(vtkSelectableScatterPlotMatrix, vtkScatterPlotMatrix);

protected:
  vtkSelectableScatterPlotMatrix() = default;
  ~vtkSelectableScatterPlotMatrix() override = default;

  void AddSupplementaryPlot(vtkChart* chart, int plotType, vtkStdString row, vtkStdString column,
                            int plotCorner) override;

private:
  vtkSelectableScatterPlotMatrix(const vtkSelectableScatterPlotMatrix&) = delete;
  void operator=(const vtkSelectableScatterPlotMatrix&) = delete;
};

#endif
