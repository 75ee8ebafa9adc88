#ifndef PageProbes_h
#define PageProbes_h

#include <vtkAbstractArray.h>
#include <vtkCommand.h>
#include <vtkContextMapper2D.h>
#include <vtkPen.h>
#include <vtkPlot.h>
#include <vtkTable.h>

#include <array>
#include <functional>
#include <string>

/// The name of the column that a plot takes as x (0) or y (1); empty for a plot without input.
inline std::string inputName(vtkPlot* plot, int axis)
{
  vtkTable* input = plot->GetInput();
  vtkAbstractArray* column =
      input ? plot->GetData()->GetInputAbstractArrayToProcess(axis, input) : nullptr;
  return column && column->GetName() ? column->GetName() : "";
}

/// Red, green, blue and alpha.
inline std::array<int, 4> penColor(vtkPen* pen)
{
  const vtkColor4ub color = pen->GetColorObject();
  return {color[0], color[1], color[2], color[3]};
}

/// Calls a function at an event.
class Reaction : public vtkCommand
{
public:
  static Reaction* New() { return new Reaction; }
  void Execute(vtkObject*, unsigned long, void*) override { react(); }
  std::function<void()> react;
};

#endif
