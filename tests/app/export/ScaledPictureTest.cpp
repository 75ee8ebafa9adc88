#include "app/export/ScaledPicture.h"

#include "app/export/PictureFile.h"
#include "plot/PlotContainer.h"
#include "support/SampleTables.h"
#include "vtk/vtkPlotLineSet.h"
#include "widgets/PainterDevice.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkContext2D.h>
#include <vtkContextView.h>
#include <vtkIdTypeArray.h>
#include <vtkLookupTable.h>
#include <vtkNew.h>
#include <vtkObjectFactory.h>
#include <vtkPlotPoints.h>

#include <gtest/gtest.h>

#include <QPainter>

#include <cmath>
#include <limits>
#include <new>
#include <vector>

using namespace Talmesh::app;

namespace
{

constexpr QSize screen(400, 300);
constexpr int allMarkers[] = {VTK_MARKER_CROSS, VTK_MARKER_PLUS, VTK_MARKER_SQUARE,
                              VTK_MARKER_CIRCLE, VTK_MARKER_DIAMOND};

/// Finds no memory where it is painted for a file.
class GreedyPlot : public vtkPlotPoints
{
public:
  static GreedyPlot* New();
  vtkTypeMacro(GreedyPlot, vtkPlotPoints);

  bool Paint(vtkContext2D* context) override
  {
    if (PainterDevice::SafeDownCast(context->GetDevice()))
      throw std::bad_alloc();
    return vtkPlotPoints::Paint(context);
  }
};
vtkStandardNewMacro(GreedyPlot);

/// A chart without lines, whose x and y run from 0 to 1.
class ScaledPicture : public ::testing::Test
{
protected:
  ScaledPicture()
      : widget(makeHiddenPlot(screen))
  {
    chart().ClearPlots();
    // The selections belong to the plots alone.
    chart().SetAnnotationLink(nullptr);
    for (const int place : {vtkAxis::BOTTOM, vtkAxis::LEFT})
    {
      chart().GetAxis(place)->SetBehavior(vtkAxis::FIXED);
      chart().GetAxis(place)->SetRange(0.0, 1.0);
      chart().GetAxis(place)->SetGridVisible(false);
    }
    widget->updatePlot(true);
  }

  vtkChartXY& chart() { return *widget->plotContainer()->getChartXY(); }

  template <typename Plot>
  Plot* add(const std::vector<double>& x, const std::vector<double>& y)
  {
    vtkNew<Plot> plot;
    plot->SetInputData(tableOf({{"x", x}, {"y", y}}), 0, 1);
    plot->SetColor(255, 0, 0, 255);
    chart().AddPlot(plot);
    return plot;
  }

  /// So many runs of two points, which cross.
  void addRuns(int count)
  {
    std::vector<double> x;
    std::vector<double> y;
    for (int run = 0; run < count; ++run)
    {
      x.insert(x.end(), {0.1, 0.9});
      y.insert(y.end(), {0.1 + 0.8 * run / count, 0.9 - 0.8 * run / count});
    }
    auto* lines = add<vtkPlotLineSet>(x, y);
    lines->SetStride(2);
    lines->OnlyShowSelectedOff();
    lines->SetMarkerStyle(VTK_MARKER_NONE);
  }

  QImage paintedWith(Talmesh::Vectors vectors)
  {
    QImage picture(screen, QImage::Format_RGB32);
    QPainter painter(&picture);
    Talmesh::paintScene(*widget->contextView()->GetScene(), painter, screen, 1.0, vectors);
    return picture;
  }

  /// What x or y must be for a point to be painted there, in pixels from the left or from below.
  double valueAt(double pixel, int axis)
  {
    const double low = chart().GetPoint1()[axis];
    const double high = chart().GetPoint2()[axis];
    return (pixel - low) / (high - low);
  }

  std::unique_ptr<VtkPlotWidget> widget;
};

/// The area that is covered in colours, in pixels; a pixel half covered counts half.
double colouredArea(const QImage& picture)
{
  double area = 0.0;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      area += picture.pixelColor(x, y).hsvSaturationF();
  return area;
}

} // namespace

TEST_F(ScaledPicture, EnlargesMarkersOfEveryShape)
{
  auto* points = add<vtkPlotPoints>({0.2, 0.4, 0.6, 0.8}, {0.3, 0.7, 0.4, 0.6});
  points->SetMarkerSize(12.0f);
  for (const int shape : allMarkers)
  {
    points->SetMarkerStyle(shape);
    widget->updatePlot(true);
    const double onScreen = colouredArea(widget->grabFramebuffer());
    EXPECT_GT(onScreen, 30.0) << shape;
    const double scale = 300.0 / 72.0;
    const double onPaper = colouredArea(paintScaled(*widget, scale)) / (scale * scale);
    EXPECT_NEAR(onPaper, onScreen, 0.2 * onScreen) << shape;
  }
}

