#ifndef Gallery_h
#define Gallery_h

#include "app/export/PictureFile.h"
#include "app/import/Study.h"
#include "external/PlotStyles.h"

#include <QSize>
#include <QString>

#include <functional>
#include <string>
#include <vector>

namespace Talmesh::app
{

class Document;
struct ChartSteps;
struct PlotChoice;

/// One picture of the gallery.
struct GalleryView
{
  /// The name of its files without the suffix.
  std::string name;
  /// Shows the study, or what the view computes, in a document that shows nothing yet; see
  /// `drawView`. Returns why that failed, in one line; empty on success.
  std::function<std::string(const Study&, Document&)> draw;
};

/// Draws a view, once however much it changes.
/// @return as the view's own function
std::string drawView(const GalleryView& view, const Study& study, Document& document);

/// Every view that the viewer has.
const std::vector<GalleryView>& galleryViews();

/// The following help views to draw, and return why that failed, in one line; empty on success.

/// Shows a study in a style, with the columns that it begins with.
std::string showIn(Document& document, const Study& study, plotStyles style);
std::string showChoice(Document& document, const PlotChoice& choice);
std::string showChart(Document& document, const ChartSteps& steps);

/// Writes one PNG and one PDF of every view into a folder, which is made if need be.
/// @param dotsPerInch of pictures on the pages
/// @return why that failed, in one line; empty on success
std::string writeGallery(const Study& study, const QString& folder, const QSize& pixels,
                         Vectors vectors = Vectors::Auto,
                         int dotsPerInch = resolutionOfScreenPages);

} // namespace Talmesh::app

#endif
