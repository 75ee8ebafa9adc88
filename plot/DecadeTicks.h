#ifndef DecadeTicks_h
#define DecadeTicks_h

class vtkChart;

namespace Talmesh::plot
{

/// Gives a logarithmic axis in a small chart at most five ticks, all at powers of ten, when what
/// the plots of `chart` show along it spans so many decades that the nine ticks per decade that VTK
/// draws would run together. Any other axis keeps VTK's ticks, as does one along which not all is
/// positive: VTK draws that one on a linear scale.
/// @param position vtkAxis::BOTTOM or vtkAxis::LEFT
void useDecadeTicks(vtkChart* chart, int position);

} // namespace Talmesh::plot

#endif
