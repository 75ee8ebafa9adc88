#include "app/export/PictureFile.h"

#include "app/document/PlotChoice.h"
#include "app/document/ShownStudy.h"
#include "app/export/PlotWriter.h"
#include "app/session/StudyFile.h"
#include "plot/PlotContainer.h"
#include "support/Pictures.h"
#include "widgets/VtkPlotWidget.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <sys/stat.h>

#include "SampleStudies.h"

using namespace Talmesh::app;

namespace
{

class PictureFile : public ::testing::Test
{
protected:
  PictureFile()
      : widget(makeHiddenPlot(QSize(500, 300)))
  {
    showStudy(sampleStudy(), *widget->plotContainer());
    applyChoice(*widget->plotContainer(), choiceOf(*widget->plotContainer()));
  }

  QString path(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }

  QTemporaryDir folder;
  std::unique_ptr<VtkPlotWidget> widget;
};

} // namespace

TEST_F(PictureFile, WritesAPngOfTheSizeAskedFor)
{
  EXPECT_EQ(exportPlot(*widget, path("plot.png")), "");
  const QImage picture(path("plot.png"));
  EXPECT_EQ(picture.size(), QSize(500, 300));
  EXPECT_GT(paintedPixels(picture), 1000);
  EXPECT_LT(paintedPixels(picture), 500 * 300 / 2);
}

TEST_F(PictureFile, ShowsInTheNextPictureWhatWasChosenSince)
{
  exportPlot(*widget, path("before.png"));
  PlotChoice choice = choiceOf(*widget->plotContainer());
  choice.style = scatterPlotMatrix;
  applyChoice(*widget->plotContainer(), choice);
  exportPlot(*widget, path("after.png"));
  EXPECT_NE(QImage(path("before.png")), QImage(path("after.png")));
}

TEST_F(PictureFile, FillsThePictureWithThe3DChart)
{
  PlotChoice choice = choiceOf(*widget->plotContainer());
  choice.style = xyzPlot;
  applyChoice(*widget->plotContainer(), choice);
  exportPlot(*widget, path("cube.png"));
  const QImage picture(path("cube.png"));
  EXPECT_GT(paintedPixels(picture.copy(0, 0, 500, 100)), 20);
  EXPECT_GT(paintedPixels(picture.copy(0, 200, 500, 100)), 20);
}

TEST_F(PictureFile, DrawsASecondWidgetOfAnotherSize)
{
  const auto other = makeHiddenPlot(QSize(321, 234));
  EXPECT_EQ(exportPlot(*other, path("other.png")), "");
  EXPECT_EQ(QImage(path("other.png")).size(), QSize(321, 234));
}

TEST_F(PictureFile, WritesAWholePdf)
{
  EXPECT_EQ(exportPlot(*widget, path("plot.pdf")), "");
  const QByteArray pdf = contentOf(path("plot.pdf"));
  EXPECT_TRUE(pdf.startsWith("%PDF"));
  EXPECT_TRUE(pdf.trimmed().endsWith("%%EOF"));
  EXPECT_TRUE(pdf.contains("/MediaBox"));
}

TEST_F(PictureFile, KnowsAPdfWithoutItsEnd)
{
  EXPECT_EQ(exportPlot(*widget, path("plot.pdf")), "");
  const QByteArray pdf = contentOf(path("plot.pdf"));
  EXPECT_TRUE(isWholePdf(pdf));
  EXPECT_FALSE(isWholePdf(pdf.left(pdf.size() / 2)));
  EXPECT_FALSE(isWholePdf(pdf.trimmed().chopped(1)));
  EXPECT_FALSE(isWholePdf("%%EOF"));
  EXPECT_FALSE(isWholePdf({}));
}

TEST_F(PictureFile, TakesSuffixesInCapitals)
{
  for (const char* name : {"A.PNG", "B.Pdf", "C.CSV"})
    EXPECT_EQ(exportPlot(*widget, path(name)), "") << name;
  EXPECT_EQ(QImage(path("A.PNG")).size(), QSize(500, 300));
  EXPECT_TRUE(isWholePdf(contentOf(path("B.Pdf"))));
  EXPECT_TRUE(contentOf(path("C.CSV")).startsWith("\"Molecule: X\""));
}

TEST_F(PictureFile, WritesNamesThatTheFileSystemTakesAsTheyAre)
{
  EXPECT_EQ(exportPlot(*widget, path("a.pdf.pdf")), "");
  EXPECT_EQ(exportPlot(*widget, path("Käse β.png")), "");
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 2);
  EXPECT_TRUE(QFile::exists(path("a.pdf.pdf")));
  EXPECT_TRUE(QFile::exists(path("Käse β.png")));
}

TEST_F(PictureFile, WritesATableThatCanBeOpenedAgain)
{
  EXPECT_EQ(exportPlot(*widget, path("plot.csv")), "");
  const Result<OpenedStudy> again = openStudyFile(path("plot.csv"));
  ASSERT_TRUE(again.hasValue()) << again.error();
  EXPECT_EQ(studySize(again.value().study), "3 runs, 4 points each, 1 parameter");
}

TEST_F(PictureFile, TakesThePlaceOfAnOlderFile)
{
  QFile old(path("plot.csv"));
  ASSERT_TRUE(old.open(QIODevice::WriteOnly));
  old.write("old");
  old.close();
  EXPECT_EQ(exportPlot(*widget, path("plot.csv")), "");
  EXPECT_TRUE(contentOf(path("plot.csv")).startsWith("\"Molecule: X\""));
}

TEST_F(PictureFile, LeavesNothingWhereItCannotWrite)
{
  for (const char* name : {"nowhere/plot.png", "nowhere/plot.pdf", "nowhere/plot.csv"})
  {
    const std::string error = exportPlot(*widget, path(name));
    EXPECT_EQ(error.find(path(name).toStdString() + ": "), 0u) << error;
    EXPECT_EQ(error.find('\n'), std::string::npos);
  }
  EXPECT_TRUE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).isEmpty());
}

TEST_F(PictureFile, LeavesAFolderOfTheNameAlone)
{
  ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("plot.png")));
  EXPECT_NE(exportPlot(*widget, path("plot.png")), "");
  EXPECT_TRUE(QFileInfo(path("plot.png")).isDir());
}

TEST_F(PictureFile, OpensNothingWhenItsWritingIsGivenUpBeforeItBegins)
{
  const QString pipe = path("plot.csv");
  ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  const Result<PaintedPlot> painted = paintPlot(*widget, pipe, {});
  ASSERT_TRUE(painted.hasValue());
  const auto written = writePlot(painted.value(), [](double) { return false; });
  EXPECT_TRUE(written.isCancelled()) << "does not wait for a reader: " << written.error();
}

TEST_F(PictureFile, RefusesAnotherSuffix)
{
  EXPECT_EQ(exportPlot(*widget, path("plot.svg")),
            path("plot.svg").toStdString() + ": the name must end with .png, .pdf or .csv");
}
