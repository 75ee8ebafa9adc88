#ifndef vtkSelectionUpdateCallback_h
#define vtkSelectionUpdateCallback_h

#include "../export/TalmeshPlotExport.h"
#include "../vtk/VtkCompat.h"

#include <vtkCommand.h>

class PlotContainer;
class vtkSelection;

/// Reacts to every change of the selection: splits the runs, compares the parts, draws again.
class TALMESHPLOT_EXPORT vtkSelectionUpdateCallback : public vtkCommand
{
public:
  TALMESH_VTK_TYPE(vtkSelectionUpdateCallback, vtkCommand);
  static vtkSelectionUpdateCallback* New();

  /// @param caller the annotation link; anything else is ignored, as are the other arguments
  void Execute(vtkObject* caller, unsigned long eventId, void* callData) override;

  /// Not owned. Null until a container sets it and again once that container is gone.
  PlotContainer* Container = nullptr;
  /// A selection that the container itself makes and needs no reaction to. Only compared.
  vtkSelection* Overlooked = nullptr;

protected:
  vtkSelectionUpdateCallback() = default;
};

#endif
