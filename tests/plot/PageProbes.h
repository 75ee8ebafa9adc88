#ifndef PageProbes_h
#define PageProbes_h

#include <vtkCommand.h>
#include <vtkPen.h>

#include <array>
#include <functional>

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
