#include "app/document/PlotChoice.h"
#include "app/document/ShownStudy.h"
#include "app/examples/ExampleStudy.h"
#include "app/examples/Gallery.h"
#include "app/export/PictureFile.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/PdfPages.h"
#include "vtk/RowSelections.h"
#include "widgets/ScenePainter.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkAnnotationLink.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <memory>
#include <numeric>
#include <vector>

#include "SampleStudies.h"

using namespace Talmesh::app;
using Talmesh::Vectors;

/// What is a picture on a page, and how large that leaves it.
namespace
{

class VectorLimits : public ::testing::Test
{
protected:
  static constexpr int points = 50;

  void show(int runs, plotStyles style)
  {
    widget = makeHiddenPlot(QSize(500, 400));
    showStudy(sampleStudy(sampleRuns(runs, points)), container());
    PlotChoice choice = choiceOf(container());
    choice.style = style;
    applyChoice(container(), choice);
  }

  PlotContainer& container() { return *widget->plotContainer(); }

  /// All rows of the first runs.
  void select(int runs)
  {
    std::vector<vtkIdType> rows(static_cast<std::size_t>(runs * points));
    std::iota(rows.begin(), rows.end(), 0);
    container().getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection(rows));
  }

  /// How many pictures the page has, not counting their opacities.
  int pictures(Vectors vectors)
  {
    EXPECT_EQ(exportPlot(*widget, path(), vectors), "");
    const QString list = outputOf("pdfimages", {"-list", path()});
    return list.count(QRegularExpression(QStringLiteral("\\n *\\d+ +\\d+ image ")));
  }

  QString path() const { return folder.filePath(QStringLiteral("page.pdf")); }

  QTemporaryDir folder;
  std::unique_ptr<VtkPlotWidget> widget;
};

} // namespace

TEST_F(VectorLimits, TurnMoreRunsIntoAPicture)
{
  ASSERT_EQ(Talmesh::mostVectorRuns, 60) << "the manual says so";
  show(Talmesh::mostVectorRuns, xyPlot);
  EXPECT_EQ(pictures(Vectors::Auto), 0);
  show(Talmesh::mostVectorRuns + 1, xyPlot);
  EXPECT_EQ(pictures(Vectors::Auto), 1);
  EXPECT_EQ(pictures(Vectors::All), 0);
}

TEST_F(VectorLimits, TurnMoreHighlightedRunsIntoAPictureOfTheirOwn)
{
  ASSERT_EQ(Talmesh::mostVectorHighlights, 60) << "the manual says so";
  show(2 * Talmesh::mostVectorHighlights, xyPlot);
  select(Talmesh::mostVectorHighlights);
  EXPECT_EQ(pictures(Vectors::Auto), 1) << "of all runs";
  select(Talmesh::mostVectorHighlights + 1);
  EXPECT_EQ(pictures(Vectors::Auto), 2);
}

TEST_F(VectorLimits, LeaveNoDataAsShapesInAnyStyleWhereNoneAreWanted)
{
  for (const plotStyles style : {xyPlot, scatterPlotMatrix, xyzPlot, multiPlot, selectionCdfPlot})
  {
    show(5, style);
    EXPECT_GE(pictures(Vectors::None), 1) << style;
  }
}

TEST_F(VectorLimits, KeepAPageOfThousandsOfRunsSmall)
{
  constexpr int runs = 5000;
  for (const plotStyles style : {xyPlot, selectionCdfPlot})
  {
    show(runs, style);
    select(runs / 10);
    ASSERT_EQ(exportPlot(*widget, path(), {QSizeF(180.0, 120.0), 300}), "");
    EXPECT_LT(QFileInfo(path()).size(), 5'000'000) << style;
  }
}

TEST(VectorLimitsOfTheGallery, KeepItsPagesSmall)
{
  const QTemporaryDir folder;
  const Study study = exampleStudyOfRepressilator();
  ASSERT_EQ(writeGallery(study, folder.path(), QSize(1000, 700)), "");
  qint64 all = 0;
  for (const QFileInfo& page : QDir(folder.path()).entryInfoList({QStringLiteral("*.pdf")}))
  {
    // It has pictures of three layers of all runs.
    const bool large = page.baseName() == QStringLiteral("xyPlot-series");
    EXPECT_LT(page.size(), large ? 2'000'000 : 1'500'000) << page.baseName().toStdString();
    EXPECT_EQ(outputOf("qpdf", {"--check", page.filePath()})
                  .contains(QStringLiteral("No syntax or stream encoding errors")),
              true)
        << page.baseName().toStdString();
    all += page.size();
  }
  EXPECT_GT(all, 0);
  EXPECT_LT(all, 20'000'000);
}
