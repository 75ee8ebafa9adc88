#include "widgets/PainterDevice3D.h"

#include "vtk/PlainPoints.h"
#include "widgets/PainterDevice.h"
#include "widgets/PainterShapes.h"

#include <vtkBrush.h>
#include <vtkMatrix3x3.h>
#include <vtkObjectFactory.h>
#include <vtkPen.h>
#include <vtkRect.h>
#include <vtkTransform.h>

#include <algorithm>
#include <cmath>
#include <limits>

vtkStandardNewMacro(PainterDevice3D);

PainterDevice3D::PainterDevice3D() = default;
PainterDevice3D::~PainterDevice3D() = default;

PainterDevice3D::Vertex PainterDevice3D::Projected(const float* points, const unsigned char* colors,
                                                   int components, int i) const
{
  double place[3];
  std::copy_n(points + 3 * i, 3, place);
  this->Model->TransformPoint(place, place);
  vtkNew<vtkMatrix3x3> flat;
  this->Flat->GetMatrix(flat);
  const double level[] = {place[0], place[1], 1.0};
  double inScene[3];
  flat->MultiplyPoint(level, inScene);
  const QColor color = colors ? Talmesh::colorOf(colors + i * components, components)
                              : Talmesh::colorOf(this->Pen->GetColor(), 4);
  const auto part = [](int value) { return static_cast<unsigned char>(value); };
  return {{inScene[0], inScene[1], place[2]},
          {part(color.red()), part(color.green()), part(color.blue()), part(color.alpha())}};
}

void PainterDevice3D::Add(std::vector<Shape>& shapes, std::vector<Vertex> vertices)
{
  for (const Vertex& vertex : vertices)
    if (!std::all_of(vertex.place.begin(), vertex.place.end(),
                     [](double part) { return std::isfinite(part); }))
      return;
  for (const auto& plane : this->Planes)
    vertices = Cut(vertices, plane.second);
  if (vertices.empty())
    return;
  double depth = 0.0;
  for (const Vertex& vertex : vertices)
    depth += vertex.place[2] / static_cast<double>(vertices.size());
  shapes.push_back({std::move(vertices), this->Pen->GetWidth(), depth});
}

double PainterDevice3D::Height(const Vertex& vertex, const Plane& plane)
{
  const auto& p = vertex.place;
  return plane[0] * p[0] + plane[1] * p[1] + plane[2] * p[2] + plane[3];
}

// Goes around the edges of a shape, of which a line has one, and leaves out what lies behind.
std::vector<PainterDevice3D::Vertex> PainterDevice3D::Cut(const std::vector<Vertex>& vertices,
                                                          const Plane& plane)
{
  std::vector<Vertex> left;
  const std::size_t edges = vertices.size() == 2 ? 1 : vertices.size();
  for (std::size_t i = 0; i < vertices.size(); ++i)
  {
    const Vertex& from = vertices[i];
    const Vertex& to = vertices[(i + 1) % vertices.size()];
    const double before = Height(from, plane);
    const double behind = Height(to, plane);
    if (before >= 0.0)
      left.push_back(from);
    if (i >= edges || (before >= 0.0) == (behind >= 0.0))
      continue;
    const double part = before / (before - behind);
    Vertex border;
    for (std::size_t axis = 0; axis < 3; ++axis)
      border.place[axis] = from.place[axis] + part * (to.place[axis] - from.place[axis]);
    for (std::size_t k = 0; k < 4; ++k)
      border.color[k] = static_cast<unsigned char>(
          std::lround(from.color[k] + part * (to.color[k] - from.color[k])));
    left.push_back(border);
  }
  return left;
}

void PainterDevice3D::DrawPoly(const float* points, int n, const unsigned char* colors,
                               int components)
{
  for (int i = 0; i + 1 < n; ++i)
    this->Add(this->Lines, {this->Projected(points, colors, components, i),
                            this->Projected(points, colors, components, i + 1)});
}

void PainterDevice3D::DrawLines(const float* points, int n, const unsigned char* colors,
                                int components)
{
  for (int i = 0; i + 1 < n; i += 2)
    this->DrawPoly(points + 3 * i, 2, colors ? colors + i * components : nullptr, components);
}

void PainterDevice3D::DrawPoints(const float* points, int n, const unsigned char* colors,
                                 int components)
{
  for (int i = 0; i < n; ++i)
    this->Add(this->Areas, {this->Projected(points, colors, components, i)});
}

void PainterDevice3D::DrawTriangleMesh(const float* mesh, int n, const unsigned char* colors,
                                       int components)
{
  for (int i = 0; i + 2 < n; i += 3)
    this->Add(this->Areas, {this->Projected(mesh, colors, components, i),
                            this->Projected(mesh, colors, components, i + 1),
                            this->Projected(mesh, colors, components, i + 2)});
}

