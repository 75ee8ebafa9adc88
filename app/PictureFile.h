#ifndef PictureFile_h
#define PictureFile_h

#include <QSize>
#include <QSizeF>
#include <QString>

#include <memory>
#include <string>

class VtkPlotWidget;

namespace Talmesh::app
{

/// Writes what a plot widget shows: ".png" the picture in the widget's pixels, ".pdf" the same as
/// vectors, ".csv" the whole table. The file appears complete or not at all; an old one of the name
/// stays until then.
/// @return why it could not be written, in one line that begins with the file's name; empty on
/// success
std::string exportPlot(VtkPlotWidget& widget, const QString& path);

/// A size on paper, and how finely a picture made of pixels fills it.
struct PaperSize
{
  QSizeF millimetres{180.0, 120.0};
  int dotsPerInch = 300;
};

/// The pixels of a picture of that size.
QSize pixelsOn(const PaperSize& paper);

/// The same for print: the plot is laid out anew for the size, in which the widget's pixels are
/// points of 1/72 inch. ".png" has the pixels that the resolution gives, and says so; ".pdf" has a
/// page of the size, to the next point. ".csv" is the table.
std::string exportPlot(VtkPlotWidget& widget, const QString& path, const PaperSize& paper);

/// A plot widget that can draw pictures of the given size but is never seen.
std::unique_ptr<VtkPlotWidget> makeHiddenPlot(const QSize& pixels);

} // namespace Talmesh::app

#endif
