#ifndef vtkSelectableScatterPlotMatrix_h
#define vtkSelectableScatterPlotMatrix_h

#include "vtk/VtkCompat.h"

#include <vtkContextScene.h>
#include <vtkNew.h>
#include <vtkScatterPlotMatrix.h>

#include <memory>

namespace Talmesh
{
struct GestureHandling;
}

/// A scatter-plot matrix whose charts are vtkSelectableChartXY, and which shows another pair at
/// once: VTK's turn of the large chart goes on in a timer that outlives the matrix's place in the
/// scene and the matrix itself. It paints once where VTK's asks for a second painting after each.
class vtkSelectableScatterPlotMatrix : public vtkScatterPlotMatrix
{
public:
  static vtkSelectableScatterPlotMatrix* New();
  TALMESH_VTK_TYPE(vtkSelectableScatterPlotMatrix, vtkScatterPlotMatrix);

  vtkChart* GetChart(const vtkVector2i& position) override;
  /// Paints nothing and is nowhere without a scene of its own, as vtkSelectableChartXY.
  bool Paint(vtkContext2D* painter) override;
  bool Hit(const vtkContextMouseEvent& mouse) override { return Scene && Superclass::Hit(mouse); }
  bool MouseButtonReleaseEvent(const vtkContextMouseEvent& mouse) override;
  /// What the charts made from now on ask, see vtkSelectableChartXY.
  void SetGestures(std::shared_ptr<const Talmesh::GestureHandling> gestures);
  /// The table given with SetInput().
  vtkTable* GetShownTable() const;

#if TALMESH_VTK_MATRIX_LEAVES_AXES
  void Update() override;
  bool SetActivePlot(const vtkVector2i& position) override;
#endif

protected:
  vtkSelectableScatterPlotMatrix();
  ~vtkSelectableScatterPlotMatrix() override = default;

private:
  vtkSelectableScatterPlotMatrix(const vtkSelectableScatterPlotMatrix&) = delete;
  void operator=(const vtkSelectableScatterPlotMatrix&) = delete;

#if TALMESH_VTK_MATRIX_LEAVES_AXES
  void GiveExtent(const vtkVector2i& position);
#endif

  std::shared_ptr<const Talmesh::GestureHandling> Gestures;
  /// Takes VTK's wishes to paint again.
  vtkNew<vtkContextScene> Wishes;
};

#endif
