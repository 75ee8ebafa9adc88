#include "app/document/PlotChoice.h"
#include "app/document/ShownStudy.h"
#include "app/export/PictureFile.h"
#include "app/export/ScaledPicture.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/DrawnStyles.h"
#include "support/PdfPages.h"
#include "support/Pictures.h"
#include "widgets/VtkPlotWidget.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <cmath>

#include "SampleStudies.h"

using namespace Talmesh::app;

namespace
{

/// How much two pictures of one size differ, 0 to 255, on average of the pixels.
double differenceOf(const QImage& a, const QImage& b)
{
  double sum = 0.0;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x)
      sum += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
  return sum / (a.width() * a.height());
}

class PaperSizeOfAPicture : public ::testing::Test
{
protected:
  PaperSizeOfAPicture()
      : widget(makeHiddenPlot(QSize(520, 360)))
  {
    showStudy(sampleStudy(sampleRuns(12, 6)), container());
    draw(selectionCdfPlot);
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

  QTemporaryDir folder;
  std::unique_ptr<VtkPlotWidget> widget;
};

} // namespace

TEST_F(PaperSizeOfAPicture, IsThePageOfThePdf)
{
  ASSERT_EQ(exportPlot(*widget, path("plot.pdf"), {QSizeF(180.0, 120.0), 300}), "");
  const QString info = outputOf("pdfinfo", {path("plot.pdf")});
  const QRegularExpression size(QStringLiteral("Page size: *([0-9.]+) x ([0-9.]+) pts"));
  const QRegularExpressionMatch found = size.match(info);
  ASSERT_TRUE(found.hasMatch()) << info.toStdString();
  // 25.4 mm are 72 points, and the page is a whole number of them.
  EXPECT_NEAR(found.captured(1).toDouble() / 72.0 * 25.4, 180.0, 0.18);
  EXPECT_NEAR(found.captured(2).toDouble() / 72.0 * 25.4, 120.0, 0.18);
}

TEST_F(PaperSizeOfAPicture, KeepsTheTextOfThePdfAsText)
{
  ASSERT_EQ(exportPlot(*widget, path("plot.pdf"), {QSizeF(180.0, 120.0), 300}), "");
  const QString text = outputOf("pdftotext", {path("plot.pdf"), QStringLiteral("-")});
  for (const char* word : {"time", "X", "k", "ECDF"})
    EXPECT_TRUE(text.contains(QLatin1String(word))) << word << " in " << text.toStdString();

  // Every font is one of those that all readers have, or is in the file.
  QStringList fonts = outputOf("pdffonts", {path("plot.pdf")}).split(QLatin1Char('\n'));
  fonts = fonts.mid(2);
  fonts.removeAll(QString());
  ASSERT_FALSE(fonts.isEmpty());
  const QRegularExpression standard(QStringLiteral("^(Helvetica|Times|Courier|Symbol)"));
  const QRegularExpression embedded(QStringLiteral(" yes +(yes|no) +(yes|no) +\\d+ +\\d+$"));
  for (const QString& font : fonts)
    EXPECT_TRUE(standard.match(font).hasMatch() || embedded.match(font).hasMatch())
        << font.toStdString();
}

TEST_F(PaperSizeOfAPicture, IsThatOfThePngInPixelsAndInMillimetres)
{
  for (const int dpi : {72, 150, 300})
  {
    const PaperSize paper = {QSizeF(90.0, 70.0), dpi};
    ASSERT_EQ(exportPlot(*widget, path("plot.png"), paper), "");
    const QImage picture(path("plot.png"));
    EXPECT_EQ(picture.width(), qRound(90.0 / 25.4 * dpi));
    EXPECT_EQ(picture.height(), qRound(70.0 / 25.4 * dpi));
    EXPECT_NEAR(picture.width() * 1000.0 / picture.dotsPerMeterX(), 90.0, 0.2);
    EXPECT_NEAR(picture.height() * 1000.0 / picture.dotsPerMeterY(), 70.0, 0.2);
  }
}

TEST_F(PaperSizeOfAPicture, IsWhiteWhereItIsAPixelShort)
{
  // 31.4 mm are 89.008 points, of which 89 are painted: 358 pixels of 359.
  ASSERT_EQ(exportPlot(*widget, path("plot.png"), {QSizeF(31.4, 60.0), 290}), "");
  const QImage picture(path("plot.png"));
  ASSERT_EQ(picture.width(), 359);
  for (int y = 0; y < picture.height(); ++y)
    ASSERT_EQ(picture.pixelColor(358, y), QColor(Qt::white)) << y;
}

