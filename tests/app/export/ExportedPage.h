#ifndef ExportedPage_h
#define ExportedPage_h

#include "app/document/PlotChoice.h"
#include "app/document/ShownStudy.h"
#include "app/export/PictureFile.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/PdfPages.h"
#include "support/SampleTables.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkContextScene.h>
#include <vtkContextView.h>
#include <vtkNew.h>

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <memory>
#include <vector>

#include "SampleStudies.h"

/// A plot of runs, exported as a page.
class ExportedPage : public ::testing::Test
{
protected:
  static constexpr QSize pixels = QSize(500, 400);

  ExportedPage()
      : widget(Talmesh::app::makeHiddenPlot(pixels))
  {
    Talmesh::app::showStudy(sampleStudy(sampleRuns(12, 6)), container());
    draw(xyPlot);
  }

  PlotContainer& container() { return *widget->plotContainer(); }
  vtkChartXY& chart() { return *container().getChartXY(); }

  void draw(plotStyles style)
  {
    Talmesh::app::PlotChoice choice = Talmesh::app::choiceOf(container());
    choice.style = style;
    Talmesh::app::applyChoice(container(), choice);
  }

  /// Nothing but one plot, of which the part from 1 to 3 along x and from -1 to 1 along y is shown.
  template <typename Plot>
  Plot* showPart(const std::vector<double>& x, const std::vector<double>& y)
  {
    chart().ClearPlots();
    vtkNew<Plot> plot;
    plot->SetInputData(tableOf({{"x", x}, {"y", y}}), 0, 1);
    plot->SetColor(255, 0, 0, 255);
    chart().AddPlot(plot);
    chart().GetAxis(vtkAxis::BOTTOM)->SetBehavior(vtkAxis::FIXED);
    chart().GetAxis(vtkAxis::LEFT)->SetBehavior(vtkAxis::FIXED);
    chart().GetAxis(vtkAxis::BOTTOM)->SetRange(1.0, 3.0);
    chart().GetAxis(vtkAxis::LEFT)->SetRange(-1.0, 1.0);
    return plot;
  }

  QString write(Talmesh::Vectors vectors = Talmesh::Vectors::Auto)
  {
    EXPECT_EQ(Talmesh::app::exportPlot(*widget, path(), vectors), "");
    return path();
  }

  /// Where the chart draws its data, in pixels from the upper left.
  QRect dataArea()
  {
    const int* corner = chart().GetPoint1();
    const int* opposite = chart().GetPoint2();
    return {QPoint(corner[0], pixels.height() - opposite[1]),
            QPoint(opposite[0], pixels.height() - corner[1])};
  }

  /// After an export the chart is as on the screen again.
  void layOutAsOnThePage()
  {
    QImage none(pixels, QImage::Format_RGB32);
    QPainter painter(&none);
    Talmesh::paintScene(*widget->contextView()->GetScene(), painter, pixels, 1.0,
                        Talmesh::Vectors::All);
  }

  QString path() const { return folder.filePath(QStringLiteral("page.pdf")); }

  /// How many pictures are on a page, not counting their opacities.
  int pictures(Talmesh::Vectors vectors = Talmesh::Vectors::Auto)
  {
    const QString list = outputOf("pdfimages", {"-list", write(vectors)});
    return list.count(QRegularExpression(QStringLiteral("\\n *\\d+ +\\d+ image ")));
  }

  QTemporaryDir folder;
  std::unique_ptr<VtkPlotWidget> widget;
};

#endif
