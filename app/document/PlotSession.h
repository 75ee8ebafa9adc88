#ifndef PlotSession_h
#define PlotSession_h

#include "app/document/PlotChoice.h"
#include "app/session/Session.h"

namespace Talmesh::app
{

class RunNormaliser;

/// What a session keeps of a container that shows a study.
/// @param normaliser what has normalised runs of the container, not owned, outlives the source;
/// null
///   for nothing
SessionSource sessionOf(const Study& study, PlotContainer& container, const PlotChoice& choice,
                        const RunNormaliser* normaliser = nullptr);

/// What the user had chosen, in a container whose settings are restored.
PlotChoice restoredChoice(const RestoredSession& session, const PlotContainer& container);

/// Has selected runs tested as the session says, with the thresholds that the container has.
void restoreTests(const RestoredSession& session, PlotContainer& container);

} // namespace Talmesh::app

#endif
