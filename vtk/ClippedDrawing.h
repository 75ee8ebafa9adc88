#ifndef ClippedDrawing_h
#define ClippedDrawing_h

#include "vtk/ClipRegion.h"
#include "vtk/PlainPoints.h"
#include "vtk/VtkCompat.h"

#include <vtkMatrix3x3.h>
#include <vtkNew.h>
#include <vtkPen.h>
#include <vtkRenderingCoreEnums.h>

#include <cstdint>

class vtkImageData;

/// A context device that itself cuts what it draws at the rectangle of SetClipping, for devices
/// whose drawings outlive the pixels of the screen, on which that rectangle alone works. Text,
/// images, ellipses and poly data, which charts do not clip, are drawn whole.
template <typename Device>
class ClippedDrawing : public Device
{
public:
  TALMESH_VTK_ABSTRACT_TYPE(ClippedDrawing, Device);

  using Device::DrawPoints;
  using Device::DrawPointSprites;

  void SetClipping(int* rectangle) override
  {
    this->Rectangle = {double(rectangle[0]), double(rectangle[1]),
                       double(rectangle[0]) + rectangle[2], double(rectangle[1]) + rectangle[3]};
    Device::SetClipping(rectangle);
  }

  void EnableClipping(bool enable) override
  {
    this->Clips = enable;
    Device::EnableClipping(enable);
  }

  void DrawPoly(float* points, int n, unsigned char* colors = nullptr, int components = 0) override
  {
    if (!this->Clips)
      return Device::DrawPoly(points, n, colors, components);
    for (Talmesh::ClippedPoints& piece : this->Region().polyLine(points, n, colors, components))
      Device::DrawPoly(piece.points.data(), piece.size(), piece.colorData(), components);
  }

  void DrawLines(float* points, int n, unsigned char* colors = nullptr, int components = 0) override
  {
    if (!this->Clips)
      return Device::DrawLines(points, n, colors, components);
    Talmesh::ClippedPoints left = this->Region().lines(points, n, colors, components);
    if (!left.empty())
      Device::DrawLines(left.points.data(), left.size(), left.colorData(), components);
  }

  void DrawPoints(float* points, int n, unsigned char* colors = nullptr,
                  int components = 0) override
  {
    if (!this->Clips)
      return Device::DrawPoints(points, n, colors, components);
    Talmesh::ClippedPoints left = this->Region().points(points, n, colors, components);
    if (!left.empty())
      Device::DrawPoints(left.points.data(), left.size(), left.colorData(), components);
  }

  void DrawPointSprites(vtkImageData* sprite, float* points, int n, unsigned char* colors = nullptr,
                        int components = 0) override
  {
    if (!this->Clips)
      return Device::DrawPointSprites(sprite, points, n, colors, components);
    Talmesh::ClippedPoints left = this->Region().points(points, n, colors, components);
    if (!left.empty())
      Device::DrawPointSprites(sprite, left.points.data(), left.size(), left.colorData(),
                               components);
  }

  /// Discs are drawn whole if their centre is inside. Of the other shapes those are left that reach
  /// inside: a device draws them with the operations above, which cut them.
  void DrawMarkers(int shape, bool highlight, float* points, int n, unsigned char* colors = nullptr,
                   int components = 0) override
  {
    const DrawingNumbers drawing(this);
    if (!this->Clips)
      return Device::DrawMarkers(shape, highlight, points, n, colors, components);
    const double reach = shape == VTK_MARKER_CIRCLE ? 0.0 : 0.5 * this->Pen->GetWidth();
    Talmesh::ClippedPoints left = this->Region().points(points, n, colors, components, reach);
    if (!left.empty())
      Device::DrawMarkers(shape, highlight, left.points.data(), left.size(), left.colorData(),
                          components);
  }

#if TALMESH_VTK_DRAWS_ARRAYS
  /// As plain numbers: VTK's device reads colours that are not there. It draws numbers as arrays in
  /// its turn.
  void DrawMarkers(int shape, bool highlight, vtkDataArray* positions, vtkUnsignedCharArray* colors,
                   std::uintptr_t cache) override
  {
    if (this->DrawsNumbers)
      return Device::DrawMarkers(shape, highlight, positions, colors, cache);
    const Talmesh::PlainPoints plain(positions, colors);
    this->DrawMarkers(shape, highlight, plain.points(), plain.size(), plain.colorData(),
                      plain.components());
  }
#endif

  void DrawQuad(float* points, int n) override
  {
    if (!this->Clips)
      return Device::DrawQuad(points, n);
    for (int first = 0; first + 4 <= n; first += 4)
      this->DrawPolygon(points + 2 * first, 4);
  }

  void DrawQuadStrip(float* points, int n) override
  {
    if (!this->Clips)
      return Device::DrawQuadStrip(points, n);
    for (int first = 0; first + 4 <= n; first += 2)
    {
      const float* p = points + 2 * first;
      float quad[] = {p[0], p[1], p[2], p[3], p[6], p[7], p[4], p[5]};
      this->DrawPolygon(quad, 4);
    }
  }

  void DrawPolygon(float* points, int n) override
  {
    this->DrawColoredPolygon(points, n, nullptr, 0);
  }

  void DrawColoredPolygon(float* points, int n, unsigned char* colors = nullptr,
                          int components = 0) override
  {
    if (!this->Clips)
      return Device::DrawColoredPolygon(points, n, colors, components);
    for (Talmesh::ClippedPoints& part : this->Region().polygon(points, n, colors, components))
      Device::DrawColoredPolygon(part.points.data(), part.size(), part.colorData(), components);
  }

protected:
  ClippedDrawing() = default;
  ~ClippedDrawing() override = default;

private:
  class DrawingNumbers
  {
  public:
    explicit DrawingNumbers(ClippedDrawing* by)
        : device(by)
    {
      device->DrawsNumbers = true;
    }
    ~DrawingNumbers() { device->DrawsNumbers = false; }
    DrawingNumbers(const DrawingNumbers&) = delete;
    DrawingNumbers& operator=(const DrawingNumbers&) = delete;

  private:
    ClippedDrawing* device;
  };

  Talmesh::ClipRegion Region()
  {
    vtkNew<vtkMatrix3x3> matrix;
    this->GetMatrix(matrix);
    return {this->Rectangle, matrix};
  }

  Talmesh::ClipRectangle Rectangle;
  bool Clips = false;
  bool DrawsNumbers = false;
};

#endif
