#ifndef ContainerAccess_h
#define ContainerAccess_h

#include "plot/PlotContainer.h"
#include "plot/PlotState.h"

namespace Talmesh::plot
{
/// The one way from outside to what a container knows, for the callbacks, the viewer and tests.
struct ContainerAccess
{
  static PlotState& state(const PlotContainer& container) { return *container.d; }
};
} // namespace Talmesh::plot

/// All that `container` knows. Whoever takes it writes it as well as reads it; its fields may
/// change from one version to the next.
inline Talmesh::plot::PlotState& stateOf(PlotContainer& container)
{
  return Talmesh::plot::ContainerAccess::state(container);
}

inline const Talmesh::plot::PlotState& stateOf(const PlotContainer& container)
{
  return Talmesh::plot::ContainerAccess::state(container);
}

#endif
