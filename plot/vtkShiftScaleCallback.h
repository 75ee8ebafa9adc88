#ifndef vtkShiftScaleCallback_h
#define vtkShiftScaleCallback_h

#include "../export/TalmeshPlotExport.h"
#include "../vtk/VtkCompat.h"

#include <vtkCommand.h>

class PlotContainer;

/// Remembers the axis window that the user panned or zoomed to.
class TALMESHPLOT_EXPORT vtkShiftScaleCallback : public vtkCommand
{
public:
  TALMESH_VTK_TYPE(vtkShiftScaleCallback, vtkCommand);
  static vtkShiftScaleCallback* New();

  /// @param caller the chart that was panned or zoomed; anything but a chart with a bottom and a
  ///   left axis is ignored. Settings without a first x or y column name no configuration to
  ///   remember a window for.
  /// @param eventId ignored
  /// @param callData null for a pan or zoom; VTK reports clicks on points with the same event
  void Execute(vtkObject* caller, unsigned long eventId, void* callData) override;

  /// Not owned. Null until a container sets it and again once that container is gone.
  PlotContainer* Container = nullptr;

protected:
  vtkShiftScaleCallback() = default;
};

#endif
