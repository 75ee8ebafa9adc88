#ifndef vtkPlotStepLine_h
#define vtkPlotStepLine_h

#include "../export/TalmeshPlotExport.h"
#include "../vtk/CachedPoints.h"
#include "../vtk/VtkCompat.h"

#include <memory>

class vtkPoints2D;

namespace Talmesh
{
class CurvePicture;
}

/// A series drawn as a staircase from height 0 to height 1, as an empirical cumulative
/// distribution function is: up at every point, level from each point to the next.
///
/// The staircase of the cached points (x0, y0) to (xn-1, yn-1) is (x0, 0), (x0, y0), then
/// (xi, yi-1), (xi, yi) for every further point, then (xn-1, yn-1) again and (xn-1, 1). No markers
/// are drawn. A series with a NaN or infinite coordinate is not drawn at all. The screen, and pages
/// that want pictures of lines, get one of the staircase, with smooth edges.
class TALMESHPLOT_EXPORT vtkPlotStepLine : public Talmesh::CachedPoints
{
public:
  static vtkPlotStepLine* New();
  TALMESH_VTK_TYPE(vtkPlotStepLine, Talmesh::CachedPoints);

  /// Updates the cached points as vtkPlotPoints does, then the staircase, whether or not the
  /// points changed.
  void Update() override;

  /// @return false if the item is invisible or has no points, else true, also when bad points
  /// keep the staircase from being drawn.
  bool Paint(vtkContext2D* painter) override;

  /// Draws a level line, then the marker of the base; @p legendIndex is ignored.
  bool PaintLegend(vtkContext2D* painter, const vtkRectf& rect, int legendIndex) override;

  void PrintSelf(ostream& os, vtkIndent indent) override;

  /// Rebuilds the staircase from the cached points, which are read from @p table first if there
  /// are none yet. Always true.
  bool UpdateStepPointsCache(vtkTable* table);

protected:
  vtkPlotStepLine();
  ~vtkPlotStepLine() override;

  vtkPoints2D* StepPoints = nullptr; ///< the staircase, owned; null before the first update

private:
  vtkPlotStepLine(const vtkPlotStepLine&) = delete;
  void operator=(const vtkPlotStepLine&) = delete;

  void DrawStaircase(vtkContext2D* painter);

  std::unique_ptr<Talmesh::CurvePicture> Curve;
  bool IsFilled = false; ///< whether StepPoints holds a staircase
};

#endif
