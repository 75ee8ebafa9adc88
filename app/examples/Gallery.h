#ifndef Gallery_h
#define Gallery_h

#include "app/export/PictureFile.h"
#include "app/import/Study.h"

#include <QSize>
#include <QString>

#include <functional>
#include <string>
#include <vector>

class PlotContainer;

namespace Talmesh::app
{

/// One picture of the gallery.
struct GalleryView
{
  /// The name of its files without the suffix.
  std::string name;
  /// Fills a new container, which is in a scene, with data of the study and draws it.
  /// Returns why that failed, in one line; empty on success.
  std::function<std::string(const Study&, PlotContainer&)> draw;
};

/// Every view that the viewer has.
const std::vector<GalleryView>& galleryViews();

/// Writes one PNG and one PDF of every view into a folder, which is made if need be.
/// @param dotsPerInch of pictures on the pages
/// @return why that failed, in one line; empty on success
std::string writeGallery(const Study& study, const QString& folder, const QSize& pixels,
                         Vectors vectors = Vectors::Auto,
                         int dotsPerInch = resolutionOfScreenPages);

} // namespace Talmesh::app

#endif
