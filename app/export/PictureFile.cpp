#include "app/export/PictureFile.h"

#include "app/export/ScaledPicture.h"
#include "app/export/TextForPaper.h"
#include "app/import/SystemMemory.h"
#include "app/import/TranslatedText.h"
#include "app/memory/PaintingMemory.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <QCoreApplication>
#include <QStringList>
#include <QtMath>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace Talmesh::app
{

namespace
{

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

QImage pictureOf(VtkPlotWidget& widget, const std::optional<PaperSize>& paper)
{
  if (!paper)
    return paintScaled(widget, widget.devicePixelRatioF());
  // The scene has whole points, of which the last may be cut.
  const QSizeF points = pointsOf(*paper);
  const QSize size(qCeil(points.width() - rounding), qCeil(points.height() - rounding));
  QImage picture = paintPicture(widget, size, paper->dotsPerInch / pointsPerInch, pixelsOn(*paper));
  const int dotsPerMetre = qRound(paper->dotsPerInch * 1000.0 / millimetresPerInch);
  picture.setDotsPerMeterX(dotsPerMetre);
  picture.setDotsPerMeterY(dotsPerMetre);
  return picture;
}

/// How many pixels of its pictures a point of a page has, of which no side may have too many.
double resolutionOn(const QSize& points, int dotsPerInch)
{
  return std::min(dotsPerInch / pointsPerInch,
                  double(mostPixels) / std::max({points.width(), points.height(), 1}));
}

/// Resolution of the pictures of an export.
int resolutionOf(const ExportWishes& wishes)
{
  return wishes.paper ? wishes.paper->dotsPerInch : wishes.dotsPerInch;
}

QByteArray pageOf(VtkPlotWidget& widget, const ExportWishes& wishes)
{
  const QSize points = wishes.paper ? rounded(pointsOf(*wishes.paper)) : widget.size();
  return paintPage(widget, points, resolutionOn(points, resolutionOf(wishes)), wishes.vectors);
}

vtkSmartPointer<vtkTable> copyOf(vtkTable* table)
{
  auto copy = vtkSmartPointer<vtkTable>::New();
  copy->DeepCopy(table);
  return copy;
}

std::size_t memoryToCopy(vtkTable* table)
{
  const auto rows = static_cast<std::size_t>(table->GetNumberOfRows());
  return rows * static_cast<std::size_t>(table->GetNumberOfColumns()) * sizeof(double);
}

/// The pixels that a picture, or one that fills a page, is painted with.
QSize paintedSize(const VtkPlotWidget& widget, ExportKind kind,
                  const std::optional<PaperSize>& paper, int dotsPerInch)
{
  if (kind == ExportKind::Pixels)
    return paper ? pixelsOn(*paper) : widget.size() * widget.devicePixelRatioF();
  const QSize points = paper ? rounded(pointsOf(*paper)) : widget.size();
  return points * resolutionOn(points, dotsPerInch);
}

/// The bytes that what is to be written takes.
/// @param own whether a table is to be a copy
std::size_t neededMemory(const VtkPlotWidget& widget, ExportKind kind, const ExportWishes& wishes,
                         bool own)
{
  const PlotContainer& container = *widget.plotContainer();
  if (kind == ExportKind::Table)
    return own ? memoryToCopy(container.getTable()) : 0;
  const QSize pixels = paintedSize(widget, kind, wishes.paper, resolutionOf(wishes));
  return pixels.isEmpty() ? 0 : memoryToPaint(container, pixels);
}

std::string objectionTo(const VtkPlotWidget& widget, ExportKind kind, const ExportWishes& wishes,
                        bool own)
{
  const std::optional<PaperSize>& paper = wishes.paper;
  std::string error;
  if (paper && kind == ExportKind::Pixels)
    error = errorOf(*paper, mostPixels);
  else if (paper && kind == ExportKind::Vectors)
    error = errorOf(*paper, {});
  if (error.empty() && !hasMemory(neededMemory(widget, kind, wishes, own)))
    error = missingMemory();
  return error;
}

std::optional<int> textSizeOf(const ExportWishes& wishes)
{
  if (wishes.textSize || !wishes.paper)
    return wishes.textSize;
  return usualTextSize(wishes.paper->millimetres.width());
}

/// @param own whether a table is to be a copy
Result<PaintedPlot> paint(VtkPlotWidget& widget, const QString& path, const ExportWishes& wishes,
                          bool own)
{
  const ExportKind kind = exportKindOf(path);
  if (kind == ExportKind::None)
    return Result<PaintedPlot>::failed(unknownFormat());
  const std::string objection = objectionTo(widget, kind, wishes, own);
  if (!objection.empty())
    return Result<PaintedPlot>::failed(objection);
  PaintedPlot painted;
  painted.path = path;
  vtkTable* table = widget.plotContainer()->getTable();
  const TextForPaper text(widget, textSizeOf(wishes));
  if (kind == ExportKind::Pixels)
    painted.picture = pictureOf(widget, wishes.paper);
  else if (kind == ExportKind::Vectors)
    painted.page = pageOf(widget, wishes);
  else
    painted.table = own ? copyOf(table) : vtkSmartPointer<vtkTable>(table);
  const bool whole = painted.table || !painted.picture.isNull() || isWholePdf(painted.page);
  return whole ? Result<PaintedPlot>(std::move(painted))
               : Result<PaintedPlot>::failed(notPainted());
}

std::string paintAndWrite(VtkPlotWidget& widget, const QString& path, const ExportWishes& wishes)
{
  const Result<PaintedPlot> painted =
      forFile<PaintedPlot>(path, [&] { return paint(widget, path, wishes, false); });
  return painted.hasValue() ? writePlot(painted.value()).error() : painted.error();
}

bool isWithin(double number, int least, int most)
{
  return number >= least && number <= most;
}

} // namespace

const std::vector<ExportFormat>& exportFormats()
{
  static const std::vector<ExportFormat> formats = {
      {".png", ExportKind::Pixels, QT_TRANSLATE_NOOP("PictureFile", "Picture")},
      {".pdf", ExportKind::Vectors, QT_TRANSLATE_NOOP("PictureFile", "Vector picture")},
      {".csv", ExportKind::Table, QT_TRANSLATE_NOOP("PictureFile", "Table")}};
  return formats;
}

const ExportFormat* exportFormatOf(const QString& path)
{
  for (const ExportFormat& format : exportFormats())
    if (path.endsWith(QLatin1String(format.suffix), Qt::CaseInsensitive))
      return &format;
  return nullptr;
}

ExportKind exportKindOf(const QString& path)
{
  const ExportFormat* format = exportFormatOf(path);
  return format ? format->kind : ExportKind::None;
}

std::string exportNames(const std::string& stem)
{
  std::string names;
  for (const ExportFormat& format : exportFormats())
  {
    const std::string name = stem + format.suffix;
    if (&format == &exportFormats().back())
      names = withValues(translated("PictureFile", "%1 or %2"), {names, name});
    else
      names += (names.empty() ? "" : ", ") + name;
  }
  return names;
}

std::string unknownFormat()
{
  return withValues(translated("PictureFile", "the name must end with %1"), {exportNames({})});
}

QString exportFilters()
{
  QStringList filters;
  for (const ExportFormat& format : exportFormats())
    filters.append(QString::fromStdString(translated("PictureFile", format.content)) +
                   QStringLiteral(" (*") + QLatin1String(format.suffix) + QLatin1Char(')'));
  return filters.join(QStringLiteral(";;"));
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

int usualTextSize(double millimetres)
{
  constexpr double fullWidth = 180.0;
  return std::clamp(qRound(PlotLook::usualTextSize * millimetres / fullWidth), 7,
                    PlotLook::usualTextSize);
}

QSize pixelsOn(const PaperSize& paper)
{
  return rounded(paper.millimetres * (paper.dotsPerInch / millimetresPerInch));
}

Result<PaintedPlot> paintPlot(VtkPlotWidget& widget, const QString& path,
                              const ExportWishes& wishes)
{
  return forFile<PaintedPlot>(path, [&] { return paint(widget, path, wishes, true); });
}

std::string exportPlot(VtkPlotWidget& widget, const QString& path, Vectors vectors, int dotsPerInch)
{
  return paintAndWrite(widget, path, {{}, vectors, dotsPerInch, {}});
}

std::string exportPlot(VtkPlotWidget& widget, const QString& path, const PaperSize& paper,
                       Vectors vectors)
{
  return paintAndWrite(widget, path, {paper, vectors, resolutionOfScreenPages, {}});
}

std::string exportPlot(VtkPlotWidget& widget, const QString& path, const ExportWishes& wishes)
{
  return paintAndWrite(widget, path, wishes);
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
