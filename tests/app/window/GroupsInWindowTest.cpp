#include "window/GroupsInWindow.h"

#include "app/document/GroupedPlots.h"
#include "vtk/PointCloud.h"
#include "vtk/vtkPlotLineSet.h"

#include <vtkPen.h>
#include <vtkPlotLine.h>
#include <vtkTable.h>
#include <vtkVariant.h>

#include <QComboBox>
#include <QLabel>

#include <cmath>

#include "SampleStudies.h"

namespace
{

using namespace Talmesh::app;
using Runs = std::set<int>;

QColor colourOf(vtkPlot* plot)
{
  unsigned char rgb[3];
  plot->GetPen()->GetColor(rgb);
  return {rgb[0], rgb[1], rgb[2]};
}

TEST_F(GroupsInWindow, AreListedWithTheirColoursAndCounts)
{
  group(2);
  auto* list = find<QListWidget>("clusterList");
  ASSERT_EQ(list->count(), 2);
  EXPECT_EQ(list->item(0)->text(), "Group 1: 3 runs");
  EXPECT_EQ(list->item(1)->text(), "Group 2: 3 runs");
  for (int i = 0; i < 2; ++i)
  {
    const QImage swatch = list->item(i)->icon().pixmap(8, 8).toImage();
    EXPECT_EQ(swatch.pixelColor(4, 4).rgb(), groupColour(i).rgb());
  }
}

TEST_F(GroupsInWindow, AreFormedWithoutAWordOnStandardOutput)
{
  CapturedOutput output(std::cout);
  container().clusterTimeSeries(2, 0);
  EXPECT_EQ(output.text(), "");
}

TEST_F(GroupsInWindow, ColourTheRunsBehindTheirHighlight)
{
  group(2);
  const auto lines = plots<vtkPlotLineSet>();
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_TRUE(lines[0]->GetOnlyShowSelected()) << "the runs of one colour";
  for (int i = 0; i < 2; ++i)
  {
    vtkPlotLineSet* members = lines[static_cast<std::size_t>(i) + 1];
    EXPECT_EQ(colourOf(members).rgb(), groupColour(i).rgb());
    EXPECT_EQ(members->GetInput()->GetNumberOfRows(), 3 * pointsPerRun);
    EXPECT_EQ(members->GetStride(), pointsPerRun);
    EXPECT_TRUE(members->GetBreakAtGaps());
    EXPECT_FALSE(members->GetSelectable());
    EXPECT_LT(chart().GetPlotIndex(members), chart().GetPlotIndex(lines[0]));
  }
  // The first run of the second group is the second run, which falls from 16 to 2.
  EXPECT_EQ(lines[2]->GetInput()->GetValue(0, 1).ToDouble(), 16.0);
  EXPECT_EQ(lines[2]->GetLabel(), "Group 2: 3 runs");
  tick("groupColours");
  EXPECT_EQ(chart().GetNumberOfPlots(), 1);
  EXPECT_FALSE(plots<vtkPlotLineSet>()[0]->GetOnlyShowSelected());
}

TEST_F(GroupsInWindow, OfPointsAreCloudsThatBecomePictures)
{
  Talmesh::app::PlotChoice choice = window.plotDock()->choice();
  choice.lines = false;
  choose(choice);
  group(2);
  const auto clouds = plots<vtkPlotPoints>();
  ASSERT_EQ(clouds.size(), 3U);
  for (vtkPlotPoints* cloud : clouds)
    EXPECT_NE(dynamic_cast<Talmesh::PointCloud*>(cloud), nullptr);
}

TEST_F(GroupsInWindow, KeepTheirColoursWhenTheChartIsDrawnAnew)
{
  group(2);
  PlotChoice choice = window.plotDock()->choice();
  choice.y = {1};
  choose(choice);
  ASSERT_EQ(plots<vtkPlotLineSet>().size(), 3U);
  EXPECT_EQ(plots<vtkPlotLineSet>()[1]->GetInput()->GetValue(0, 1).ToDouble(), value(1, 0));
  choice.lines = false;
  choose(choice);
  ASSERT_EQ(chart().GetNumberOfPlots(), 3) << "points have groups too";
  EXPECT_EQ(colourOf(chart().GetPlot(2)).rgb(), groupColour(1).rgb());
  choice.style = multiPlot;
  choose(choice);
  EXPECT_EQ(window.plotDock()->choice().style, multiPlot);
}

TEST_F(GroupsInWindow, AreShownInTheXYPlotWhateverWasShownBefore)
{
  chooseStyle(selectionCdfPlot);
  group(2);
  EXPECT_EQ(window.plotDock()->choice().style, xyPlot);
  EXPECT_EQ(plots<vtkPlotLineSet>().size(), 3U);
  chooseStyle(multiPlot);
  tick("groupColours");
  EXPECT_EQ(window.plotDock()->choice().style, multiPlot) << "nothing is left to show";
  tick("runBands");
  EXPECT_EQ(window.plotDock()->choice().style, xyPlot);
}

TEST_F(GroupsInWindow, BecomeTheSelectionAndThatIsUndone)
{
  group(2);
  clickGroup(1);
  EXPECT_EQ(runs(), (Runs{20, 40, 60})) << "runs by their numbers in the table";
  EXPECT_EQ(window.selectionText(), "3 of 6 runs selected");
  clickGroup(0);
  EXPECT_EQ(runs(), (Runs{10, 30, 50}));
  press(QKeySequence::Undo);
  EXPECT_EQ(runs(), (Runs{20, 40, 60}));
  press(QKeySequence::Undo);
  EXPECT_EQ(runs(), Runs{});
  auto* list = find<QListWidget>("clusterList");
  list->setCurrentRow(0);
  QTest::keyClick(list, Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_EQ(runs(), (Runs{10, 30, 50})) << "from the keyboard";
  EXPECT_EQ(plots<vtkPlotLineSet>().size(), 3U) << "with the colours still there";
}

TEST_F(GroupsInWindow, HaveMeans)
{
  group(2);
  tick("groupMeans");
  const auto means = plots<vtkPlotLine>();
  ASSERT_EQ(means.size(), 2U);
  // The rising runs are 1, 3 and 5 times 1, 2, ... 8.
  for (vtkIdType point = 0; point < pointsPerRun; ++point)
    EXPECT_DOUBLE_EQ(means[0]->GetInput()->GetValue(point, 1).ToDouble(),
                     3.0 * (static_cast<double>(point) + 1.0));
  EXPECT_FALSE(means[0]->GetSelectable());
}

TEST_F(GroupsInWindow, CanBeMadeByTheMagnitudesOfTheSpectrum)
{
  // Waves of one and of three periods, shifted in time, which magnitudes do not see.
  const int shifts[] = {0, 0, 8, 5, 4, 11};
  std::ostringstream text;
  text << "run,time,X\n";
  for (int run = 0; run < 6; ++run)
    for (int point = 0; point < 16; ++point)
      text << run << ',' << point << ','
           << std::cos((run % 2 == 0 ? 1 : 3) * (point + shifts[run]) * std::acos(-1.0) / 8.0)
           << '\n';
  open("waves.csv", text.str());
  auto* modes = find<QComboBox>("clusterMode");
  ASSERT_EQ(modes->count(), 3);
  QTest::keyClick(modes, Qt::Key_End);
  group(2);
  EXPECT_EQ(find<QListWidget>("clusterList")->item(0)->text(), "Group 1: 3 runs");
  clickGroup(1);
  EXPECT_EQ(runs(), (Runs{1, 3, 5}));
}

TEST_F(GroupsInWindow, AreAtMostAsManyAsTheRuns)
{
  EXPECT_EQ(find<QSpinBox>("clusterCount")->maximum(), 6);
  group(1);
  EXPECT_EQ(find<QListWidget>("clusterList")->count(), 1);
}

TEST_F(GroupsInWindow, AreForgottenWithTheirStudy)
{
  group(2);
  tick("runBands");
  open("other.csv", sampleRuns());
  chooseStyle(xyPlot);
  EXPECT_EQ(find<QListWidget>("clusterList")->count(), 0);
  EXPECT_FALSE(find<QCheckBox>("groupColours")->isEnabled());
  EXPECT_FALSE(find<QCheckBox>("runBands")->isChecked());
  EXPECT_EQ(chart().GetNumberOfPlots(), 1);
}

TEST_F(GroupsInWindow, NeedRunsAndSayWhyThereAreNone)
{
  EXPECT_FALSE(find<QLabel>("clusterReason")->isVisibleTo(&window));
  open("plain.csv", "a,b\n1,2\n3,4\n");
  EXPECT_EQ(find<QLabel>("clusterReason")->text(), "This data has no runs over time to group.");
  EXPECT_FALSE(find<QLabel>("clusterReason")->isHidden());
  for (const char* name : {"clusterCount", "clusterMode", "clusterStart", "clusterList",
                           "groupColours", "groupMeans", "runBands", "normaliseRuns"})
    EXPECT_FALSE(find<QWidget>(name)->isEnabled()) << name;
}

TEST_F(GroupsInWindow, ExplainEveryControl)
{
  for (const char* name : {"clusterCount", "clusterMode", "clusterStart", "clusterList",
                           "groupColours", "groupMeans", "runBands", "normaliseRuns"})
    EXPECT_FALSE(find<QWidget>(name)->toolTip().isEmpty()) << name;
}

} // namespace
