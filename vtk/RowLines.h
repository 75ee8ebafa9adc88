#ifndef RowLines_h
#define RowLines_h

#include "vtk/LineCounts.h"
#include "vtk/PaintedLines.h"
#include "vtk/PictureStore.h"

#include <vtkType.h>

#include <vector>

class vtkContext2D;
class vtkDataArray;

namespace Talmesh
{
/// An axis of parallel ones, and the column that it shows.
struct ParallelAxis
{
  vtkDataArray* values;
  float x;
  double minimum;
  double scale;
};

/// Lines of table rows across parallel axes, like ones that follow each other as one.
class RowLines
{
public:
  explicit RowLines(std::vector<ParallelAxis> shown);

  void add(vtkIdType row, const LineColor& color);
  /// Brings like lines together, which is allowed where their order does not show.
  void mergeAll();

  vtkIdType count() const { return static_cast<vtkIdType>(lines.runs.size()); }
  /// Draws each once, with the opacity that its repeats add up to.
  /// @param coloured whether in its colour instead of the pen's
  void draw(vtkContext2D* painter, bool coloured);

  PictureStore::Key content(bool coloured) const;
  const LinesToCount& toCount();
  const std::vector<LineColor>& lineColors() const { return colors; }

private:
  std::vector<ParallelAxis> axes;
  std::vector<float> points;
  LinesToCount lines;
  std::vector<LineColor> colors;
};
} // namespace Talmesh

#endif
