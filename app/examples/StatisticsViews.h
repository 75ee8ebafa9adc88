#ifndef StatisticsViews_h
#define StatisticsViews_h

#include "app/examples/Gallery.h"

#include <vector>

namespace Talmesh::app
{

/// Views that compare runs: pages of many charts, clusters. They need a study of runs with
/// parameters and are empty without one.
const std::vector<GalleryView>& statisticsViews();

} // namespace Talmesh::app

#endif
