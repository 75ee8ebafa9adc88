#include "app/ScaledContextDevice.h"

#include "app/ScaledMarker.h"

#include <vtkBrush.h>
#include <vtkMatrix3x3.h>
#include <vtkNew.h>
#include <vtkObjectFactory.h>
#include <vtkOpenGLRenderWindow.h>
#include <vtkPen.h>
#include <vtkRenderingCoreEnums.h>
#include <vtkUnicodeString.h>

#include <algorithm>
#include <cmath>

vtkStandardNewMacro(ScaledContextDevice);

namespace
{

/// The base class maps the coordinates 0.5 to size - 0.5 onto the pixels 0 to size, so that one
/// part of a picture would not fit the next.
struct PixelScale
{
  explicit PixelScale(int size)
      : Unit((size - 1.0) / size)
  {
  }

  double CoordinateOf(double pixel) const { return pixel * this->Unit + 0.5; }
  double PixelAt(double coordinate) const { return (coordinate - 0.5) / this->Unit; }

  /// The length of one pixel.
  double Unit;
};

/// While it lives, a pen draws enlarged.
class EnlargedPen
{
public:
  EnlargedPen(vtkPen* pen_, double scale)
      : pen(pen_)
      , width(pen_->GetWidth())
  {
    pen->SetWidth(static_cast<float>(width * scale));
  }

  ~EnlargedPen() { pen->SetWidth(width); }

  EnlargedPen(const EnlargedPen&) = delete;
  EnlargedPen& operator=(const EnlargedPen&) = delete;

private:
  vtkPen* pen;
  float width;
};

/// While it lives, areas have a pen's colour.
class BrushLikePen
{
public:
  BrushLikePen(vtkBrush* brush_, vtkPen* pen)
      : brush(brush_)
  {
    before->DeepCopy(brush);
    brush->SetTexture(nullptr);
    brush->SetColor(pen->GetColorObject());
  }

  ~BrushLikePen() { brush->DeepCopy(before); }

  BrushLikePen(const BrushLikePen&) = delete;
  BrushLikePen& operator=(const BrushLikePen&) = delete;

private:
  vtkBrush* brush;
  vtkNew<vtkBrush> before;
};

} // namespace

void ScaledContextDevice::SetOffset(int x, int y)
{
  this->Offset[0] = x;
  this->Offset[1] = y;
}

void ScaledContextDevice::SetMatrix(vtkMatrix3x3* matrix)
{
  vtkNew<vtkMatrix3x3> enlarged;
  for (int axis = 0; axis < 2; ++axis)
  {
    const PixelScale pixels(this->RenderWindow->GetSize()[axis]);
    enlarged->SetElement(axis, axis, this->Scale * pixels.Unit);
    enlarged->SetElement(axis, 2, pixels.CoordinateOf(-this->Offset[axis]));
  }
  vtkMatrix3x3::Multiply3x3(enlarged, matrix, enlarged);
  this->Superclass::SetMatrix(enlarged);
}

void ScaledContextDevice::SetClipping(int* rectangle)
{
  int part[4];
  for (int axis = 0; axis < 2; ++axis)
  {
    const double low = this->Scale * rectangle[axis] - this->Offset[axis];
    const double high = low + this->Scale * rectangle[axis + 2];
    // The base class would move a rectangle that begins left of or below the window into it.
    part[axis] = static_cast<int>(std::floor(std::max(low, 0.0)));
    part[axis + 2] = std::max(static_cast<int>(std::ceil(high)) - part[axis], 0);
  }
  this->Superclass::SetClipping(part);
}

void ScaledContextDevice::DrawPoly(float* points, int n, unsigned char* colors, int components)
{
  const EnlargedPen pen(this->Pen, this->Scale);
  this->Superclass::DrawPoly(points, n, colors, components);
}

