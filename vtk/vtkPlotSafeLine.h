#ifndef vtkPlotSafeLine_h
#define vtkPlotSafeLine_h

#include <vtkPlotLine.h>

/// A line plot that paints a single point without complaint: its marker, if it has one, and no
/// line. VTK's own reports an error at every painting. It goes by the name of the class that it
/// stands in for, which clients may ask for.
class vtkPlotSafeLine : public vtkPlotLine
{
public:
  static vtkPlotSafeLine* New();

  bool Paint(vtkContext2D* painter) override;

protected:
  vtkPlotSafeLine() = default;
  ~vtkPlotSafeLine() override = default;

private:
  vtkPlotSafeLine(const vtkPlotSafeLine&) = delete;
  void operator=(const vtkPlotSafeLine&) = delete;
};

#endif
