#ifndef LogScales_h
#define LogScales_h

class vtkAxis;
class vtkChart;

namespace Talmesh
{

/// Range, in units of the data, of what the visible plots of `chart` show along `axis`.
/// @return false when they show nothing finite; `range` is then unspecified
bool shownRange(vtkChart* chart, const vtkAxis* axis, double range[2]);

/// Whether data in [range[0], range[1]] can be drawn on a logarithmic axis: nothing is 0 or below,
/// nor is the product of the ends rounded to 0, which VTK takes for a range that reaches zero.
bool hasLogarithms(const double range[2]);

/// Makes the axes of `chart` that are to be logarithmic so exactly when what is plotted along them
/// allows it, which values of 0 or below and error bars do not, with ends that allow it too. An
/// axis that fits the data gets theirs; a fixed one keeps its own unless they reach 0. Plots whose
/// scale changes compute their points anew.
///
/// To be called when the plots have changed and before VTK computes their bounds: it computes them
/// on the scale that the axis has at that moment, and negative data on a logarithmic axis make an
/// axis of NaN that no later data mend.
void settleLogScales(vtkChart* chart);

/// Gives a logarithmic axis in a small chart at most five ticks, all at powers of ten, when what
/// the plots of `chart` show along it spans so many decades that the nine ticks per decade that VTK
/// draws would run together. Any other axis keeps VTK's ticks, as does one along which not all is
/// positive: VTK draws that one on a linear scale.
/// @param position vtkAxis::BOTTOM or vtkAxis::LEFT
void useDecadeTicks(vtkChart* chart, int position);

} // namespace Talmesh

#endif
