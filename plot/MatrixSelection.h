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

/// Ties the selection of a scatter-plot matrix, which has an annotation link of its own and cannot
/// be given another, to that of the container.
class MatrixSelection
{
public:
  MatrixSelection() = default;
  TALMESHPLOT_VIEWER_EXPORT ~MatrixSelection();
  MatrixSelection(const MatrixSelection&) = delete;
  MatrixSelection& operator=(const MatrixSelection&) = delete;

  /// Watches the link of a matrix, not kept alive, instead of the one watched so far.
  void watch(vtkAnnotationLink* ofMatrix);
  /// Shows a copy of `selection`, which may be null, in the matrix, without announcing it, also
  /// when somebody who watches the matrix throws.
  void show(vtkSelection* selection);

  /// Called with the matrix's own selection, which may be null, whenever somebody else than show()
  /// has set it. May end the life of this object.
  std::function<void(vtkSelection*)> selected;

private:
  class Showing;

  void announce();

  vtkWeakPointer<vtkAnnotationLink> link;
  unsigned long observerTag = 0;
  bool showing = false;
};

/// Makes a copy of what was selected in the matrix the container's selection, unless that names the
/// same rows already.
void adoptMatrixSelection(PlotState& state, vtkSelection* selection);

} // namespace Talmesh::plot

#endif
