#include "app/window/TimeCoursePage.h"

#include "app/window/MainWindow.h"
#include "plot/PlotContainer.h"
#include "widgets/LinePlotWidget.h"
#include "widgets/PlotSelector.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkChartXY.h>
#include <vtkPlot.h>
#include <vtkTable.h>
#include <vtkVariant.h>

#include <gtest/gtest.h>

#include <QSpinBox>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <algorithm>

#include "SampleStudies.h"

using namespace Talmesh::app;

namespace
{

constexpr int patience = 60000;

class TimeCourses : public ::testing::Test
{
protected:
  void show(const Study& study)
  {
    page.setStudy(study);
    page.resize(900, 600);
    page.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&page));
  }

  PlotSelector& selector() { return *page.findChild<PlotSelector*>(); }
  VtkPlotWidget& plotter() { return *page.findChild<VtkPlotWidget*>(); }
  vtkChartXY& chart() { return *plotter().plotContainer()->getChartXY(); }

  void click(const char* name, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    const auto found =
        selector().findItems(QString::fromUtf8(name), Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_EQ(found.size(), 1);
    selector().scrollToItem(found.front());
    QTest::mouseClick(selector().viewport(), Qt::LeftButton, modifiers,
                      selector().visualItemRect(found.front()).center());
  }

  double shownValue(const char* column, vtkIdType row)
  {
    return plotter().plotContainer()->getTable()->GetValueByName(row, column).ToDouble();
  }

  TimeCoursePage page;
};

QImage pictureOf(VtkPlotWidget& widget)
{
  return widget.grab().toImage();
}

} // namespace

TEST_F(TimeCourses, AreBuiltWhenTheyAreShown)
{
  page.setStudy(sampleStudy());
  EXPECT_EQ(page.findChild<LinePlotWidget*>(), nullptr);
  show(sampleStudy());
  EXPECT_NE(page.findChild<LinePlotWidget*>(), nullptr);
}

TEST_F(TimeCourses, ShowOneItemOfTheFirstRunAtFirst)
{
  show(sampleStudy());
  ASSERT_EQ(selector().selectedItems().size(), 1);
  EXPECT_EQ(selector().selectedItems().front()->text(0), "X");
  EXPECT_EQ(chart().GetNumberOfPlots(), 1);
  EXPECT_EQ(plotter().plotContainer()->getTable()->GetNumberOfRows(), 4);
}

TEST_F(TimeCourses, ShowWhatIsClickedAtOnce)
{
  show(sampleStudy());
  const QImage before = pictureOf(plotter());
  click("Y", Qt::ControlModifier);
  EXPECT_EQ(chart().GetNumberOfPlots(), 2);
  EXPECT_NE(pictureOf(plotter()), before);
}

TEST_F(TimeCourses, FollowTheRunAndKeepTheItems)
{
  const Study study = sampleStudy();
  show(study);
  click("Y");
  auto* run = page.findChild<QSpinBox*>("run");
  EXPECT_EQ(run->maximum(), 2);
  run->setFocus();
  QTest::keyClick(run, Qt::Key_Up);
  EXPECT_EQ(run->value(), 1);
  ASSERT_EQ(selector().selectedItems().size(), 1);
  EXPECT_EQ(selector().selectedItems().front()->text(0), "Y");
  // Y is the second item; the second run starts at its fifth value.
  vtkTable* table = plotter().plotContainer()->getTable();
  ASSERT_NE(table->GetColumnByName("Molecule: Y"), nullptr);
  EXPECT_FLOAT_EQ(table->GetValueByName(0, "Molecule: Y").ToFloat(),
                  static_cast<float>(study.runs->values[1][4]));
}

