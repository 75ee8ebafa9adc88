#ifndef ShownStudy_h
#define ShownStudy_h

#include "app/import/Study.h"

#include <string>

class PlotContainer;

namespace Talmesh::app
{

/// Hands the runs or the table of a study to a container, whose drawings come as the viewer shows
/// them from then on, and chooses what to plot at first: the first plotted item over time, one line
/// per run, or the second column of a plain table over its first. Draws nothing. A chart of its own
/// is for `ShownChart` to fill in.
void showStudy(const Study& study, PlotContainer& container);

/// How much is loaded, as of `studySize`, and for a chart of its own how much the container shows
/// of it.
std::string studySize(const Study& study, const PlotContainer& container);

} // namespace Talmesh::app

#endif
