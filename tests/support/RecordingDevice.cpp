// VTK 9.1 deprecates functions that a device must nevertheless define.
#define VTK_DEPRECATION_LEVEL 0

#include "support/RecordingDevice.h"

#include <vtkBrush.h>
#include <vtkContext2D.h>
#include <vtkMatrix3x3.h>
#include <vtkObjectFactory.h>
#include <vtkPen.h>
#include <vtkStdString.h>

#if TALMESH_VTK_HAS_UNICODE_STRING
#include <vtkUnicodeString.h>
#endif

#include <algorithm>
#include <iterator>

vtkStandardNewMacro(RecordingDevice);

namespace
{
RecordingDevice::Color toColor(const unsigned char* rgba)
{
  return {rgba[0], rgba[1], rgba[2], rgba[3]};
}
} // namespace

RecordingDevice::RecordingDevice()
    : matrices{vtkSmartPointer<vtkMatrix3x3>::New()}
{
}

RecordingDevice::~RecordingDevice() = default;

std::vector<RecordingDevice::Call> RecordingDevice::calls(Kind kind) const
{
  std::vector<Call> found;
  std::copy_if(recorded.begin(), recorded.end(), std::back_inserter(found),
               [kind](const Call& call) { return call.kind == kind; });
  return found;
}

void RecordingDevice::setSize(int width, int height)
{
  Geometry[0] = width;
  Geometry[1] = height;
}

RecordingDevice::Call& RecordingDevice::record(Kind kind, const float* points, int n,
                                               const unsigned char* colors, int components)
{
  Call call;
  call.kind = kind;
  for (int i = 0; i < n; ++i)
    call.points.emplace_back(points[2 * i], points[2 * i + 1]);
  call.colors = colors ? static_cast<std::size_t>(n) * static_cast<std::size_t>(components) : 0;
  call.penColor = toColor(Pen->GetColor());
  call.penWidth = Pen->GetWidth();
  call.penType = Pen->GetLineType();
  call.brushColor = toColor(Brush->GetColor());
  recorded.push_back(call);
  return recorded.back();
}

void RecordingDevice::DrawPoly(float* points, int n, unsigned char* colors, int components)
{
  record(Kind::Poly, points, n, colors, components);
}

void RecordingDevice::DrawLines(float* points, int n, unsigned char* colors, int components)
{
  record(Kind::Lines, points, n, colors, components);
}

void RecordingDevice::DrawPoints(float* points, int n, unsigned char* colors, int components)
{
  record(Kind::Points, points, n, colors, components);
}

void RecordingDevice::DrawPointSprites(vtkImageData*, float* points, int n, unsigned char* colors,
                                       int components)
{
  record(Kind::PointSprites, points, n, colors, components);
}

void RecordingDevice::DrawMarkers(int shape, bool highlight, float* points, int n,
                                  unsigned char* colors, int components)
{
  Call& call = record(Kind::Markers, points, n, colors, components);
  call.marker = shape;
  call.highlight = highlight;
}

void RecordingDevice::DrawQuad(float* points, int n)
{
  record(Kind::Quad, points, n);
}

void RecordingDevice::DrawQuadStrip(float* points, int n)
{
  record(Kind::QuadStrip, points, n);
}

void RecordingDevice::DrawColoredPolygon(float* points, int n, unsigned char* colors,
                                         int components)
{
  record(Kind::Polygon, points, n, colors, components);
}

void RecordingDevice::DrawEllipseWedge(float x, float y, float, float, float, float, float, float)
{
  const float center[] = {x, y};
  record(Kind::EllipseWedge, center, 1);
}

void RecordingDevice::DrawEllipticArc(float x, float y, float, float, float, float)
{
  const float center[] = {x, y};
  record(Kind::EllipticArc, center, 1);
}

void RecordingDevice::DrawString(float* point, const vtkStdString& string)
{
  record(Kind::String, point, 1).text = string;
}

void RecordingDevice::DrawMathTextString(float* point, const vtkStdString& string)
{
  record(Kind::MathText, point, 1).text = string;
}

void RecordingDevice::DrawImage(float p[2], float, vtkImageData*)
{
  record(Kind::Image, p, 1);
}

void RecordingDevice::DrawImage(const vtkRectf& pos, vtkImageData*)
{
  record(Kind::Image, pos.GetData(), 1);
}

void RecordingDevice::ComputeStringBounds(const vtkStdString& string, float bounds[4])
{
  ComputeJustifiedStringBounds(string.c_str(), bounds);
}

#if TALMESH_VTK_HAS_UNICODE_STRING
void RecordingDevice::DrawString(float* point, const vtkUnicodeString& string)
{
  record(Kind::String, point, 1).text = string.utf8_str();
}

void RecordingDevice::ComputeStringBounds(const vtkUnicodeString& string, float bounds[4])
{
  ComputeJustifiedStringBounds(string.utf8_str(), bounds);
}
#endif

void RecordingDevice::ComputeJustifiedStringBounds(const char* string, float bounds[4])
{
  bounds[0] = bounds[1] = 0;
  bounds[2] = 6.0f * static_cast<float>(std::string(string).size());
  bounds[3] = 12.0f;
}

void RecordingDevice::SetColor4(unsigned char[4]) {}

void RecordingDevice::SetTexture(vtkImageData*, int) {}

void RecordingDevice::SetPointSize(float) {}

void RecordingDevice::SetLineWidth(float) {}

void RecordingDevice::SetLineType(int) {}

void RecordingDevice::SetMatrix(vtkMatrix3x3* matrix)
{
  matrices.back()->DeepCopy(matrix);
}

void RecordingDevice::GetMatrix(vtkMatrix3x3* matrix)
{
  matrix->DeepCopy(matrices.back());
}

void RecordingDevice::MultiplyMatrix(vtkMatrix3x3* matrix)
{
  vtkMatrix3x3::Multiply3x3(matrices.back(), matrix, matrices.back());
}

void RecordingDevice::PushMatrix()
{
  auto copy = vtkSmartPointer<vtkMatrix3x3>::New();
  copy->DeepCopy(matrices.back());
  matrices.push_back(copy);
}

void RecordingDevice::PopMatrix()
{
  if (matrices.size() > 1)
    matrices.pop_back();
}

void RecordingDevice::SetClipping(int*) {}

void RecordingDevice::EnableClipping(bool) {}

RecordingPainter::RecordingPainter()
{
  painter->Begin(device);
}

RecordingPainter::~RecordingPainter()
{
  painter->End();
}
