#ifndef PainterDevice3D_h
#define PainterDevice3D_h

#include "vtk/VtkCompat.h"

#include <vtkContextDevice3D.h>
#include <vtkMatrix4x4.h>
#include <vtkNew.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

class PainterDevice;
class vtkBrush;
class vtkPen;
class vtkTransform;

/// Paints what a scene has in three dimensions with the device of its two: seen from so far away
/// that nothing far off is smaller. Points hide those behind them, and lines that reach behind all
/// points are hidden by them, as the edges of a box around them are. Nothing is painted before
/// Finish().
class PainterDevice3D : public vtkContextDevice3D
{
public:
  static PainterDevice3D* New();
  TALMESH_VTK_TYPE(PainterDevice3D, vtkContextDevice3D);

  void Use(PainterDevice* device) { this->Flat = device; }
  void Finish();

  void DrawPoly(const float* points, int n, const unsigned char* colors = nullptr,
                int components = 0) override;
  void DrawLines(const float* points, int n, const unsigned char* colors = nullptr,
                 int components = 0) override;
  void DrawPoints(const float* points, int n, const unsigned char* colors = nullptr,
                  int components = 0) override;
  void DrawTriangleMesh(const float* mesh, int n, const unsigned char* colors,
                        int components) override;
#if TALMESH_VTK_DRAWS_ARRAYS
  void DrawPoints(vtkDataArray* positions, vtkUnsignedCharArray* colors, std::uintptr_t) override;
  void DrawTriangleMesh(vtkDataArray* mesh, vtkUnsignedCharArray* colors, std::uintptr_t) override;
#endif
  void ApplyPen(vtkPen* pen) override;
  void ApplyBrush(vtkBrush* brush) override;

  void SetMatrix(vtkMatrix4x4* matrix) override;
  void GetMatrix(vtkMatrix4x4* matrix) override;
  void MultiplyMatrix(vtkMatrix4x4* matrix) override;
  void PushMatrix() override;
  void PopMatrix() override;

  /// Charts of three dimensions clip with planes only.
  void SetClipping(const vtkRecti&) override {}
  void EnableClipping(bool) override {}
  /// Points are seen whose distance from the plane is not negative.
  void EnableClippingPlane(int i, double* planeEquation) override;
  void DisableClippingPlane(int i) override;

protected:
  PainterDevice3D();
  ~PainterDevice3D() override;

private:
  struct Vertex
  {
    std::array<double, 3> place; ///< in the scene; the nearer the larger the third
    std::array<unsigned char, 4> color;
  };

  /// A point, a line or a convex area.
  struct Shape
  {
    std::vector<Vertex> vertices;
    float width;
    double depth;
  };

  Vertex Projected(const float* points, const unsigned char* colors, int components, int i) const;
  /// Keeps what the planes leave of a shape, nothing if a vertex of it is nowhere.
  void Add(std::vector<Shape>& shapes, std::vector<Vertex> vertices);
  using Plane = std::array<double, 4>;
  static double Height(const Vertex& vertex, const Plane& plane);
  static std::vector<Vertex> Cut(const std::vector<Vertex>& vertices, const Plane& plane);
  void PaintLines(double farthest, bool behind);
  void PaintAreas();
  /// @return behind the last of the points of one width that were painted
  std::size_t PaintPoints(std::size_t first);
  void Paint(const Shape& shape);

  PainterDevice* Flat = nullptr;
  vtkNew<vtkPen> Pen;
  vtkNew<vtkTransform> Model;
  std::map<int, Plane> Planes;
  std::vector<Shape> Lines;
  std::vector<Shape> Areas; ///< points and triangles
};

#endif
