#ifndef ScaledPicture_h
#define ScaledPicture_h

#include "widgets/ScenePainter.h"

#include <QByteArray>
#include <QImage>
#include <QSize>

class VtkPlotWidget;

namespace Talmesh::app
{

/// Paints what a plot widget shows, laid out for a size: text, lines and markers grow with the
/// scale, so that one of dpi / 72 gives a picture for print in which the units of the size are
/// points. The widget stays as it is. Throws std::bad_alloc if memory is too short for the picture.
/// @param pixels of the picture, white where it is larger than the scaled size, which may also be
/// cut at the top and at the right
QImage paintPicture(VtkPlotWidget& widget, const QSize& size, double scale, const QSize& pixels);

/// The same of the widget's own size, scaled.
QImage paintScaled(VtkPlotWidget& widget, double scale);

/// The bytes of a PDF whose only page has the size in points of 1/72 inch; empty if there are none.
/// @param resolution how many pixels of pictures on the page a point has
QByteArray paintPage(VtkPlotWidget& widget, const QSize& size, double resolution, Vectors vectors);

} // namespace Talmesh::app

#endif
