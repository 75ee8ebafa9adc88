#ifndef StatisticsViews_h
#define StatisticsViews_h

#include "app/Gallery.h"

#include <vector>

namespace Talmesh::app
{

/// Views that compare runs: pages of many charts, clusters. They need a study of runs with
/// parameters and are empty without one.
const std::vector<GalleryView>& statisticsViews();

/// Views of published data and of the example circuit, whatever the study: a fit with its course
/// and residuals, error bars, sensitivities, a distribution.
const std::vector<GalleryView>& publishedViews();

} // namespace Talmesh::app

#endif
