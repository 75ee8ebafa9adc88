#ifndef DecadeTicks_h
#define DecadeTicks_h

class vtkAxis;
class vtkDataArray;

namespace Talmesh::plot
{

/// Gives a logarithmic axis in a small chart at most five ticks, all at powers of ten, when the
/// values of `column` span so many decades that the nine ticks per decade that VTK draws would run
/// together. Any other axis keeps VTK's ticks, as does one whose values are not all positive.
void useDecadeTicks(vtkAxis* axis, vtkDataArray* column);

} // namespace Talmesh::plot

#endif
