#include "app/comparison/ComparisonDock.h"
#include "app/document/SelectionController.h"
#include "app/examples/StudyCatalogue.h"
#include "app/window/PlotDock.h"
#include "external/PlotMetaData.h"

#include <vtkChartMatrix.h>
#include <vtkPlotPoints.h>
#include <vtkTable.h>

#include <QLabel>
#include <QListWidget>
#include <QTimer>
#include <QToolButton>

#include "window/StudyWindow.h"
#include "window/WrittenByWindow.h"

using namespace Talmesh::app;

namespace
{

class StudiesInWindow : public StudyWindow
{
};

} // namespace

TEST_F(StudiesInWindow, AreAllInTheMenuAndShownInContainersOfTheirOwn)
{
  QPointer<PlotContainer> before = &container();
  for (const CatalogueEntry& entry : studyCatalogue())
  {
    show(entry.id);
    EXPECT_NE(&container(), before.data()) << entry.id;
    before = &container();
    std::string name = entry.subject + ": " + entry.title;
    name.erase(std::remove(name.begin(), name.end(), '&'), name.end());
    EXPECT_EQ(window.windowTitle().toStdString(), name + " - Talmesh Plot");
    EXPECT_TRUE(find<QAction>(entry.id.c_str())->isChecked());
    EXPECT_GT(container().getTable()->GetNumberOfRows(), 0) << entry.id;
    EXPECT_TRUE(find<QWidget>("studyDock")->isVisible());
    EXPECT_FALSE(find<QLabel>("studyDescription")->text().isEmpty());
    EXPECT_FALSE(window.plotDock()->widget()->isEnabled());
    EXPECT_FALSE(window.comparisonDock()->widget()->isEnabled());
    EXPECT_FALSE(find<QWidget>("clusterStart")->isEnabled());
    EXPECT_FALSE(find<QAction>("saveSession")->isEnabled());
    for (const char* suffix : {".png", ".pdf", ".csv"})
      EXPECT_EQ(writtenBy(window, folder.filePath(QString::fromStdString(entry.id + suffix))), "")
          << entry.id << suffix;
    window.selectionController()->selectAll();
    QCoreApplication::processEvents();
    EXPECT_GT(container().getTable()->GetNumberOfRows(), 0) << entry.id;
  }
}

TEST_F(StudiesInWindow, StayInTheBackgroundWhileTheyAreComputed)
{
  find<QAction>("sensitivity-total-overTime")->trigger();
  EXPECT_TRUE(window.isLoading());
  EXPECT_EQ(window.windowTitle(), "runs.csv - Talmesh Plot");
  EXPECT_FALSE(find<QAction>("sensitivity-total-overTime")->isChecked());
  bool alive = false;
  QTimer::singleShot(0, [&alive] { alive = true; });
  ASSERT_TRUE(waitUntilLoaded());
  EXPECT_TRUE(alive);
  EXPECT_EQ(title(), "Total Sensitivity of Molecule: TetR");
}

TEST_F(StudiesInWindow, ShowTheStepsOfTheFit)
{
  show("indomethacin-fit");
  EXPECT_EQ(container().getMetaData()->getPlotStyle(), fitParameterDistribution);
  EXPECT_EQ(container().getChartMatrix()->GetSize(), vtkVector2i(4, 4));
  EXPECT_EQ(window.sizeText().toStdString(),
            std::to_string(container().getTable()->GetNumberOfRows()) + " rows, 6 columns");
}

TEST_F(StudiesInWindow, ShowTheFittedDecayOverItsObservations)
{
  show("indomethacin-course");
  ASSERT_EQ(chart().GetNumberOfPlots(), 2);
  EXPECT_EQ(container().getTable()->GetNumberOfRows(), 66);
  EXPECT_EQ(axisTitle(vtkAxis::BOTTOM), "Time [h]");
  EXPECT_FALSE(chart().GetAxis(vtkAxis::LEFT)->GetLogScale());
  chooseVariant(1);
  EXPECT_TRUE(chart().GetAxis(vtkAxis::LEFT)->GetLogScale());
  EXPECT_EQ(chart().GetNumberOfPlots(), 2);
}

