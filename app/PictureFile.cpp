#include "app/PictureFile.h"

#include "app/ScaledPicture.h"
#include "app/TranslatedText.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkRenderWindow.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QtMath>

#include <memory>
#include <optional>

namespace Talmesh::app
{

namespace
{

/// Content of an export, or why there is none.
struct Content
{
  QByteArray bytes;
  std::string error;
};

constexpr double millimetresPerInch = 25.4;
constexpr double pointsPerInch = 72.0;
/// So much of a point may be missing.
constexpr double rounding = 0.01;

QSize rounded(const QSizeF& size)
{
  return {qRound(size.width()), qRound(size.height())};
}

QSizeF pointsOf(const PaperSize& paper)
{
  return paper.millimetres * (pointsPerInch / millimetresPerInch);
}

Content pngFile(const QImage& picture)
{
  Content content;
  QBuffer buffer(&content.bytes);
  buffer.open(QIODevice::WriteOnly);
  if (picture.isNull() || !picture.convertToFormat(QImage::Format_RGB32).save(&buffer, "PNG"))
    content.error = translated("PictureFile", "the plot could not be painted");
  return content;
}

Content pngOf(VtkPlotWidget& widget)
{
  widget.updatePlot(true);
  return pngFile(widget.grabFramebuffer());
}

Content pngOf(VtkPlotWidget& widget, const PaperSize& paper)
{
  QImage picture;
  if (widget.plotContainer()->getMetaData()->getPlotStyle() == xyzPlot)
  {
    // The painter of three dimensions cannot be scaled.
    const TemporarySize inPixels(widget, pixelsOn(paper));
    widget.renderWindow()->SetDPI(paper.dotsPerInch);
    widget.updatePlot(true);
    picture = widget.grabFramebuffer();
  }
  else
  {
    // The widget has whole points, of which the last may be cut.
    const QSizeF points = pointsOf(paper);
    const TemporarySize inPoints(
        widget, {qCeil(points.width() - rounding), qCeil(points.height() - rounding)});
    picture = paintScaled(widget, paper.dotsPerInch / pointsPerInch);
  }
  if (!picture.isNull())
    picture = picture.copy(QRect(QPoint(0, 0), pixelsOn(paper)));
  const int dotsPerMetre = qRound(paper.dotsPerInch * 1000.0 / millimetresPerInch);
  picture.setDotsPerMeterX(dotsPerMetre);
  picture.setDotsPerMeterY(dotsPerMetre);
  return pngFile(picture);
}

/// The exporter writes to a file by name and reports no failure, so it gets a folder of its own.
Content pdfOf(VtkPlotWidget& widget)
{
  Content content;
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("plot.pdf"));
  if (folder.isValid())
  {
    widget.updatePlot(true);
    widget.printPlot(path);
  }
  QFile file(path);
  if (file.open(QIODevice::ReadOnly))
    content.bytes = file.readAll();
  if (!content.bytes.startsWith("%PDF"))
    content.error = translated("PictureFile", "the plot could not be painted");
  return content;
}

Content pdfOf(VtkPlotWidget& widget, const PaperSize& paper)
{
  const TemporarySize inPoints(widget, rounded(pointsOf(paper)));
  return pdfOf(widget);
}

Content csvOf(VtkPlotWidget& widget)
{
  Content content;
  const std::unique_ptr<char[]> text(widget.plotContainer()->saveData({}, true));
  if (text)
    content.bytes = QByteArray(text.get());
  else
    content.error = translated("PictureFile", "the table could not be written");
  return content;
}

std::string writeWhole(const QString& path, const QByteArray& bytes)
{
  QSaveFile file(path);
  const bool written =
      file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
  return written ? std::string() : file.errorString().toStdString();
}

std::string writeExport(VtkPlotWidget& widget, const QString& path,
                        const std::optional<PaperSize>& paper)
{
  Content content;
  if (path.endsWith(QLatin1String(".png")))
    content = paper ? pngOf(widget, *paper) : pngOf(widget);
  else if (path.endsWith(QLatin1String(".pdf")))
    content = paper ? pdfOf(widget, *paper) : pdfOf(widget);
  else if (path.endsWith(QLatin1String(".csv")))
    content = csvOf(widget);
  else
    content.error = translated("PictureFile", "the name must end with .png, .pdf or .csv");
  if (content.error.empty())
    content.error = writeWhole(path, content.bytes);
  return content.error.empty() ? content.error : path.toStdString() + ": " + content.error;
}

} // namespace

QSize pixelsOn(const PaperSize& paper)
{
  return rounded(paper.millimetres * (paper.dotsPerInch / millimetresPerInch));
}

std::string exportPlot(VtkPlotWidget& widget, const QString& path)
{
  return writeExport(widget, path, {});
}

std::string exportPlot(VtkPlotWidget& widget, const QString& path, const PaperSize& paper)
{
  return writeExport(widget, path, paper);
}

std::unique_ptr<VtkPlotWidget> makeHiddenPlot(const QSize& pixels)
{
  auto widget = std::make_unique<VtkPlotWidget>();
  // Shown, but on no screen: only a shown widget has a framebuffer of its size.
  widget->setAttribute(Qt::WA_DontShowOnScreen);
  widget->resize(pixels / widget->devicePixelRatioF());
  widget->show();
  QCoreApplication::processEvents();
  return widget;
}

} // namespace Talmesh::app
