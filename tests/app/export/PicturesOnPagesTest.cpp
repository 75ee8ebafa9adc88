#include "export/ExportedPage.h"
#include "vtk/vtkPlotLineSet.h"

#include <vtkPlotPoints.h>

#include <cmath>

using namespace Talmesh::app;
using Talmesh::Vectors;

namespace
{

class PicturesOnPages : public ExportedPage
{
protected:
  /// So many runs of two points.
  void showRuns(int count)
  {
    std::vector<double> x;
    std::vector<double> y;
    for (int run = 0; run < count; ++run)
    {
      x.insert(x.end(), {1.0, 3.0});
      y.insert(y.end(), {-0.9 + 1.8 * run / count, 0.9 - 1.8 * run / count});
    }
    auto* runs = showPart<vtkPlotLineSet>(x, y);
    runs->SetStride(2);
    runs->OnlyShowSelectedOff();
    runs->SetMarkerStyle(VTK_MARKER_NONE);
  }
};

} // namespace

TEST_F(PicturesOnPages, StandForMoreRunsThanAPageHasUseFor)
{
  showRuns(Talmesh::mostVectorRuns);
  EXPECT_EQ(pictures(), 0);
  EXPECT_EQ(pictures(Vectors::None), 1);
  showRuns(Talmesh::mostVectorRuns + 1);
  EXPECT_EQ(pictures(), 1);
  EXPECT_EQ(pictures(Vectors::All), 0);
}

TEST_F(PicturesOnPages, StandForMoreThanFewPoints)
{
  EXPECT_EQ(pictures(), 0);
  EXPECT_EQ(pictures(Vectors::None), 1);
  std::vector<double> x;
  std::vector<double> y;
  for (int i = 0; i <= Talmesh::mostVectorPoints; ++i)
  {
    x.push_back(1.0 + 2.0 * i / Talmesh::mostVectorPoints);
    y.push_back(std::sin(0.7 * i));
  }
  showPart<vtkPlotPoints>(x, y)->SetMarkerSize(3.0f);
  EXPECT_EQ(pictures(Vectors::All), 0);
  EXPECT_EQ(pictures(), 1);
  EXPECT_TRUE(textOf(path()).contains(QStringLiteral("2"))) << "axes are no part of a picture";
  x.pop_back();
  y.pop_back();
  showPart<vtkPlotPoints>(x, y)->SetMarkerSize(3.0f);
  EXPECT_EQ(pictures(), 0);
  draw(parallelCoordinates); // of 72 rows, which have few corners
  EXPECT_EQ(pictures(Vectors::All), 0);
  EXPECT_EQ(pictures(), 0);
  EXPECT_EQ(pictures(Vectors::None), 1);
}

TEST_F(PicturesOnPages, HaveTheResolutionAskedFor)
{
  for (const int dpi : {150, 300})
  {
    ASSERT_EQ(exportPlot(*widget, path(), {QSizeF(120.0, 90.0), dpi}, Vectors::None), "");
    const QString list = outputOf("pdfimages", {"-list", path()});
    const QStringList row =
        list.split(QLatin1Char('\n')).value(2).simplified().split(QLatin1Char(' '));
    EXPECT_NEAR(row.value(12).toInt(), dpi, 1) << list.toStdString();
    EXPECT_EQ(row.value(8), QStringLiteral("image")) << "without the noise of JPEG";
  }
}