TEST_F(StudiesInWindow, ShowTheResidualsInThreeWays)
{
  show("indomethacin-residuals");
  EXPECT_EQ(title(), "Residuals");
  ASSERT_EQ(chart().GetNumberOfPlots(), 6);
  for (vtkIdType i = 0; i < 6; ++i)
    EXPECT_EQ(vtkPlotPoints::SafeDownCast(chart().GetPlot(i))->GetMarkerSize(), 6.0F) << i;
  EXPECT_GT(chart().GetAxis(vtkAxis::BOTTOM)->GetMaximum(), 8.1) << "beyond the last sample";
  show("indomethacin-scaled");
  EXPECT_EQ(title(), "Scaled Residuals");
  EXPECT_EQ(axisTitle(vtkAxis::LEFT), "Residual / standard deviation");
  show("indomethacin-sideBySide");
  EXPECT_EQ(chart().GetNumberOfPlots(), 12);
}

TEST_F(StudiesInWindow, ShowRatesWithErrorBarsAndTheirCurveAlsoAfterAChange)
{
  show("puromycin-rates");
  EXPECT_EQ(chart().GetNumberOfPlots(), 2);
  const std::size_t tables = container().getDerivedTables().size();
  container().getMetaData()->setLogX(true);
  container().getMetaData()->setLogX(false);
  EXPECT_EQ(chart().GetNumberOfPlots(), 2);
  EXPECT_EQ(container().getDerivedTables().size(), tables);
  EXPECT_EQ(axisTitle(vtkAxis::BOTTOM), "Substrate concentration [ppm]");
}

TEST_F(StudiesInWindow, ShowThePriorOfEachParameter)
{
  show("priors");
  EXPECT_EQ(find<QComboBox>("studyVariant")->count(), 4);
  EXPECT_EQ(title(), "Prior density of alpha");
  chooseVariant(3);
  EXPECT_EQ(title(), "Prior density of n");
  EXPECT_EQ(axisTitle(vtkAxis::BOTTOM), "n");
  EXPECT_EQ(chart().GetNumberOfPlots(), 1);
}

TEST_F(StudiesInWindow, RefuseAnotherStyle)
{
  show("indomethacin-residuals");
  QTest::keyClick(&window, Qt::Key_3, Qt::ControlModifier);
  QCoreApplication::processEvents();
  EXPECT_EQ(chart().GetNumberOfPlots(), 6);
  EXPECT_EQ(window.plotDock()->choice().style, xyPlot);
}

TEST_F(StudiesInWindow, GiveWayToTheRunsAsTheyWereChosen)
{
  auto* y = window.plotDock()->findChild<QListWidget*>(QStringLiteral("y"));
  y->setCurrentRow(1);
  QTest::keyClick(y, Qt::Key_Space);
  EXPECT_FALSE(find<QAction>("returnToRuns")->isEnabled());
  show("priors");
  EXPECT_TRUE(find<QAction>("returnToRuns")->isEnabled());
  show("puromycin-rates");
  QTest::keyClick(&window, Qt::Key_R, Qt::ControlModifier);
  EXPECT_EQ(window.windowTitle(), "runs.csv - Talmesh Plot");
  EXPECT_EQ(window.sizeText(), "3 runs, 4 points each, 1 parameter");
  EXPECT_EQ(window.plotDock()->choice().y, (std::vector<int>{0, 1}));
  EXPECT_EQ(chart().GetNumberOfPlots(), 2);
  EXPECT_TRUE(window.plotDock()->widget()->isEnabled());
  EXPECT_FALSE(find<QWidget>("studyDock")->isVisible());
  EXPECT_FALSE(find<QAction>("puromycin-rates")->isChecked());
  EXPECT_TRUE(find<QWidget>("clusterStart")->isEnabled());
  EXPECT_TRUE(find<QAction>("saveSession")->isEnabled());
}

TEST_F(StudiesInWindow, CanBeGivenUp)
{
  show("priors");
  find<QAction>("exampleCircuit")->trigger();
  EXPECT_TRUE(window.isLoading());
  QTest::mouseClick(find<QToolButton>("cancelLoading"), Qt::LeftButton);
  EXPECT_FALSE(window.isLoading());
  EXPECT_TRUE(find<QAction>("priors")->isChecked());
  EXPECT_EQ(title(), "Prior density of alpha");
}
