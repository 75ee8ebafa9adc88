#ifndef vtkPlotSafeLine_h
#define vtkPlotSafeLine_h

#include "vtk/VtkCompat.h"

#include <vtkPlotLine.h>

/// A line plot that paints a single point without complaint: its marker, if it has one, and no
/// line. VTK's own reports an error at every painting.
class vtkPlotSafeLine : public vtkPlotLine
{
public:
  static vtkPlotSafeLine* New();
  TALMESH_VTK_TYPE(vtkPlotSafeLine, vtkPlotLine);

  bool Paint(vtkContext2D* painter) override;

protected:
  vtkPlotSafeLine() = default;
  ~vtkPlotSafeLine() override = default;

private:
  vtkPlotSafeLine(const vtkPlotSafeLine&) = delete;
  void operator=(const vtkPlotSafeLine&) = delete;
};

#endif
