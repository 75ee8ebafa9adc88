#ifndef PageProbes_h
#define PageProbes_h

#include <vtkPen.h>

#include <array>

/// Red, green, blue and alpha.
inline std::array<int, 4> penColor(vtkPen* pen)
{
  const vtkColor4ub color = pen->GetColorObject();
  return {color[0], color[1], color[2], color[3]};
}

#endif
