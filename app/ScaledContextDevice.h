#ifndef ScaledContextDevice_h
#define ScaledContextDevice_h

#include "vtk/VtkCompat.h"

#include <vtkOpenGLContextDevice2D.h>

#include <vector>

/// Paints a scene enlarged, and of that the part that begins at an offset. Lines, points and
/// markers are enlarged by as much as their places, while the pen keeps the width that the scene
/// gave it. Text is not enlarged: it follows the render window's dots per inch.
class ScaledContextDevice : public vtkOpenGLContextDevice2D
{
public:
  static ScaledContextDevice* New();
  TALMESH_VTK_TYPE(ScaledContextDevice, vtkOpenGLContextDevice2D);

  void SetScale(double factor) { this->Scale = factor; }
  /// The enlarged pixel that is painted into the window's lower left corner.
  void SetOffset(int x, int y);

  void SetMatrix(vtkMatrix3x3* matrix) override;
  void SetClipping(int* rectangle) override;
  void DrawPoly(float* points, int n, unsigned char* colors = nullptr, int components = 0) override;
  void DrawLines(float* points, int n, unsigned char* colors = nullptr,
                 int components = 0) override;
  void DrawPoints(float* points, int n, unsigned char* colors = nullptr,
                  int components = 0) override;
  void DrawPointSprites(vtkImageData* sprite, float* points, int n, unsigned char* colors = nullptr,
                        int components = 0) override;
  void DrawMarkers(int shape, bool highlight, float* points, int n, unsigned char* colors = nullptr,
                   int components = 0) override;
  using vtkOpenGLContextDevice2D::DrawString;
  void DrawString(float* point, const vtkUnicodeString& text) override;

protected:
  ScaledContextDevice() = default;
  ~ScaledContextDevice() override = default;

private:
  void DrawShapes(const std::vector<double>& triangles, const float* points, int n,
                  const unsigned char* colors, int components);

  double Scale = 1.0;
  int Offset[2] = {0, 0};
};

#endif
