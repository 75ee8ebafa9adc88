#ifndef CachedPoints_h
#define CachedPoints_h

#include "vtk/PointInputs.h"

#include <vtkPlotPoints.h>

namespace Talmesh
{
/// A vtkPlotPoints, by class name too, that reads its table again only if something has changed
/// that its points are made of. Logarithms of values beyond single precision are numbers, where
/// VTK's are infinite.
class CachedPoints : public vtkPlotPoints
{
public:
  /// Updates the cached points and their colours, without colours if their column is missing.
  /// Does nothing when the item is invisible or has no input table.
  void Update() override;

  ///@{
  /// Selects the points that VTK selects, in its order, without sorting them first.
  /// @return whether there are any
  bool SelectPoints(const vtkVector2f& min, const vtkVector2f& max) override;
  bool SelectPointsInPolygon(const vtkContextPolygon& polygon) override;
  ///@}

protected:
  CachedPoints() = default;
  ~CachedPoints() override = default;

private:
  CachedPoints(const CachedPoints&) = delete;
  void operator=(const CachedPoints&) = delete;

  PointInputs Inputs() const;
  vtkIdTypeArray* OwnSelection();
  void CalculateExtremeLogarithms();

  PointInputs CachedInputs; ///< of the cached points
};
} // namespace Talmesh

#endif
