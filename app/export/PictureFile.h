#ifndef PictureFile_h
#define PictureFile_h

#include "app/export/PlotWriter.h"
#include "widgets/ScenePainter.h"

#include <QByteArray>
#include <QSize>
#include <QSizeF>
#include <QString>

#include <memory>
#include <optional>
#include <string>
#include <vector>

class VtkPlotWidget;

namespace Talmesh::app
{

/// What a file of a name holds; capitals in the suffix make no difference.
enum class ExportKind
{
  None,
  Pixels,  ///< ".png"
  Vectors, ///< ".pdf"
  Table    ///< ".csv"
};

/// A format that plots are exported to.
struct ExportFormat
{
  const char* suffix; ///< with its dot, in small letters
  ExportKind kind;
  const char* content; ///< in English, of the context "PictureFile"
};

/// All of them, in the order in which they are offered.
const std::vector<ExportFormat>& exportFormats();

/// The format that the suffix of a name stands for; null for none.
const ExportFormat* exportFormatOf(const QString& path);
ExportKind exportKindOf(const QString& path);

/// "FILE.png, FILE.pdf or FILE.csv" for the stem "FILE".
std::string exportNames(const std::string& stem);
/// What to say of a name that stands for no format.
std::string unknownFormat();
/// The formats as a file dialog offers them.
QString exportFilters();

/// A size on paper, and how finely a picture made of pixels fills it.
struct PaperSize
{
  static constexpr int smallestSide = 20; ///< millimetres
  static constexpr int largestSide = 1200;
  static constexpr int smallestResolution = 72; ///< dots per inch
  static constexpr int largestResolution = 1200;

  static constexpr int smallestText = 4; ///< points
  static constexpr int largestText = 36;

  QSizeF millimetres{180.0, 120.0};
  int dotsPerInch = 300;
};

/// The size of text on a page of that width, in points: 12 where a page of a journal is filled, and
/// in proportion down to 7 in a column of it.
int usualTextSize(double millimetres);

/// Dots per inch of pictures on a page that is as large as a plot on the screen, which is read from
/// a screen or printed smaller.
constexpr int resolutionOfScreenPages = 150;

/// How a plot is exported.
struct ExportWishes
{
  /// None for the size on the screen.
  std::optional<PaperSize> paper;
  /// The lines and points of a page that are vectors.
  Vectors vectors = Vectors::Auto;
  /// Of pictures on a page that is as large as a plot on the screen.
  int dotsPerInch = resolutionOfScreenPages;
  /// In points, which are the pixels of the screen; none for what is usual on paper of that width,
  /// and for that of the screen without paper.
  std::optional<int> textSize = std::nullopt;
};

/// Paints what a plot widget shows for a file, or copies its table. In the GUI thread.
/// @return as `exportPlot` in case of failure
Result<PaintedPlot> paintPlot(VtkPlotWidget& widget, const QString& path,
                              const ExportWishes& wishes);

/// Writes what a plot widget shows: ".png" the picture in the widget's pixels, ".pdf" the same as
/// vectors, as far as @p vectors says, ".csv" the whole table. The file appears complete or not at
/// all; an old one of the name stays until then.
/// @param dotsPerInch of pictures on the page of a PDF
/// @return why it could not be written, in one line that begins with the file's name; empty on
/// success
std::string exportPlot(VtkPlotWidget& widget, const QString& path, Vectors vectors = Vectors::Auto,
                       int dotsPerInch = resolutionOfScreenPages);
std::string exportPlot(VtkPlotWidget& widget, const QString& path, const ExportWishes& wishes);

/// A picture with more pixels on a side takes more memory than a figure is worth.
constexpr int mostPixels = 20000;

/// Why there is no picture of a size, in one line; empty if there is.
/// @param most pixels on a side; none for a picture that is not made of them
std::string errorOf(const PaperSize& paper, std::optional<int> most);

/// The pixels of a picture of that size.
QSize pixelsOn(const PaperSize& paper);

/// The same for print: the plot is laid out anew for the size, in which the widget's pixels are
/// points of 1/72 inch. ".png" has the pixels that the resolution gives, and says so; ".pdf" has a
/// page of the size, to the next point, on which pictures have the resolution. ".csv" is the table.
std::string exportPlot(VtkPlotWidget& widget, const QString& path, const PaperSize& paper,
                       Vectors vectors = Vectors::Auto);

/// Whether a PDF has its end, which one that was cut off lacks.
bool isWholePdf(const QByteArray& pdf);

/// A plot widget that can draw pictures of the given size but is never seen.
std::unique_ptr<VtkPlotWidget> makeHiddenPlot(const QSize& pixels);

} // namespace Talmesh::app

#endif
