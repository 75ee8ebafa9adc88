#ifndef ScaledPicture_h
#define ScaledPicture_h

#include <QImage>
#include <QSize>

class VtkPlotWidget;

namespace Talmesh::app
{

/// While it lives, a plot widget has another size and 72 dots per inch, and nobody sees it.
class TemporarySize
{
public:
  TemporarySize(VtkPlotWidget& widget, const QSize& pixels);
  ~TemporarySize();
  TemporarySize(const TemporarySize&) = delete;
  TemporarySize& operator=(const TemporarySize&) = delete;

private:
  VtkPlotWidget& widget;
  QSize size;
  int dotsPerInch;
  bool updates;
};

/// Paints what a plot widget shows `scale` times as large: text, lines and markers grow with the
/// rest, so that a scale of dpi / 72 gives a picture for print in which the widget's pixels are
/// points. The widget paints it in parts of its own size, so that no surface of the whole size is
/// needed. Null if the widget cannot paint.
QImage paintScaled(VtkPlotWidget& widget, double scale);

} // namespace Talmesh::app

#endif
