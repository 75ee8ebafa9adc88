#include "app/ScaledContextDevice.h"

#include <vtkMatrix3x3.h>
#include <vtkNew.h>
#include <vtkObjectFactory.h>
#include <vtkPen.h>
#include <vtkUnicodeString.h>

#include <algorithm>
#include <cmath>

vtkStandardNewMacro(ScaledContextDevice);

void ScaledContextDevice::SetOffset(int x, int y)
{
  this->Offset[0] = x;
  this->Offset[1] = y;
}

void ScaledContextDevice::SetMatrix(vtkMatrix3x3* matrix)
{
  vtkNew<vtkMatrix3x3> enlarged;
  enlarged->SetElement(0, 0, this->Scale);
  enlarged->SetElement(1, 1, this->Scale);
  enlarged->SetElement(0, 2, -this->Offset[0]);
  enlarged->SetElement(1, 2, -this->Offset[1]);
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
  // Text is a picture, whose pixels must fall on whole ones of the window, or its edges smear.
  vtkNew<vtkMatrix3x3> matrix;
  this->GetMatrix(matrix);
  float moved[2];
  vtkNew<vtkMatrix3x3> whole;
  for (int axis = 0; axis < 2; ++axis)
  {
    const double scale = matrix->GetElement(axis, axis);
    const double offset = matrix->GetElement(axis, 2);
    whole->SetElement(axis, axis, scale);
    whole->SetElement(axis, 2, std::floor(offset));
    // The base class rounds down what should already be whole.
    constexpr double safely = 0.25;
    const double pixel = std::floor(scale * point[axis] + offset) - std::floor(offset);
    moved[axis] = static_cast<float>((pixel + safely) / scale);
  }
  this->PushMatrix();
  this->Superclass::SetMatrix(whole);
  this->Superclass::DrawString(moved, text);
  this->PopMatrix();
}
