#include "app/ComparisonDock.h"
#include "app/MainWindow.h"
#include "app/PlotDock.h"
#include "app/SelectionController.h"
#include "app/StudyCatalogue.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkAxis.h>
#include <vtkChartMatrix.h>
#include <vtkChartXY.h>
#include <vtkPlotBar.h>
#include <vtkPlotPoints.h>
#include <vtkPlotStacked.h>
#include <vtkStringArray.h>
#include <vtkTable.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <algorithm>

#include "SampleStudies.h"

namespace
{

using namespace Talmesh::app;

constexpr int patience = 500000;

/// The window with three runs, from which computed studies are chosen.
class StudiesInWindow : public ::testing::Test
{
protected:
  StudiesInWindow()
  {
    QFile file(folder.filePath("runs.csv"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    const std::string text = sampleRuns();
    file.write(text.data(), static_cast<qint64>(text.size()));
    file.close();
    window.resize(1000, 700);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    QApplication::setActiveWindow(&window);
    window.openFile(file.fileName());
    EXPECT_TRUE(waitUntilLoaded());
    QTest::keyClick(&window, Qt::Key_0, Qt::ControlModifier);
  }

  bool waitUntilLoaded()
  {
    return QTest::qWaitFor([this] { return !window.isLoading(); }, patience);
  }

  template <typename Widget>
  Widget* find(const char* name)
  {
    auto* widget = window.findChild<Widget*>(QLatin1String(name));
    EXPECT_NE(widget, nullptr) << name;
    return widget;
  }

  void show(const std::string& id)
  {
    find<QAction>(id.c_str())->trigger();
    ASSERT_TRUE(waitUntilLoaded());
  }

  void chooseVariant(int steps)
  {
    auto* variants = find<QComboBox>("studyVariant");
    for (int i = 0; i < steps; ++i)
      QTest::keyClick(variants, Qt::Key_Down);
  }

  PlotContainer& container() { return *window.plotWidget()->plotContainer(); }
  vtkChartXY& chart() { return *container().getChartXY(); }
  std::string title() { return chart().GetTitle(); }
  std::string axisTitle(int axis) { return chart().GetAxis(axis)->GetTitle(); }

  int seriesOf(vtkPlot* plot)
  {
    vtkStringArray* labels = plot ? plot->GetLabels() : nullptr;
    return labels ? static_cast<int>(labels->GetNumberOfValues()) : 0;
  }

  QTemporaryDir folder;
  MainWindow window;
};

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
      EXPECT_TRUE(window.exportTo(folder.filePath(QString::fromStdString(entry.id + suffix))))
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

TEST_F(StudiesInWindow, ShowSensitivitiesOfEverySpeciesAndTime)
{
  show("sensitivity-first-overTime");
  ASSERT_EQ(find<QComboBox>("studyVariant")->count(), 6);
  EXPECT_EQ(title(), "Sensitivity of Molecule: TetR");
  chooseVariant(2);
  EXPECT_EQ(title(), "Sensitivity of Molecule: cI");
  show("sensitivity-total-atTime");
  auto* times = find<QComboBox>("studyVariant");
  EXPECT_EQ(times->count(), 36);
  EXPECT_EQ(times->currentText(), "2 h");
  EXPECT_EQ(title(), "Total Sensitivities at t= 7200 s");
  QTest::keyClick(times, Qt::Key_Home);
  EXPECT_EQ(title(), "Total Sensitivities at t= 900 s");
}

TEST_F(StudiesInWindow, KeepTheBandsOfSensitivitiesThroughChangesOfSettings)
{
  show("sensitivity-total-overTime");
  chooseVariant(1);
  PlotMetaData& settings = *container().getMetaData();
  const auto expectBands = [this](const std::string& expectedTitle)
  {
    ASSERT_EQ(chart().GetNumberOfPlots(), 1);
    auto* bands = vtkPlotStacked::SafeDownCast(chart().GetPlot(0));
    ASSERT_NE(bands, nullptr);
    EXPECT_EQ(seriesOf(bands), 4);
    EXPECT_EQ(title(), expectedTitle);
    EXPECT_EQ(axisTitle(vtkAxis::LEFT), "Total Sensitivity");
    EXPECT_EQ(axisTitle(vtkAxis::BOTTOM), "Time [s]");
    EXPECT_TRUE(chart().GetShowLegend());
    EXPECT_EQ(container().getItem(), &chart());
    EXPECT_NE(chart().GetScene(), nullptr) << "the window shows the chart that is drawn last";
  };
  expectBands("Total Sensitivity of Molecule: LacI");
  container().setLineWidth(3.0);
  expectBands("Total Sensitivity of Molecule: LacI");
  settings.setPlotLine(true);
  expectBands("Total Sensitivity of Molecule: LacI");
  container().setPlotTitle("Mine");
  settings.setLogX(true);
  expectBands("Mine");
  container().setLineWidth(1.0);
  expectBands("Mine");
  chooseVariant(1);
  expectBands("Total Sensitivity of Molecule: cI");
}

TEST_F(StudiesInWindow, KeepTheBarsOfSensitivitiesThroughChangesOfSettings)
{
  show("sensitivity-first-atTime");
  container().setLineWidth(3.0);
  container().getMetaData()->setPlotLine(true);
  auto* bars = vtkPlotBar::SafeDownCast(chart().GetPlot(0));
  ASSERT_NE(bars, nullptr);
  EXPECT_EQ(seriesOf(bars), 4);
  EXPECT_EQ(title(), "Sensitivities at t= 7200 s");
  vtkStringArray* names = chart().GetAxis(vtkAxis::BOTTOM)->GetTickLabels();
  ASSERT_EQ(names->GetNumberOfValues(), 6);
  EXPECT_EQ(names->GetValue(0), "Molecule: TetR");
  EXPECT_EQ(names->GetValue(5), "Pattern: cI mRNA");
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

} // namespace
