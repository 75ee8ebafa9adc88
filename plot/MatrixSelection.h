#ifndef MatrixSelection_h
#define MatrixSelection_h

#include "export/ViewerExport.h"

#include <vtkAnnotationLink.h>
#include <vtkWeakPointer.h>

#include <functional>

class vtkSelection;

namespace Talmesh::plot
{

struct PlotState;

/// Ties the selection of a chart that has an annotation link of its own to that of the container: a
/// scatter-plot matrix cannot be given another, and a summary has other rows.
class MatrixSelection
{
public:
  MatrixSelection() = default;
  TALMESHPLOT_VIEWER_EXPORT ~MatrixSelection();
  MatrixSelection(const MatrixSelection&) = delete;
  MatrixSelection& operator=(const MatrixSelection&) = delete;

  /// Watches the link of a chart, not kept alive, instead of the one watched so far.
  void watch(vtkAnnotationLink* ofChart);
  /// Shows a copy of `selection`, which may be null, in the chart, without announcing it, also
  /// when somebody who watches its link throws.
  void show(vtkSelection* selection);

  /// Called with the chart's own selection, which may be null, whenever somebody else than show()
  /// has set it. May end the life of this object.
  std::function<void(vtkSelection*)> selected;

private:
  class Showing;

  void announce();

  vtkWeakPointer<vtkAnnotationLink> link;
  unsigned long observerTag = 0;
  bool showing = false;
};

/// Makes what was selected in the matrix the container's selection, unless that names the same rows
/// already.
void adoptMatrixSelection(PlotState& state, vtkSelection* selection);

} // namespace Talmesh::plot

#endif
