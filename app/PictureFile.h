#ifndef PictureFile_h
#define PictureFile_h

#include <QSize>
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

/// A plot widget that can draw pictures of the given size but is never seen.
std::unique_ptr<VtkPlotWidget> makeHiddenPlot(const QSize& pixels);

} // namespace Talmesh::app

#endif
