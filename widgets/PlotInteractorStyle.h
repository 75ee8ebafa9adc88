#ifndef PlotInteractorStyle_h
#define PlotInteractorStyle_h

#include "vtk/VtkCompat.h"

#include <vtkContextInteractorStyle.h>

/// A vtkContextInteractorStyle whose timer, which a changed scene starts, paints the scene only if
/// nothing else has painted it by then.
class PlotInteractorStyle : public vtkContextInteractorStyle
{
public:
  static PlotInteractorStyle* New();
  TALMESH_VTK_TYPE(PlotInteractorStyle, vtkContextInteractorStyle);

protected:
  PlotInteractorStyle() = default;
  ~PlotInteractorStyle() override = default;

  void RenderNow() override;

private:
  PlotInteractorStyle(const PlotInteractorStyle&) = delete;
  void operator=(const PlotInteractorStyle&) = delete;
};

#endif
