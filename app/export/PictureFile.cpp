#include "app/export/PictureFile.h"

#include "app/export/ScaledPicture.h"
#include "app/import/TranslatedText.h"
#include "app/memory/PaintingMemory.h"
#include "plot/PlotContainer.h"
#include "widgets/FileWriter.h"
#include "widgets/VtkPlotWidget.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImage>
#include <QtMath>

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>
#include <optional>
#include <string>

namespace Talmesh::app
{

namespace
{

/// Content of an export, or why there is none. A table may have more bytes than a QByteArray holds.
struct Content
{
  QByteArray bytes;
  std::unique_ptr<char[]> table;
  std::string error;

  const char* data() const { return table ? table.get() : bytes.constData(); }
  qint64 size() const
  {
    return table ? static_cast<qint64>(std::strlen(table.get())) : bytes.size();
  }
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

Content pngOf(VtkPlotWidget& widget, const std::optional<PaperSize>& paper)
{
  if (!paper)
    return pngFile(paintScaled(widget, widget.devicePixelRatioF()));
  // The scene has whole points, of which the last may be cut.
  const QSizeF points = pointsOf(*paper);
  const QSize size(qCeil(points.width() - rounding), qCeil(points.height() - rounding));
  QImage picture = paintPicture(widget, size, paper->dotsPerInch / pointsPerInch, pixelsOn(*paper));
  const int dotsPerMetre = qRound(paper->dotsPerInch * 1000.0 / millimetresPerInch);
  picture.setDotsPerMeterX(dotsPerMetre);
  picture.setDotsPerMeterY(dotsPerMetre);
  return pngFile(picture);
}

/// How many pixels of its pictures a point of a page has, of which no side may have too many.
double resolutionOn(const QSize& points, int dotsPerInch)
{
  return std::min(dotsPerInch / pointsPerInch,
                  double(mostPixels) / std::max({points.width(), points.height(), 1}));
}

Content pdfOf(VtkPlotWidget& widget, const std::optional<PaperSize>& paper, Vectors vectors,
              int dotsPerInch)
{
  const QSize points = paper ? rounded(pointsOf(*paper)) : widget.size();
  Content content;
  content.bytes = paintPage(widget, points, resolutionOn(points, dotsPerInch), vectors);
  if (!isWholePdf(content.bytes))
    content.error = translated("PictureFile", "the plot could not be painted");
  return content;
}

Content csvOf(VtkPlotWidget& widget)
{
  Content content;
  content.table.reset(widget.plotContainer()->saveData({}, true));
  if (!content.table)
    content.error = translated("PictureFile", "the table could not be written");
  return content;
}

Content contentOf(VtkPlotWidget& widget, ExportKind kind, const std::optional<PaperSize>& paper,
                  Vectors vectors, int dotsPerInch)
{
  switch (kind)
  {
  case ExportKind::Pixels:
    return pngOf(widget, paper);
  case ExportKind::Vectors:
    return pdfOf(widget, paper, vectors, dotsPerInch);
  case ExportKind::Table:
    return csvOf(widget);
  default:
    return {{}, {}, translated("PictureFile", "the name must end with .png, .pdf or .csv")};
  }
}

/// The pixels that a picture, or one that fills a page, is painted with; none for a table.
QSize paintedSize(const VtkPlotWidget& widget, ExportKind kind,
                  const std::optional<PaperSize>& paper, int dotsPerInch)
{
  if (kind == ExportKind::Table)
    return {};
  if (kind == ExportKind::Pixels)
    return paper ? pixelsOn(*paper) : widget.size() * widget.devicePixelRatioF();
  const QSize points = paper ? rounded(pointsOf(*paper)) : widget.size();
  return points * resolutionOn(points, dotsPerInch);
}

std::string objectionTo(const VtkPlotWidget& widget, ExportKind kind,
                        const std::optional<PaperSize>& paper, int dotsPerInch)
{
  std::string error;
  if (paper && kind == ExportKind::Pixels)
    error = errorOf(*paper, mostPixels);
  else if (paper && kind == ExportKind::Vectors)
    error = errorOf(*paper, {});
  const QSize pixels = paintedSize(widget, kind, paper, dotsPerInch);
  if (error.empty() && !pixels.isEmpty() &&
      !hasMemory(memoryToPaint(*widget.plotContainer(), pixels)))
    error = missingMemory();
  return error;
}

std::string writeExport(VtkPlotWidget& widget, const QString& path,
                        const std::optional<PaperSize>& paper, Vectors vectors, int dotsPerInch)
{
  const ExportKind kind = exportKindOf(path);
  std::string error = objectionTo(widget, kind, paper, dotsPerInch);
  try
  {
    const Content content = error.empty() ? contentOf(widget, kind, paper, vectors, dotsPerInch)
                                          : Content{{}, {}, error};
    error = content.error.empty() ? writeFile(path, content.data(), content.size()).toStdString()
                                  : content.error;
  }
  catch (const std::bad_alloc&)
  {
    error = missingMemory();
  }
  return error.empty() ? error : path.toStdString() + ": " + error;
}

bool isWithin(double number, int least, int most)
{
  return number >= least && number <= most;
}

} // namespace

ExportKind exportKindOf(const QString& path)
{
  const auto hasSuffix = [&path](const char* suffix)
  { return path.endsWith(QLatin1String(suffix), Qt::CaseInsensitive); };
  if (hasSuffix(".png"))
    return ExportKind::Pixels;
  if (hasSuffix(".pdf"))
    return ExportKind::Vectors;
  return hasSuffix(".csv") ? ExportKind::Table : ExportKind::None;
}

std::string errorOf(const PaperSize& paper, std::optional<int> most)
{
  for (const double side : {paper.millimetres.width(), paper.millimetres.height()})
    if (!isWithin(side, PaperSize::smallestSide, PaperSize::largestSide))
      return withValues(
          translated("PictureFile", "a side on paper must have from %1 to %2 millimetres"),
          {std::to_string(PaperSize::smallestSide), std::to_string(PaperSize::largestSide)});
  if (!isWithin(paper.dotsPerInch, PaperSize::smallestResolution, PaperSize::largestResolution))
    return withValues(translated("PictureFile", "the resolution must be from %1 to %2 dpi"),
                      {std::to_string(PaperSize::smallestResolution),
                       std::to_string(PaperSize::largestResolution)});
  const QSize pixels = pixelsOn(paper);
  if (most && std::max(pixels.width(), pixels.height()) > *most)
    return withValues(
        translated("PictureFile", "%1 x %2 pixels are too many: a side may have %3"),
        {std::to_string(pixels.width()), std::to_string(pixels.height()), std::to_string(*most)});
  return {};
}

bool isWholePdf(const QByteArray& pdf)
{
  return pdf.startsWith("%PDF") && pdf.right(16).trimmed().endsWith("%%EOF");
}

QSize pixelsOn(const PaperSize& paper)
{
  return rounded(paper.millimetres * (paper.dotsPerInch / millimetresPerInch));
}

std::string exportPlot(VtkPlotWidget& widget, const QString& path, Vectors vectors, int dotsPerInch)
{
  return writeExport(widget, path, {}, vectors, dotsPerInch);
}

std::string exportPlot(VtkPlotWidget& widget, const QString& path, const PaperSize& paper,
                       Vectors vectors)
{
  return writeExport(widget, path, paper, vectors, paper.dotsPerInch);
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
