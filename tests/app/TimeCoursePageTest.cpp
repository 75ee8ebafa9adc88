#include "app/TimeCoursePage.h"

#include "app/MainWindow.h"
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
