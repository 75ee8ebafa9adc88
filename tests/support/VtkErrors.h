#ifndef VtkErrors_h
#define VtkErrors_h

#include <vtkOutputWindow.h>
#include <vtkSmartPointer.h>
#include <vtkStringOutputWindow.h>

#include <string>

/// Collects what VTK reports (errors and warnings) while it lives.
class VtkErrors
{
public:
  VtkErrors() { vtkOutputWindow::SetInstance(window); }
  ~VtkErrors() { vtkOutputWindow::SetInstance(previous); }
  VtkErrors(const VtkErrors&) = delete;
  VtkErrors& operator=(const VtkErrors&) = delete;

  std::string text() const { return window->GetOutput(); }

private:
  vtkSmartPointer<vtkOutputWindow> previous = vtkOutputWindow::GetInstance();
  vtkSmartPointer<vtkStringOutputWindow> window = vtkSmartPointer<vtkStringOutputWindow>::New();
};

#endif
