#include "app/examples/Gallery.h"

#include "app/document/Document.h"
#include "external/ParameterSelection.h"
#include "plot/PlotContainer.h"
#include "support/PdfPages.h"
#include "support/Pictures.h"
#include "support/PlotScene.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkPlot.h>
#include <vtkTable.h>
#include <vtkVariant.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <memory>
#include <set>
#include <string>

#include "SampleStudies.h"

using namespace Talmesh::app;

namespace
{

/// The axes alone have more; a page without its chart has none.
constexpr int leastPainted = 150;

/// @param empty the views that have nothing to show
void expectEveryView(const QString& folder, const QSize& size,
                     const std::set<std::string>& empty = {})
{
  for (const GalleryView& view : galleryViews())
  {
    const QString path = QDir(folder).filePath(QString::fromStdString(view.name));
    const QImage picture(path + QStringLiteral(".png"));
    EXPECT_EQ(picture.size(), size) << view.name;
    const QImage page = pageOf(path + QStringLiteral(".pdf"));
    EXPECT_EQ(page.size(), size) << view.name;
    for (const QImage& painted : {picture, page})
      EXPECT_EQ(paintedPixels(painted) > leastPainted, empty.count(view.name) == 0) << view.name;
  }
  EXPECT_EQ(QDir(folder).entryList(QDir::Files).size(),
            2 * static_cast<int>(galleryViews().size()));
}

/// One view in a scene.
struct DrawnView
{
  DrawnView(const std::string& name, const Study& study)
  {
    for (const GalleryView& known : galleryViews())
      if (known.name == name)
        error = drawView(known, study, document);
    EXPECT_EQ(error, "") << name;
  }

  PlotContainer& container() { return *document.container(); }
  vtkChartXY& chart() { return *container().getChartXY(); }

  PlotScene view;
  QObject counter;
  int drawings = 0;
  Document document{[this](PlotContainer& shown)
                    {
                      shown.setScene(view.scene());
                      shown.addCompletion(&counter, [this] { ++drawings; });
                    }};
  std::string error = "no such view";
};

} // namespace

TEST(Gallery, WritesAPngAndAPdfOfEveryView)
{
  const QTemporaryDir folder;
  const QString inner = folder.filePath(QStringLiteral("a/b"));
  EXPECT_EQ(writeGallery(sampleStudy(), inner, QSize(400, 300)), "");
  expectEveryView(inner, QSize(400, 300));
}

TEST(Gallery, ShowsAPlainTableToo)
{
  const QTemporaryDir folder;
  EXPECT_EQ(writeGallery(sampleStudy("a,b\n1,2\n3,5\n4,4\n"), folder.path(), QSize(320, 240)), "");
  // Without parameters there is no page of them.
  expectEveryView(folder.path(), QSize(320, 240), {"multiPlot"});
}

TEST(Gallery, ShowsATableOfOneColumnAndOneRow)
{
  const QTemporaryDir folder;
  EXPECT_EQ(writeGallery(sampleStudy("a\n1\n"), folder.path(), QSize(200, 160)), "");
  // One column makes no lines between axes.
  expectEveryView(folder.path(), QSize(200, 160), {"multiPlot", "parallelCoordinates"});
}

TEST(Gallery, DrawsEveryViewOnce)
{
  for (const GalleryView& view : galleryViews())
    EXPECT_EQ(DrawnView(view.name, sampleStudy()).drawings, 1) << view.name;
}

TEST(Gallery, NamesEveryViewOnce)
{
  std::set<std::string> names;
  for (const GalleryView& view : galleryViews())
    EXPECT_TRUE(names.insert(view.name).second) << view.name;
  EXPECT_GE(names.size(), 7u);
}

TEST(Gallery, HoldsEveryComputedStudy)
{
  std::set<std::string> names;
  for (const GalleryView& view : galleryViews())
    names.insert(view.name);
  for (const char* name :
       {"scatterWithErrorBars", "fitParameterDistribution", "fittedCourse",
        "fittedCourse-logarithmic", "residuals", "residuals-scaled", "residuals-sideBySide",
        "sensitivity-overTime", "sensitivity-total-overTime", "sensitivity-atTimePoint",
        "sensitivity-total-atTimePoint", "distribution-alpha", "distribution-alpha0",
        "distribution-beta", "distribution-n", "timeCourses"})
    EXPECT_EQ(names.count(name), 1U) << name;
}

TEST(Gallery, ShowsTheTimeCoursesOfARun)
{
  DrawnView drawn("timeCourses", sampleStudy());
  ASSERT_EQ(drawn.chart().GetNumberOfPlots(), 2);
  // sin(0) is 0.
  EXPECT_EQ(drawn.container().getTable()->GetValueByName(0, "Molecule: X").ToDouble(), 2.0);
  EXPECT_EQ(drawn.container().getTable()->GetNumberOfRows(), 4) << "one run";
  EXPECT_TRUE(drawn.chart().GetShowLegend());
}

TEST(Gallery, ShowsALogarithmicAxis)
{
  DrawnView drawn("fittedCourse-logarithmic", sampleStudy());
  EXPECT_TRUE(drawn.chart().GetAxis(vtkAxis::LEFT)->GetLogScale());
  EXPECT_TRUE(drawn.chart().GetAxis(vtkAxis::LEFT)->GetLogScaleActive()) << "in the first picture";
}

TEST(Gallery, SelectsLivelyRunsByTheirNumbers)
{
  // Run 30 moves most; run 10 has a gap, which counts for nothing.
  std::string text = "run,time,k,X\n";
  for (const int run : {40, 10, 20, 30})
    for (int point = 0; point < 4; ++point)
    {
      const bool gap = run == 10 && point == 3;
      const int moving = run == 30 ? 5 : 1;
      text += std::to_string(run) + ',' + std::to_string(point) + ',' + std::to_string(run) + ',' +
              (gap ? std::string() : std::to_string(moving * point)) + '\n';
    }
  for (const char* name : {"multiPlot", "selectionCdfPlot", "selectionCdfPlot-densities"})
  {
    DrawnView drawn(name, sampleStudy(text));
    const std::unique_ptr<ParameterSelection> selected(drawn.container().getSelection());
    ASSERT_TRUE(selected) << name;
    EXPECT_EQ(selected->runs, std::set<int>{30}) << name;
  }
}

TEST(Gallery, ShowsDensitiesWithTheBandsOfAllRuns)
{
  DrawnView drawn("selectionCdfPlot-densities", sampleStudy(sampleRuns(8, 5)));
  ASSERT_TRUE(drawn.container().getQuartileTable());
  EXPECT_EQ(drawn.container().getQuartileTable()->GetNumberOfRows(), 5);
  int bands = 0;
  for (vtkIdType i = 0; i < drawn.chart().GetNumberOfPlots(); ++i)
    bands += drawn.chart().GetPlot(i)->IsA("vtkPlotFunctionalBag") ? 1 : 0;
  EXPECT_EQ(bands, 3);
  EXPECT_EQ(drawn.container().getKsResults().size(), 1U);
}

TEST(Gallery, SaysWhenTheFolderCannotBeMade)
{
  const QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("file")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  const QString inside = folder.filePath(QStringLiteral("file/gallery"));
  EXPECT_EQ(writeGallery(sampleStudy(), inside, QSize(200, 200)),
            inside.toStdString() + ": the folder cannot be made");
}
