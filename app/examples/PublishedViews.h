#ifndef PublishedViews_h
#define PublishedViews_h

#include "app/examples/Gallery.h"

#include <vector>

namespace Talmesh::app
{

/// Views of published data and of the example circuit, whatever the study: a fit with its course
/// and residuals, error bars, sensitivities, the distribution of each parameter.
const std::vector<GalleryView>& publishedViews();

} // namespace Talmesh::app

#endif
