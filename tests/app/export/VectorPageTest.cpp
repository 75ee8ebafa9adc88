#include "export/ExportedPage.h"
#include "support/DrawnStyles.h"
#include "support/Pictures.h"
#include "vtk/vtkPlotLineSet.h"

#include <vtkPlotPoints.h>

#include <QProcess>

#include <cstdlib>
#include <string>

using namespace Talmesh::app;
using Talmesh::Vectors;

/// What readers see of an exported page.
namespace
{

/// 360 by 270 points, 1500 by 1125 pixels.
constexpr PaperSize paper{QSizeF(127.0, 95.25), 300};

class VectorPage : public ExportedPage
{
};

/// What a program says that is no output.
std::string complaintsOf(const QString& program, const QStringList& arguments)
{
  QProcess process;
  process.start(program, arguments);
  EXPECT_TRUE(process.waitForFinished(30000) && process.exitCode() == 0) << program.toStdString();
  return process.readAllStandardError().toStdString();
}

void expectSoundPage(const QString& pdf)
{
  EXPECT_EQ(complaintsOf("qpdf", {"--check", pdf}), "");
  EXPECT_EQ(complaintsOf("pdftoppm", {"-r", "50", "-png", pdf, pdf + "-page"}), "");
  const QStringList fonts = outputOf("pdffonts", {pdf}).trimmed().split(QLatin1Char('\n')).mid(2);
  EXPECT_FALSE(fonts.isEmpty()) << "every style has letters";
  for (const QString& font : fonts)
    // Columns: embedded, named as a subset, with what its letters stand for.
    EXPECT_TRUE(
        font.contains(QRegularExpression(QStringLiteral(" yes +(yes|no) +yes +\\d+ +\\d+$"))))
        << font.toStdString();
}

/// The share of pixels that differ in more than their edges.
double differingPart(const QImage& a, const QImage& b)
{
  EXPECT_EQ(a.size(), b.size());
  int differing = 0;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x)
      differing += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > 100 ? 1 : 0;
  return double(differing) / (a.width() * a.height());
}

} // namespace

TEST_F(VectorPage, IsSoundInEveryStyle)
{
  for (const plotStyles style : drawnStyles)
    for (const Vectors vectors : {Vectors::All, Vectors::Auto, Vectors::None})
    {
      draw(style);
      expectSoundPage(write(vectors));
      EXPECT_GT(paintedPixels(pageOf(path(), 144)), 1000) << style;
    }
}

TEST_F(VectorPage, HoldsTextThatCanBeSearched)
{
  const QString label = QStringLiteral("dose (\u00b5M \u2039 \u03b1) \\ efficiency");
  container().setXLabel(label.toUtf8().constData());
  container().setYLabel(label.toUtf8().constData());
  write();
  const QString text = textOf(path());
  EXPECT_TRUE(text.contains(label)) << text.toStdString();
  // Readers take the words of turned text for lines.
  const QString turned = outputOf("pdftotext", {"-raw", path(), "-"}).simplified();
  EXPECT_EQ(turned.count(label), 2) << turned.toStdString();
}

TEST_F(VectorPage, IsLaidOutLikeTheScreen)
{
  widget->updatePlot(true);
  const QRect onScreen = dataArea();
  const QImage screen = widget->grabFramebuffer();
  write(Vectors::All);
  layOutAsOnThePage();
  const QRect onPage = dataArea();
  // The letters beside the axes are of another font of nearly the same widths.
  for (const auto side : {&QRect::left, &QRect::right, &QRect::top, &QRect::bottom})
    EXPECT_NEAR((onPage.*side)(), (onScreen.*side)(), 6);
  const QRect common = onPage.intersected(onScreen).adjusted(2, 2, -2, -2);
  const double ink = paintedPixels(screen.copy(common));
  EXPECT_NEAR(paintedPixels(pageOf(path()).copy(common)), ink, 0.5 * ink);
}

TEST_F(VectorPage, ShowsTheSameAsAPicture)
{
  const QString png = folder.filePath(QStringLiteral("plot.png"));
  for (const plotStyles style : {xyPlot, multiPlot, xyzPlot, parallelCoordinates})
    for (const Vectors vectors : {Vectors::All, Vectors::None})
    {
      draw(style);
      ASSERT_EQ(exportPlot(*widget, path(), paper, vectors), "");
      ASSERT_EQ(exportPlot(*widget, png, paper), "");
      const QImage page = pageOf(path(), 300);
      const QRect both(0, 0, page.width(), page.height() - 4);
      EXPECT_LT(differingPart(page.copy(both), QImage(png).copy(both)), 0.02) << style;
    }
}

TEST_F(VectorPage, EndsLinesAndMarkersOfAnEnlargedPartAtItsEdges)
{
  for (const Vectors vectors : {Vectors::All, Vectors::None})
    for (const int kind : {0, 1})
    {
      const std::vector<double> x = {0, 1, 2, 3, 4};
      const std::vector<double> y = {-5, 6, -5, 1, 1};
      if (kind == 0)
      {
        auto* runs = showPart<vtkPlotLineSet>(x, y);
        runs->SetStride(5);
        runs->OnlyShowSelectedOff();
        runs->SetWidth(8.0f);
      }
      else
      {
        auto* points = showPart<vtkPlotPoints>({1, 2, 3}, {0, 1, -1});
        points->SetMarkerSize(30.0f);
      }
      write(vectors);
      const QImage page = pageOf(path());
      layOutAsOnThePage();
      const QRect area = dataArea().adjusted(-1, -1, 1, 1);
      int inside = 0;
      for (int row = 0; row < page.height(); ++row)
        for (int column = 0; column < page.width(); ++column)
        {
          if (page.pixelColor(column, row).saturation() < 60)
            continue;
          ++inside;
          ASSERT_TRUE(area.contains(column, row)) << kind << ' ' << column << ' ' << row;
        }
      EXPECT_GT(inside, 300) << kind;
    }
}

TEST_F(VectorPage, IsLaidOutForItsSizeAtOnce)
{
  for (const plotStyles style : drawnStyles)
  {
    draw(style);
    widget->updatePlot(true);
    const QSize other(340, 255);
    QImage first(other, QImage::Format_RGB32);
    QImage second(other, QImage::Format_RGB32);
    for (QImage* picture : {&first, &second})
    {
      QPainter painter(picture);
      Talmesh::paintScene(*widget->contextView()->GetScene(), painter, other, 1.0, Vectors::All);
    }
    EXPECT_EQ(first, second) << style;
  }
}