TEST_F(TimeCourses, ShowTheNumbersThatTheTableGivesItsRuns)
{
  const Study study = sampleStudy("run,time,X\n7,0,1\n7,1,2\n12,0,3\n12,1,4\n30,0,5\n30,1,6\n");
  show(study);
  auto* run = page.findChild<QSpinBox*>("run");
  EXPECT_EQ(run->text(), "7");
  QTest::keyClick(run, Qt::Key_Up);
  EXPECT_EQ(run->text(), "12");
  run->selectAll();
  QTest::keyClicks(run, "30");
  EXPECT_EQ(run->value(), 2);
  EXPECT_EQ(shownValue("Molecule: X", 0), 5.0);
  run->selectAll();
  QTest::keyClicks(run, "8");
  EXPECT_EQ(run->value(), 2) << "there is no such run";
  QTest::keyClick(run, Qt::Key_Return);
  EXPECT_EQ(run->text(), "30");
  page.setStudy(sampleStudy());
  EXPECT_EQ(run->text(), "0");
  EXPECT_EQ(run->maximum(), 2);
}

TEST_F(TimeCourses, CountTheirRunsWhenTheirNumbersCannotTellThemApart)
{
  const Study study = sampleStudy();
  std::fill_n(study.runs->values[3], 12, 5.0);
  ASSERT_EQ(study.runs->items[3].second, "Run Index");
  show(study);
  auto* run = page.findChild<QSpinBox*>("run");
  QTest::keyClick(run, Qt::Key_Up);
  QTest::keyClick(run, Qt::Key_Up);
  EXPECT_EQ(run->value(), 2);
  EXPECT_EQ(run->text(), "2");
}

TEST_F(TimeCourses, ShowValuesThatHaveChanged)
{
  const Study study = sampleStudy();
  show(study);
  click("Y");
  auto* run = page.findChild<QSpinBox*>("run");
  QTest::keyClick(run, Qt::Key_Up);
  study.runs->values[1][4] = 17.0;
  page.refresh();
  EXPECT_EQ(shownValue("Molecule: Y", 0), 17.0);
  EXPECT_EQ(run->value(), 1);
  EXPECT_EQ(selector().selectedItems().front()->text(0), "Y");
  page.hide();
  study.runs->values[1][4] = 19.0;
  page.refresh();
  EXPECT_EQ(shownValue("Molecule: Y", 0), 17.0) << "not before anybody looks";
  page.show();
  EXPECT_EQ(shownValue("Molecule: Y", 0), 19.0);
  EXPECT_EQ(run->value(), 1);
}

TEST_F(TimeCourses, RunOverTheTimeThatOtherChartsRunOver)
{
  const Study study = sampleStudy(
      ": Run Index,: Dose,: Time [s],Molecule: A\n0,5,0,1\n0,5,1,2\n1,6,0,3\n1,6,1,4\n");
  show(study);
  EXPECT_STREQ(plotter().plotContainer()->getTable()->GetColumnName(0), "Time [s]");
  page.setStudy(sampleStudy(": Run Index,: Hour,Molecule: A\n0,0,1\n0,1,2\n1,0,3\n1,1,4\n"));
  EXPECT_STREQ(plotter().plotContainer()->getTable()->GetColumnName(0), "Hour")
      << "the number of a run is no time";
}

TEST_F(TimeCourses, SayThatAPlainTableHasNone)
{
  show(sampleStudy());
  page.setStudy(sampleStudy("a,b\n1,2\n3,4\n"));
  EXPECT_EQ(page.findChild<QStackedWidget*>()->currentWidget()->objectName(), "page_no_data");
  EXPECT_FALSE(page.findChild<QSpinBox*>("run")->isEnabled());
}

TEST_F(TimeCourses, StandBesideTheRunsInTheWindow)
{
  MainWindow window;
  window.resize(900, 600);
  window.show();
  window.openExample();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !window.isLoading(); }, patience));
  auto* inWindow = window.findChild<TimeCoursePage*>();
  ASSERT_NE(inWindow, nullptr);
  EXPECT_EQ(inWindow->findChild<LinePlotWidget*>(), nullptr);
  QTabBar* bar = window.pages()->tabBar();
  EXPECT_EQ(bar->tabText(0), "Runs");
  EXPECT_EQ(bar->tabText(1), "Time courses");
  QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(1).center());
  EXPECT_EQ(window.pages()->currentWidget(), inWindow);
  auto* list = inWindow->findChild<PlotSelector*>();
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(list->selectedItems().size(), 1);
  EXPECT_EQ(inWindow->findChild<VtkPlotWidget*>()->plotContainer()->getTable()->GetNumberOfRows(),
            200);
}
