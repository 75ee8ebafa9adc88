#include "vtk/CachedLogarithms.h"

#include <vtkAxis.h>
#include <vtkDoubleArray.h>
#include <vtkPoints2D.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Talmesh
{
namespace
{
constexpr double leastInFloat = std::numeric_limits<float>::min();
constexpr double mostInFloat = std::numeric_limits<float>::max();

struct Placing
{
  double shift;
  double scale;
  bool ofMagnitudes;

  bool isPlain() const { return shift == 0.0 && scale == 1.0; }
  float logarithm(double value) const
  {
    const double plain = std::log10(ofMagnitudes ? std::fabs(value) : value);
    return static_cast<float>((plain + shift) * scale);
  }
};

bool isBeyondFloat(double value)
{
  const double magnitude = std::fabs(value);
  return magnitude > 0.0 && (magnitude < leastInFloat || magnitude > mostInFloat);
}

/// VTK's logarithms are right but for values that single precision does not have.
void mendExtremes(vtkDoubleArray* column, const Placing& placing, vtkIdType count, float* place)
{
  for (vtkIdType i = 0; i < count; ++i)
  {
    const double value = column->GetValue(i);
    if (isBeyondFloat(value))
      place[2 * i] = placing.logarithm(value);
  }
}

void placeAll(vtkDataArray* column, const Placing& placing, vtkIdType count, float* place)
{
  const int components = column ? column->GetNumberOfComponents() : 1;
  for (vtkIdType i = 0; i < count; ++i)
  {
    const double value =
        column ? column->GetComponent(i / components, static_cast<int>(i % components)) : double(i);
    place[2 * i] = placing.logarithm(value);
  }
}

/// @param place the first of the coordinates, which are every second value of the points
void cacheLogarithms(vtkDataArray* column, const Placing& placing, vtkIdType points, float* place)
{
  // A column of several components has more values than there are points.
  const vtkIdType count = column ? std::min(points, column->GetNumberOfValues()) : points;
  auto* const doubles = vtkDoubleArray::SafeDownCast(column);
  if (!placing.isPlain())
    placeAll(column, placing, count, place);
  else if (doubles)
    mendExtremes(doubles, placing, count, place);
}

bool reachesBelowZero(vtkAxis* axis)
{
  return axis->GetUnscaledMinimum() < 0.0;
}
} // namespace

void cacheLogarithms(const CachedCoordinates& cached)
{
  const vtkIdType count = cached.points->GetNumberOfPoints();
  if (count == 0)
    return;
  auto* const place = static_cast<float*>(cached.points->GetVoidPointer(0));
  const vtkRectd& moved = cached.shiftScale;
  if (cached.logX)
    cacheLogarithms(cached.x, {moved.GetX(), moved.GetWidth(), reachesBelowZero(cached.logX)},
                    count, place);
  if (cached.logY)
    cacheLogarithms(cached.y, {moved.GetY(), moved.GetHeight(), reachesBelowZero(cached.logY)},
                    count, place + 1);
}

vtkVector2f placeOnAxes(const vtkVector2f& point, const vtkRectd& shiftScale)
{
  return {static_cast<float>(point.GetX() / shiftScale.GetWidth() - shiftScale.GetX()),
          static_cast<float>(point.GetY() / shiftScale.GetHeight() - shiftScale.GetY())};
}

vtkVector2f placeOnAxes(vtkPoints2D* points, vtkIdType index, const vtkRectd& shiftScale)
{
  const auto* const place = static_cast<float*>(points->GetVoidPointer(0)) + 2 * index;
  return placeOnAxes(vtkVector2f(place[0], place[1]), shiftScale);
}
} // namespace Talmesh