#if TALMESH_VTK_DRAWS_ARRAYS
void PainterDevice3D::DrawPoints(vtkDataArray* positions, vtkUnsignedCharArray* colors,
                                 std::uintptr_t)
{
  const Talmesh::PlainPoints plain(positions, colors);
  this->DrawPoints(plain.points(), plain.size(), plain.colorData(), plain.components());
}

void PainterDevice3D::DrawTriangleMesh(vtkDataArray* mesh, vtkUnsignedCharArray* colors,
                                       std::uintptr_t)
{
  const Talmesh::PlainPoints plain(mesh, colors);
  this->DrawTriangleMesh(plain.points(), plain.size(), plain.colorData(), plain.components());
}
#endif

void PainterDevice3D::Paint(const Shape& shape)
{
  std::vector<float> corners;
  for (const Vertex& vertex : shape.vertices)
    for (const int axis : {0, 1})
      corners.push_back(static_cast<float>(vertex.place[static_cast<std::size_t>(axis)]));
  std::vector<unsigned char> colors;
  for (const Vertex& vertex : shape.vertices)
    colors.insert(colors.end(), vertex.color.begin(), vertex.color.end());
  this->Flat->GetPen()->SetWidth(shape.width);
  const int count = static_cast<int>(shape.vertices.size());
  if (count == 2)
    this->Flat->DrawPoly(corners.data(), count, colors.data(), 4);
  else
    this->Flat->DrawColoredPolygon(corners.data(), count, colors.data(), 4);
}

std::size_t PainterDevice3D::PaintPoints(std::size_t first)
{
  Shape points = this->Areas[first];
  std::size_t end = first + 1;
  for (; end < this->Areas.size() && this->Areas[end].vertices.size() == 1 &&
         this->Areas[end].width == points.width;
       ++end)
    points.vertices.push_back(this->Areas[end].vertices.front());
  std::vector<float> places;
  std::vector<unsigned char> colors;
  for (const Vertex& vertex : points.vertices)
  {
    places.insert(places.end(),
                  {static_cast<float>(vertex.place[0]), static_cast<float>(vertex.place[1])});
    colors.insert(colors.end(), vertex.color.begin(), vertex.color.end());
  }
  this->Flat->GetPen()->SetWidth(points.width);
  this->Flat->DrawPoints(places.data(), static_cast<int>(points.vertices.size()), colors.data(), 4);
  return end;
}

void PainterDevice3D::PaintAreas()
{
  std::stable_sort(this->Areas.begin(), this->Areas.end(),
                   [](const Shape& a, const Shape& b) { return a.depth < b.depth; });
  const auto count = static_cast<vtkIdType>(this->Areas.size());
  const bool asPicture = count > this->Flat->mostShapes(PainterDevice::Shapes::Points);
  if (asPicture)
    this->Flat->BeginLayer();
  for (std::size_t i = 0; i < this->Areas.size();)
    if (this->Areas[i].vertices.size() == 1)
      i = this->PaintPoints(i);
    else
      this->Paint(this->Areas[i++]);
  if (asPicture)
    this->Flat->EndLayer();
}

void PainterDevice3D::PaintLines(double farthest, bool behind)
{
  for (const Shape& line : this->Lines)
    if ((std::min(line.vertices[0].place[2], line.vertices[1].place[2]) <= farthest) == behind)
      this->Paint(line);
}

void PainterDevice3D::Finish()
{
  vtkNew<vtkMatrix3x3> scene;
  this->Flat->PushMatrix();
  this->Flat->SetMatrix(scene);
  this->Flat->GetPen()->SetLineType(vtkPen::SOLID_LINE);
  double farthest = std::numeric_limits<double>::infinity();
  for (const Shape& area : this->Areas)
    farthest = std::min(farthest, area.depth);
  this->PaintLines(farthest, true);
  this->PaintAreas();
  this->PaintLines(farthest, false);
  this->Flat->PopMatrix();
  this->Lines.clear();
  this->Areas.clear();
}

void PainterDevice3D::ApplyPen(vtkPen* pen)
{
  this->Pen->DeepCopy(pen);
}

void PainterDevice3D::ApplyBrush(vtkBrush*) {}

void PainterDevice3D::SetMatrix(vtkMatrix4x4* matrix)
{
  this->Model->SetMatrix(matrix);
}

void PainterDevice3D::GetMatrix(vtkMatrix4x4* matrix)
{
  matrix->DeepCopy(this->Model->GetMatrix());
}

void PainterDevice3D::MultiplyMatrix(vtkMatrix4x4* matrix)
{
  this->Model->Concatenate(matrix);
}

void PainterDevice3D::PushMatrix()
{
  this->Model->Push();
}

void PainterDevice3D::PopMatrix()
{
  this->Model->Pop();
}

void PainterDevice3D::EnableClippingPlane(int i, double* planeEquation)
{
  std::copy_n(planeEquation, 4, this->Planes[i].begin());
}

void PainterDevice3D::DisableClippingPlane(int i)
{
  this->Planes.erase(i);
}
