#include "app/ScaledContextDevice.h"

#include <vtkMatrix3x3.h>
#include <vtkNew.h>
#include <vtkObjectFactory.h>
#include <vtkOpenGLRenderWindow.h>
#include <vtkPen.h>
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

void ScaledContextDevice::ApplyPen(vtkPen* pen)
{
  this->Superclass::ApplyPen(pen);
  this->Pen->SetWidth(static_cast<float>(this->Pen->GetWidth() * this->Scale));
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
