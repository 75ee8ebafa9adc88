#ifndef ReplicateLabels_h
#define ReplicateLabels_h

#include "app/comparison/ComparisonResults.h"

#include <cstddef>
#include <vector>

namespace Talmesh::app
{

/// The parameters that by their names number the runs of one set of parameters, as "seed" and
/// "replicate" do, by position: where without them there are runs of equal parameters. They say
/// nothing of what was simulated, and would make single runs of replicates.
std::vector<std::size_t> replicateLabels(const ComparedStudy& study);

} // namespace Talmesh::app

#endif