void ScaledContextDevice::DrawLines(float* points, int n, unsigned char* colors, int components)
{
  const EnlargedPen pen(this->Pen, this->Scale);
  this->Superclass::DrawLines(points, n, colors, components);
}

void ScaledContextDevice::DrawPointSprites(vtkImageData* sprite, float* points, int n,
                                           unsigned char* colors, int components)
{
  const EnlargedPen pen(this->Pen, this->Scale);
  this->Superclass::DrawPointSprites(sprite, points, n, colors, components);
}

void ScaledContextDevice::DrawPoints(float* points, int n, unsigned char* colors, int components)
{
  this->DrawMarkers(VTK_MARKER_SQUARE, false, points, n, colors, components);
}

void ScaledContextDevice::DrawMarkers(int shape, bool highlight, float* points, int n,
                                      unsigned char* colors, int components)
{
  const double size = this->Pen->GetWidth() * this->Scale;
  this->DrawShapes(Talmesh::app::markerTriangles(shape, highlight, size, this->Scale), points, n,
                   colors, components);
}

/// OpenGL leaves out a whole point when its centre is not in the window, that is in the part of the
/// picture, it limits their size, and markers made for it would be pixels enlarged.
void ScaledContextDevice::DrawShapes(const std::vector<double>& triangles, const float* points,
                                     int n, const unsigned char* colors, int components)
{
  vtkNew<vtkMatrix3x3> matrix;
  this->GetMatrix(matrix);
  const int* size = this->RenderWindow->GetSize();
  const double unit[] = {PixelScale(size[0]).Unit, PixelScale(size[1]).Unit};
  const double reach = *std::max_element(triangles.begin(), triangles.end());
  std::vector<float> corners;
  std::vector<unsigned char> cornerColors;
  for (int i = 0; i < n; ++i)
  {
    const double point[] = {points[2 * i], points[2 * i + 1], 1.0};
    double centre[3];
    matrix->MultiplyPoint(point, centre);
    const auto isSeen = [&](int axis)
    { return centre[axis] > -reach && centre[axis] < size[axis] + reach; };
    if (!isSeen(0) || !isSeen(1))
      continue;
    for (std::size_t corner = 0; corner < triangles.size(); corner += 2)
    {
      corners.push_back(static_cast<float>(centre[0] + unit[0] * triangles[corner]));
      corners.push_back(static_cast<float>(centre[1] + unit[1] * triangles[corner + 1]));
      if (colors)
        cornerColors.insert(cornerColors.end(), colors + i * components,
                            colors + (i + 1) * components);
    }
  }
  if (corners.empty())
    return;
  const BrushLikePen brush(this->Brush, this->Pen);
  vtkNew<vtkMatrix3x3> none;
  this->PushMatrix();
  this->Superclass::SetMatrix(none);
  this->CoreDrawTriangles(corners, colors ? cornerColors.data() : nullptr, components);
  this->PopMatrix();
}

void ScaledContextDevice::DrawString(float* point, const vtkUnicodeString& text)
{
  // Text is a picture that repeats at its edges: between two pixels its top would show below it.
  vtkNew<vtkMatrix3x3> matrix;
  this->GetMatrix(matrix);
  vtkNew<vtkMatrix3x3> whole;
  float origin[2];
  for (int axis = 0; axis < 2; ++axis)
  {
    const PixelScale pixels(this->RenderWindow->GetSize()[axis]);
    const double scale = matrix->GetElement(axis, axis);
    const double pixel = pixels.PixelAt(scale * point[axis] + matrix->GetElement(axis, 2));
    whole->SetElement(axis, axis, scale);
    whole->SetElement(axis, 2, pixels.CoordinateOf(std::floor(pixel)));
    // The base class rounds down to whole pixels: it must find 0.
    constexpr double safely = 0.25;
    origin[axis] = static_cast<float>(safely / scale);
  }
  this->PushMatrix();
  this->Superclass::SetMatrix(whole);
  this->Superclass::DrawString(origin, text);
  this->PopMatrix();
}
