#include "app/document/PlotChoice.h"
#include "app/document/ShownStudy.h"
#include "app/export/PictureFile.h"
#include "app/export/TextForPaper.h"
#include "plot/PlotContainer.h"
#include "support/PdfPages.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkTextProperty.h>

#include <gtest/gtest.h>

#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "SampleStudies.h"

using namespace Talmesh::app;

namespace
{

class TextOfPictures : public ::testing::Test
{
protected:
  TextOfPictures()
      : widget(makeHiddenPlot(QSize(520, 360)))
  {
    showStudy(sampleStudy(sampleRuns(12, 6)), container());
  }

  PlotContainer& container() { return *widget->plotContainer(); }

  void draw(plotStyles style)
  {
    PlotChoice choice = choiceOf(container());
    choice.style = style;
    applyChoice(container(), choice);
    widget->updatePlot(true);
  }

  QString path(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }

  /// Of a word on the page, in points; 0 where it is missing.
  double heightOf(const QString& word)
  {
    const QString text =
        outputOf("pdftotext", {QStringLiteral("-bbox"), path("plot.pdf"), QStringLiteral("-")});
    const QRegularExpression box(
        QStringLiteral("yMin=\"([0-9.]+)\" xMax=\"[0-9.]+\" yMax=\"([0-9.]+)\">%1<").arg(word));
    const QRegularExpressionMatch found = box.match(text);
    return found.captured(2).toDouble() - found.captured(1).toDouble();
  }

  std::string exportPage(double width, std::optional<int> textSize)
  {
    ExportWishes wishes;
    wishes.paper = PaperSize{QSizeF(width, width / 1.5), 150};
    wishes.textSize = textSize;
    return exportPlot(*widget, path("plot.pdf"), wishes);
  }

  QTemporaryDir folder;
  std::unique_ptr<VtkPlotWidget> widget;
};

} // namespace

TEST_F(TextOfPictures, FollowsTheWidthOfThePaper)
{
  EXPECT_EQ(usualTextSize(20.0), 7);
  EXPECT_EQ(usualTextSize(85.0), 7);
  EXPECT_EQ(usualTextSize(135.0), 9);
  EXPECT_EQ(usualTextSize(180.0), 12);
  EXPECT_EQ(usualTextSize(1200.0), 12);
}

TEST_F(TextOfPictures, HasTheSizeThatWasAskedFor)
{
  draw(xyPlot);
  ASSERT_EQ(exportPage(180.0, {}), "");
  const double usual = heightOf("time");
  ASSERT_GT(usual, 0.0);
  for (const int size : {5, 8, 20})
  {
    ASSERT_EQ(exportPage(180.0, size), "");
    EXPECT_NEAR(heightOf("time"), usual * size / 12.0, 0.02 * usual) << size;
  }
  ASSERT_EQ(exportPage(85.0, {}), "");
  EXPECT_NEAR(heightOf("time"), usual * 7.0 / 12.0, 0.02 * usual);
}

TEST_F(TextOfPictures, LeavesTheWindowAsItWas)
{
  draw(xyPlot);
  const int left = container().getLeftMargin();
  const int bottom = container().getBottomMargin();
  {
    const TextForPaper text(*widget, 6);
    vtkAxis* axis = container().getChartXY()->GetAxis(vtkAxis::LEFT);
    EXPECT_EQ(axis->GetLabelProperties()->GetFontSize(), 6);
    EXPECT_EQ(container().getLeftMargin(), left / 2);
  }
  ASSERT_EQ(exportPage(85.0, {}), "");
  EXPECT_EQ(container().getLeftMargin(), left);
  EXPECT_EQ(container().getBottomMargin(), bottom);
  vtkAxis* axis = container().getChartXY()->GetAxis(vtkAxis::LEFT);
  EXPECT_EQ(axis->GetLabelProperties()->GetFontSize(), 12);
}

TEST_F(TextOfPictures, HasAllParallelAxesOnThePaperWhateverTheWindowsSize)
{
  draw(parallelCoordinates);
  for (const double width : {90.0, 180.0, 300.0})
  {
    // A pixel is a point.
    ASSERT_EQ(exportPlot(*widget, path("plot.png"), {QSizeF(width, width / 1.5), 72}), "");
    const QImage picture(path("plot.png"));
    int beside = 0;
    int within = 0;
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x)
        if (qGray(picture.pixel(x, y)) < 128)
          ++(x >= picture.width() - 20 || y < 2 ? beside : within);
    EXPECT_EQ(beside, 0) << width;
    EXPECT_GT(within, 200) << width;
  }
}
