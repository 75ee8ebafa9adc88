#ifndef ClipRegion_h
#define ClipRegion_h

#include <array>
#include <vector>

class vtkMatrix3x3;

/// Cuts shapes off at the edges of a rectangle, for drawings that are not pixels: there a pixel
/// outside cannot simply be left out.
namespace Talmesh
{
/// A rectangle of the scene, in pixels.
struct ClipRectangle
{
  double left = 0.0;
  double bottom = 0.0;
  double right = 0.0;
  double top = 0.0;
};

/// Points as a context device takes them: x and y in turn, and a colour for each or none.
struct ClippedPoints
{
  std::vector<float> points;
  std::vector<unsigned char> colors;

  int size() const { return static_cast<int>(points.size() / 2); }
  bool empty() const { return points.empty(); }
  unsigned char* colorData() { return colors.empty() ? nullptr : colors.data(); }
};

/// A rectangle seen from an item that draws in coordinates of its own. What is cut keeps its
/// colours; new corners get the colour between those of their neighbours. Shapes with a coordinate
/// that is no finite number are left out. What passes an edge by less than a hundredth of a pixel,
/// as rounding makes it, counts as inside.
class ClipRegion
{
public:
  /// @param matrix maps the item's coordinates to pixels without perspective
  ClipRegion(const ClipRectangle& exact, vtkMatrix3x3* matrix);

  /// The pieces of a line through @p n points.
  std::vector<ClippedPoints> polyLine(const float* points, int n, const unsigned char* colors,
                                      int components) const;
  /// What is left of the lines between points 0 and 1, 2 and 3, ...
  ClippedPoints lines(const float* points, int n, const unsigned char* colors,
                      int components) const;
  /// The points whose squares of 2 * @p reach pixels a side touch the rectangle.
  ClippedPoints points(const float* points, int n, const unsigned char* colors, int components,
                       double reach = 0.0) const;
  /// What is left of the triangles that a device makes of a polygon, as convex polygons; the
  /// polygon itself if all of it is.
  std::vector<ClippedPoints> polygon(const float* points, int n, const unsigned char* colors,
                                     int components) const;

private:
  struct Vertex
  {
    std::array<double, 2> pixel;
    std::array<double, 2> point;
    std::array<double, 4> color;
  };

  Vertex vertex(const float* points, const unsigned char* colors, int components, int index) const;
  /// Whether a square of 2 * @p reach a side around a vertex touches the rectangle.
  bool holds(const Vertex& vertex, double reach = 0.0) const;
  /// How far inside of an edge a vertex lies in pixels; negative outside.
  double inside(const Vertex& vertex, int edge) const;
  bool cutSegment(Vertex& from, Vertex& to) const;
  std::vector<Vertex> cutPolygon(std::vector<Vertex> corners) const;

  static Vertex between(const Vertex& a, const Vertex& b, double part);
  static void add(ClippedPoints& to, const Vertex& vertex, int components);

  ClipRectangle rectangle;
  std::array<double, 6> toPixels;
};
} // namespace Talmesh

#endif
