#include "plot/MatrixSelection.h"

#include "plot/DrawnRows.h"
#include "plot/PlotState.h"
#include "plot/SelectionFlags.h"
#include "vtk/RowSelections.h"

#include <vtkCommand.h>
#include <vtkSelection.h>

namespace Talmesh::plot
{

class MatrixSelection::Showing
{
public:
  explicit Showing(bool& isShowing)
      : showing(isShowing)
  {
    showing = true;
  }
  ~Showing() { showing = false; }
  Showing(const Showing&) = delete;
  Showing& operator=(const Showing&) = delete;

private:
  bool& showing;
};

MatrixSelection::~MatrixSelection()
{
  watch(nullptr);
}

void MatrixSelection::watch(vtkAnnotationLink* ofChart)
{
  if (link)
    link->RemoveObserver(observerTag);
  link = ofChart;
  if (link)
    observerTag =
        link->AddObserver(vtkCommand::AnnotationChangedEvent, this, &MatrixSelection::announce);
}

void MatrixSelection::show(vtkSelection* selection)
{
  if (!link)
    return;
  const Showing now(showing);
  link->SetCurrentSelection(copySelection(selection));
}

void MatrixSelection::announce()
{
  if (showing || !selected)
    return;
  // A copy, because the call may end this object.
  const auto call = selected;
  call(link->GetCurrentSelection());
}

void adoptMatrixSelection(PlotState& state, vtkSelection* selection)
{
  if (drawsSummary(state))
    return adoptSummarySelection(state, selection);
  const vtkSmartPointer<vtkAnnotationLink> link = state.annotationLink;
  if (markedRows(selection, state.table) == markedRows(link->GetCurrentSelection(), state.table))
    return;
  // The reaction draws again, which shows the selection in the matrix, and may end the container.
  link->SetCurrentSelection(copySelection(selection));
}

} // namespace Talmesh::plot
