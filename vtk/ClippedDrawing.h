#ifndef ClippedDrawing_h
#define ClippedDrawing_h

#include "vtk/ClipRegion.h"
#include "vtk/VtkCompat.h"

#include <vtkBrush.h>
#include <vtkMatrix3x3.h>
#include <vtkNew.h>
#include <vtkPen.h>
#include <vtkRenderingCoreEnums.h>

#include <array>
#include <cmath>

/// A context device that itself cuts what it draws at the rectangle of SetClipping, for devices
/// whose drawings outlive the pixels of the screen, on which that rectangle alone works. Text,
/// images, ellipses and poly data, which charts do not clip, are drawn whole.
template <typename Device>
class ClippedDrawing : public Device
{
public:
  TALMESH_VTK_ABSTRACT_TYPE(ClippedDrawing, Device);

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

  /// The device draws markers with the operations above and so cuts them too, all but discs.
  void DrawMarkers(int shape, bool highlight, float* points, int n, unsigned char* colors = nullptr,
                   int components = 0) override
  {
    if (!this->Clips)
      return Device::DrawMarkers(shape, highlight, points, n, colors, components);
    const Talmesh::ClipRegion region = this->Region();
    const double reach = 0.5 * this->Pen->GetWidth();
    Talmesh::ClippedPoints left = region.points(points, n, colors, components, reach);
    if (shape == VTK_MARKER_CIRCLE)
      left = this->WithoutCutDiscs(region, left, components);
    if (!left.empty())
      Device::DrawMarkers(shape, highlight, left.points.data(), left.size(), left.colorData(),
                          components);
  }

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
  Talmesh::ClipRegion Region()
  {
    vtkNew<vtkMatrix3x3> matrix;
    this->GetMatrix(matrix);
    return {this->Rectangle, matrix};
  }

  /// Draws those discs that an edge cuts, in the pen's colour or their own, and gives the others.
  Talmesh::ClippedPoints WithoutCutDiscs(const Talmesh::ClipRegion& region,
                                         Talmesh::ClippedPoints& discs, int components)
  {
    const double radius = 0.5 * this->Pen->GetWidth();
    vtkNew<vtkBrush> before;
    before->DeepCopy(this->Brush);
    Talmesh::ClippedPoints whole;
    for (int i = 0; i < discs.size(); ++i)
    {
      const float* centre = discs.points.data() + 2 * i;
      const unsigned char* color = discs.colorData();
      if (color)
        color += i * components;
      if (!region.holds(centre, radius))
      {
        this->DrawCutDisc(centre, radius, color, components);
        continue;
      }
      whole.points.insert(whole.points.end(), centre, centre + 2);
      if (color)
        whole.colors.insert(whole.colors.end(), color, color + components);
    }
    this->Brush->DeepCopy(before);
    return whole;
  }

  void DrawCutDisc(const float* centre, double radius, const unsigned char* color, int components)
  {
    this->Brush->SetColor(this->Pen->GetColorObject());
    if (color && components >= 3)
      this->Brush->SetColor(color[0], color[1], color[2], components > 3 ? color[3] : 255);
    vtkNew<vtkMatrix3x3> matrix;
    this->GetMatrix(matrix);
    constexpr int corners = 24;
    constexpr double step = 2.0 * 3.14159265358979323846 / corners;
    std::array<float, 2 * corners> outline;
    for (int i = 0; i < corners; ++i)
    {
      const auto x = static_cast<std::size_t>(2 * i);
      outline[x] =
          static_cast<float>(centre[0] + radius * std::cos(i * step) / matrix->GetElement(0, 0));
      outline[x + 1] =
          static_cast<float>(centre[1] + radius * std::sin(i * step) / matrix->GetElement(1, 1));
    }
    this->DrawPolygon(outline.data(), corners);
  }

  Talmesh::ClipRectangle Rectangle;
  bool Clips = false;
};

#endif
