#ifndef ScaledContextDevice_h
#define ScaledContextDevice_h

#include "vtk/VtkCompat.h"

#include <vtkOpenGLContextDevice2D.h>

/// Paints a scene enlarged, and of that the part that begins at an offset. Text is not enlarged:
/// it follows the render window's dots per inch.
class ScaledContextDevice : public vtkOpenGLContextDevice2D
{
public:
  static ScaledContextDevice* New();
  TALMESH_VTK_TYPE(ScaledContextDevice, vtkOpenGLContextDevice2D);

  void SetScale(double factor) { this->Scale = factor; }
  /// The enlarged pixel that is painted into the window's lower left corner.
  void SetOffset(int x, int y);

  void SetMatrix(vtkMatrix3x3* matrix) override;
  void ApplyPen(vtkPen* pen) override;
  void SetClipping(int* rectangle) override;
  using vtkOpenGLContextDevice2D::DrawString;
  void DrawString(float* point, const vtkUnicodeString& text) override;

protected:
  ScaledContextDevice() = default;
  ~ScaledContextDevice() override = default;

private:
  double Scale = 1.0;
  int Offset[2] = {0, 0};
};

#endif
