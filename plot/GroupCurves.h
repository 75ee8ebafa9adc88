#ifndef GroupCurves_h
#define GroupCurves_h

#include "plot/DistributionGroup.h"

#include <vtkSmartPointer.h>

#include <cstddef>
#include <optional>
#include <vector>

class vtkTable;

namespace Talmesh::plot
{

struct PlotState;

/// Keeps the groups of runs that the selection page draws in place of the data sets of the derived
/// tables, or has it draw those.
void setDistributionGroups(PlotState& state, std::optional<std::vector<DistributionGroup>> groups);

/// The curve of the parameter at position `parameter` of the settings' list over the runs of a
/// group, which exists: a table of x and y. That is the empirical distribution function, with one
/// point for each different value, or, as the settings say, the density on the support that all
/// groups share; of few different values in many runs a line at each, as high as its share.
/// @return null without a finite value
vtkSmartPointer<vtkTable> groupCurve(const PlotState& state, std::size_t group,
                                     std::size_t parameter);

} // namespace Talmesh::plot

#endif
