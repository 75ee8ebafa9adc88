#ifndef CategoryGroups_h
#define CategoryGroups_h

#include "app/document/GroupedPlots.h"
#include "app/import/Result.h"

#include <string>
#include <vector>

class PlotContainer;

/// Groups of the runs that have the same text.
namespace Talmesh::app
{

/// The labels of a container's columns of texts that do not change within a run.
std::vector<std::string> groupableCategories(PlotContainer& container);

/// A group for each text of such a column that runs have, called like it, in the order of the
/// texts; then one of the runs without any.
Result<RunGroups> groupsOfCategory(PlotContainer& container, const std::string& label);

} // namespace Talmesh::app

#endif
