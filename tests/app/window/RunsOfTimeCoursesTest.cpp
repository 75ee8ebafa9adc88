#include "app/window/TimeCoursePage.h"
#include "widgets/PlotSelector.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkChartXY.h>
#include <vtkPlot.h>

#include <QComboBox>
#include <QLabel>
#include <QSpinBox>

#include "SampleStudies.h"
#include "window/WorkInWindow.h"

using namespace Talmesh::app;

namespace
{

/// The page of time courses of six runs, 10 to 60.
class RunsOfTimeCourses : public WorkInWindow
{
protected:
  RunsOfTimeCourses()
  {
    window.pages()->setCurrentIndex(1);
    QTest::qWait(20);
  }

  QWidget& page() { return *window.findChild<QWidget*>("timeCourses"); }
  PlotSelector& selector() { return *page().findChild<PlotSelector*>(); }

  /// Shows what the entry of the box says, so far down.
  void show(int entry)
  {
    auto* box = find<QComboBox>("shownRuns");
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Home);
    for (int i = 0; i < entry; ++i)
      QTest::keyClick(box, Qt::Key_Down);
    QTest::qWait(20);
  }

  QStringList lines()
  {
    vtkChartXY* chart = page().findChild<VtkPlotWidget*>()->plotContainer()->getChartXY();
    QStringList found;
    for (vtkIdType i = 0; chart && i < chart->GetNumberOfPlots(); ++i)
      found.append(QString::fromStdString(chart->GetPlot(i)->GetLabel()).remove("Molecule: "));
    found.sort();
    return found;
  }

  void clickItem(const QString& name)
  {
    const auto found = selector().findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_EQ(found.size(), 1) << name.toStdString();
    selector().scrollToItem(found.front());
    QTest::mouseClick(selector().viewport(), Qt::LeftButton, Qt::NoModifier,
                      selector().visualItemRect(found.front()).center());
  }
};

} // namespace

TEST_F(RunsOfTimeCourses, AreThoseThatAreSelected)
{
  select({20, 50});
  show(2);
  EXPECT_EQ(lines(), (QStringList{"X, run 20", "X, run 50"}));
  select({30});
  EXPECT_EQ(lines(), QStringList{"X"});
  EXPECT_FALSE(find<QSpinBox>("run")->isEnabled());
  select({10, 30, 40});
  EXPECT_EQ(lines(), (QStringList{"X, run 10", "X, run 30", "X, run 40"}));
}

TEST_F(RunsOfTimeCourses, SayWhenNoneIsSelectedAndKeepTheItem)
{
  clickItem("Y");
  show(2);
  EXPECT_EQ(find<QLabel>("shownRunsNote")->text(), "No run is selected.");
  EXPECT_EQ(lines(), QStringList{});
  select({20, 50});
  EXPECT_EQ(lines(), (QStringList{"Y, run 20", "Y, run 50"}));
  EXPECT_EQ(find<QLabel>("shownRunsNote")->text(), "");
}

TEST_F(RunsOfTimeCourses, KeepTheItemThatIsClicked)
{
  select({20, 50});
  show(2);
  clickItem("Y, run 50");
  EXPECT_EQ(lines(), QStringList{"Y, run 50"});
  show(0);
  EXPECT_EQ(lines(), QStringList{"Y"});
}

TEST_F(RunsOfTimeCourses, AreTheNearestOnes)
{
  show(1);
  EXPECT_EQ(lines().size(), 6) << "there are no more";
  std::ostringstream text;
  text << "run,time,X\n";
  for (int run = 0; run < 20; ++run)
    for (int point = 0; point < 3; ++point)
      text << run << ',' << point << ',' << (run * 7) % 20 * (point + 1) << '\n';
  open("twenty.csv", text.str());
  show(1);
  // The runs with 0 * 7, 3 * 7, 6 * 7, 9 * 7, 12 * 7 and 15 * 7 modulo 20: 0, 1, 2, 3, 4 and 5.
  EXPECT_EQ(lines(), (QStringList{"X, run 0", "X, run 12", "X, run 15", "X, run 3", "X, run 6",
                                  "X, run 9"}));
}

TEST_F(RunsOfTimeCourses, AreNoMoreThanCanBeToldApart)
{
  open("many.csv", sampleRuns(40));
  std::set<int> all;
  for (int run = 0; run < 40; ++run)
    all.insert(run);
  select(all);
  show(2);
  EXPECT_EQ(lines().size(), 12);
  EXPECT_EQ(find<QLabel>("shownRunsNote")->text(), "The first 12 of 40 selected runs");
}