TEST_F(ScaledPicture, EnlargesTheMarkersOfASelection)
{
  auto* points = add<vtkPlotPoints>({0.3, 0.7}, {0.3, 0.7});
  vtkNew<vtkIdTypeArray> selection;
  selection->InsertNextValue(0);
  points->SetSelection(selection);
  for (const int shape : {VTK_MARKER_NONE, VTK_MARKER_CIRCLE, VTK_MARKER_SQUARE})
  {
    points->SetMarkerStyle(shape);
    const double before = colouredArea(paintScaled(*widget, 1.0));
    EXPECT_GT(before, 10.0) << shape;
    EXPECT_NEAR(colouredArea(paintScaled(*widget, 4.0)), 16.0 * before, 2.0 * before) << shape;
  }
}

TEST_F(ScaledPicture, EnlargesTheLinesOfASelection)
{
  auto* lines = add<vtkPlotLineSet>({0.1, 0.9, 0.1, 0.9}, {0.2, 0.3, 0.8, 0.6});
  lines->SetStride(2);
  lines->OnlyShowSelectedOff();
  lines->SetMarkerStyle(VTK_MARKER_NONE);
  lines->SetWidth(1.0f);
  const double plain = colouredArea(paintScaled(*widget, 1.0));
  vtkNew<vtkIdTypeArray> selection;
  selection->InsertNextValue(0);
  selection->InsertNextValue(1);
  lines->SetSelection(selection);
  const double before = colouredArea(paintScaled(*widget, 2.0));
  EXPECT_GT(before, 4 * 1.5 * plain);
  EXPECT_NEAR(colouredArea(paintScaled(*widget, 4.0)), 4.0 * before, 0.4 * before);
}

TEST_F(ScaledPicture, LeavesMarkersWholeWhereItsPartsMeet)
{
  auto* points = add<vtkPlotPoints>({0.5}, {0.5});
  // The size of the text settles where the axes are.
  paintScaled(*widget, 2.0);
  // Of twice the size the parts meet in the middle.
  points->SetInputData(tableOf({{"x", {valueAt(200.0, 0), valueAt(200.0, 0), valueAt(250.0, 0)}},
                                {"y", {valueAt(150.0, 1), valueAt(200.0, 1), valueAt(150.0, 1)}}}),
                       0, 1);
  points->SetMarkerSize(20.0f);
  points->SetMarkerStyle(VTK_MARKER_SQUARE);
  const QImage picture = paintScaled(*widget, 2.0);
  EXPECT_NEAR(colouredArea(picture), 3 * 40.0 * 40.0, 3 * 2 * 40.0);
  // Nothing of them is missing between the parts, either.
  EXPECT_NEAR(colouredArea(picture.copy(385, 285, 30, 30)), 30.0 * 30.0, 1.0);
}

TEST_F(ScaledPicture, GivesPointsTheirOwnColours)
{
  auto* points = add<vtkPlotPoints>({0.3, 0.7}, {0.5, 0.5});
  points->SetMarkerStyle(VTK_MARKER_SQUARE);
  points->SetMarkerSize(20.0f);
  vtkNew<vtkLookupTable> table;
  table->SetHueRange(0.0, 0.6);
  table->SetRange(0.0, 1.0);
  table->Build();
  points->SetLookupTable(table);
  points->SelectColorArray("x");
  points->ScalarVisibilityOn();
  const QImage small = paintScaled(*widget, 1.0);
  const QImage large = paintScaled(*widget, 3.0);
  for (const double x : {0.3, 0.7})
  {
    const int* low = chart().GetPoint1();
    const int* high = chart().GetPoint2();
    const QPoint place(static_cast<int>(std::lround(low[0] + x * (high[0] - low[0]))),
                       screen.height() - (low[1] + high[1]) / 2);
    EXPECT_GT(small.pixelColor(place).hsvSaturation(), 200) << x;
    EXPECT_EQ(large.pixelColor(3 * place), small.pixelColor(place)) << x;
  }
}

TEST_F(ScaledPicture, CountsRunsHoweverFewTheyAre)
{
  for (const int runs : {2, Talmesh::mostVectorRuns, Talmesh::mostVectorRuns + 1})
  {
    chart().ClearPlots();
    addRuns(runs);
    const QImage picture = paintScaled(*widget, 1.0);
    EXPECT_EQ(picture, paintedWith(Talmesh::Vectors::None)) << runs;
    EXPECT_NE(picture, paintedWith(Talmesh::Vectors::All)) << runs;
  }
}

TEST_F(ScaledPicture, LeavesThePlotAsItWasAlsoWhenItFails)
{
  add<GreedyPlot>({0.3, 0.7}, {0.5, 0.5});
  widget->updatePlot(true);
  const vtkVector2i corner(chart().GetPoint2());
  const QSize other(200, 150);
  EXPECT_THROW(paintPicture(*widget, other, 1.0, other), std::bad_alloc);
  EXPECT_EQ(vtkVector2i(chart().GetPoint2()), corner);
  EXPECT_THROW(paintPage(*widget, other, 1.0, Talmesh::Vectors::Auto), std::bad_alloc);
  EXPECT_EQ(vtkVector2i(chart().GetPoint2()), corner);
}