TEST_F(PaperSizeOfAPicture, LeavesTheWidgetAsItWas)
{
  const QImage before = widget->grabFramebuffer();
  exportPlot(*widget, path("plot.png"), {QSizeF(90.0, 70.0), 300});
  exportPlot(*widget, path("plot.pdf"), {QSizeF(90.0, 70.0), 300});
  EXPECT_EQ(widget->size(), QSize(520, 360));
  EXPECT_TRUE(widget->updatesEnabled());
  EXPECT_EQ(widget->grabFramebuffer(), before);
}

TEST_F(PaperSizeOfAPicture, IsRefusedNowhereInAnyStyle)
{
  for (const plotStyles style : drawnStyles)
  {
    draw(style);
    EXPECT_EQ(exportPlot(*widget, path("plot.png"), {QSizeF(90.0, 70.0), 150}), "") << style;
    const QImage picture(path("plot.png"));
    EXPECT_EQ(picture.size(), QSize(531, 413)) << style;
    EXPECT_GT(paintedPixels(picture), 1000) << style;
    EXPECT_EQ(exportPlot(*widget, path("plot.pdf"), {QSizeF(90.0, 70.0), 150}), "") << style;
    // 90 by 70 mm are 255.1 by 198.4 points, of two pixels each at 144 dpi.
    const QImage page = pageOf(path("plot.pdf"), 144);
    EXPECT_EQ(page.size(), QSize(510, 396)) << style;
    EXPECT_GT(paintedPixels(page), 1000) << style;
  }
}

TEST_F(PaperSizeOfAPicture, IsRefusedBeyondItsLimits)
{
  const auto error = [this](const char* name, double side, int dpi) {
    return exportPlot(*widget, path(name), {QSizeF(side, 30.0), dpi});
  };
  const std::string png = path("plot.png").toStdString() + ": ";
  EXPECT_EQ(error("plot.png", 1200.0, 1200),
            png + "56693 x 1417 pixels are too many: a side may have 20000");
  EXPECT_EQ(error("plot.png", 19.9, 300),
            png + "a side on paper must have from 20 to 1200 millimetres");
  EXPECT_EQ(error("plot.png", 1200.1, 72),
            png + "a side on paper must have from 20 to 1200 millimetres");
  EXPECT_EQ(error("plot.png", 30.0, 71), png + "the resolution must be from 72 to 1200 dpi");
  EXPECT_EQ(error("plot.pdf", 19.0, 300),
            path("plot.pdf").toStdString() +
                ": a side on paper must have from 20 to 1200 millimetres");
  EXPECT_EQ(error("plot.csv", 1.0, 1), "");
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{"plot.csv"});
}

TEST_F(PaperSizeOfAPicture, IsNoSmallerForTheChartOfThreeDimensions)
{
  // 180 mm at 1200 dpi are 8504 pixels, more than graphics cards paint in one piece.
  draw(xyzPlot);
  EXPECT_EQ(exportPlot(*widget, path("cube.png"), {QSizeF(180.0, 20.0), 1200}), "");
  EXPECT_EQ(QImage(path("cube.png")).size(), QSize(8504, 945));
}

TEST_F(PaperSizeOfAPicture, ScalesEverythingAlike)
{
  draw(selectionCdfPlot);
  const QImage small = paintScaled(*widget, 1.0);
  for (const double scale : {1.0, 2.0, 2.5, 3.0})
  {
    const QImage large = paintScaled(*widget, scale);
    ASSERT_EQ(large.size(), QSize(qRound(520 * scale), qRound(360 * scale)));
    const QImage shrunk =
        large.scaled(small.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    // Text and lines fall on other pixels, and so differ; a part in a wrong place differs more.
    const double difference = differenceOf(shrunk, small);
    EXPECT_LT(difference, 4.0) << scale;
    EXPECT_GT(differenceOf(shrunk.mirrored(true, false), small), 3.0 * difference) << scale;
    // Lines get thicker with the rest, so that the picture is not lighter.
    QImage paper(small.size(), QImage::Format_RGB32);
    paper.fill(Qt::white);
    EXPECT_NEAR(differenceOf(shrunk, paper), differenceOf(small, paper),
                0.25 * differenceOf(small, paper))
        << scale;
  }
}
