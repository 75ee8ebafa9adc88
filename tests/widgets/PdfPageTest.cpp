#include "plot/PlotContainer.h"
#include "support/PdfPages.h"
#include "support/Pictures.h"
#include "support/SampleTables.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkPlot.h>

#include <gtest/gtest.h>

#include <QTemporaryDir>

/// What a reader sees of a plot's PDF.
namespace
{

constexpr QSize pixels(500, 400);

class PdfPage : public ::testing::Test
{
protected:
  PdfPage() { widget.resize(pixels); }

  vtkChartXY& chart() { return *widget.plotContainer()->getChartXY(); }

  /// Shows nothing but red points that lie far apart or the lines between them, and of those the
  /// part from 1 to 3 along x and from -1 to 1 along y.
  void showPart(int kind, const std::vector<double>& x, const std::vector<double>& y)
  {
    chart().ClearPlots();
    vtkPlot* plot = chart().AddPlot(kind);
    plot->SetInputData(tableOf({{"x", x}, {"y", y}}), 0, 1);
    plot->SetColor(255, 0, 0, 255);
    chart().GetAxis(vtkAxis::BOTTOM)->SetBehavior(vtkAxis::FIXED);
    chart().GetAxis(vtkAxis::LEFT)->SetBehavior(vtkAxis::FIXED);
    chart().GetAxis(vtkAxis::BOTTOM)->SetRange(1.0, 3.0);
    chart().GetAxis(vtkAxis::LEFT)->SetRange(-1.0, 1.0);
  }

  QImage print()
  {
    widget.printPlot(path());
    return pageOf(path());
  }

  /// Where the chart draws its data, in the page's pixels.
  QRect dataArea()
  {
    const int* corner = chart().GetPoint1();
    const int* opposite = chart().GetPoint2();
    return {QPoint(corner[0], pixels.height() - opposite[1]),
            QPoint(opposite[0], pixels.height() - corner[1])};
  }

  QString path() const { return folder.filePath(QStringLiteral("page.pdf")); }

  QTemporaryDir folder;
  VtkPlotWidget widget;
};

struct Coloured
{
  int inside = 0;
  int outside = 0;
};

/// The pixels of a page that are neither grey nor nearly so.
Coloured colouredPixels(const QImage& page, const QRect& area)
{
  Coloured found;
  for (int y = 0; y < page.height(); ++y)
    for (int x = 0; x < page.width(); ++x)
      if (page.pixelColor(x, y).saturation() > 60)
        ++(area.contains(x, y) ? found.inside : found.outside);
  return found;
}

/// How many black pixels hold as much ink as a picture.
double inkOf(const QImage& picture)
{
  double ink = 0.0;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      ink += 1.0 - qGray(picture.pixel(x, y)) / 255.0;
  return ink;
}

} // namespace

TEST_F(PdfPage, EndsTheLinesOfAnEnlargedPartAtItsEdges)
{
  showPart(vtkChart::LINE, {0, 1, 2, 3, 4}, {-5, 6, -5, 6, -5});
  const QImage page = print();
  ASSERT_EQ(page.size(), pixels);
  const Coloured found = colouredPixels(page, dataArea().adjusted(-2, -2, 2, 2));
  EXPECT_GT(found.inside, 100);
  EXPECT_EQ(found.outside, 0);
}

TEST_F(PdfPage, EndsTheMarkersOfAnEnlargedPartAtItsEdges)
{
  showPart(vtkChart::POINTS, {0, 0.9, 1, 1.5, 2, 2.5, 3, 3.5}, {0, 0, 0, 1.3, -0.5, -1, 0.5, 0.5});
  // A disc on an edge is whole, as its neighbours are.
  constexpr int radius = 5;
  const QImage page = print();
  const Coloured found =
      colouredPixels(page, dataArea().adjusted(-radius, -radius, radius, radius));
  EXPECT_GT(found.inside, 50);
  EXPECT_EQ(found.outside, 0);
}

TEST_F(PdfPage, KeepsWhatItCanAsText)
{
  widget.plotContainer()->setXLabel("time (s), [1/2]");
  print();
  EXPECT_TRUE(textOf(path()).contains(QStringLiteral("time (s), [1/2]")));
}

TEST_F(PdfPage, LooksAsOnTheScreenWhateverTheLetters)
{
  for (const char* label : {"\u03b10 [\u00b5M]", "a) rate", "rate (1/s", "1\\2", "Gr\u00f6\u00dfe"})
  {
    widget.plotContainer()->setXLabel(label);
    widget.plotContainer()->setYLabel(label);
    const QImage page = print();
    const QImage screen = widget.grabFramebuffer();
    const QRect area = dataArea();
    // Below the numbers of the axis, and left of those.
    const QRect below(area.left(), pixels.height() - 20, area.width(), 20);
    const QRect left(0, area.top(), 20, area.height());
    for (const QRect& title : {below, left})
    {
      const double ink = inkOf(screen.copy(title));
      EXPECT_GT(ink, 10.0) << label;
      EXPECT_NEAR(inkOf(page.copy(title)), ink, 0.35 * ink) << label;
    }
    const QString text = textOf(path());
    EXPECT_TRUE(text.contains(QStringLiteral("Example Plot"))) << text.toStdString();
  }
}
