#include "app/document/PlotChoice.h"

#include "app/document/ShownStudy.h"
#include "app/import/ColumnRoles.h"
#include "app/styles/ViewerStyles.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/PlotScene.h"
#include "vtk/vtkPlotLineSet.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "SampleStudies.h"

using namespace Talmesh::app;

namespace
{

/// Columns: 0 X, 1 Y, 2 time, 3 Run Index, 4 k.
class PlotChoiceOfRuns : public ::testing::Test
{
protected:
  PlotChoiceOfRuns()
      : container(nullptr)
  {
    container.setScene(view.scene());
    showStudy(sampleStudy(), container);
    view.render(container);
    choice = choiceOf(container);
  }

  std::string labelOf(vtkIdType plot) { return container.getChartXY()->GetPlot(plot)->GetLabel(); }

  PlotScene view;
  PlotContainer container;
  PlotChoice choice;
};

} // namespace

TEST_F(PlotChoiceOfRuns, ReadsBackWhatItApplied)
{
  choice.x = 3;
  choice.y = {1, 4};
  choice.z = 0;
  choice.lines = false;
  choice.legend = true;
  choice.logX = true;
  choice.logY = true;
  EXPECT_EQ(applyChoice(container, choice), "");
  const PlotChoice read = choiceOf(container);
  EXPECT_EQ(read.style, xyPlot);
  EXPECT_EQ(read.x, 3);
  EXPECT_EQ(read.y, (std::vector<int>{1, 4}));
  EXPECT_EQ(read.z, 0);
  EXPECT_FALSE(read.lines);
  EXPECT_TRUE(read.legend);
  EXPECT_TRUE(read.logX);
  EXPECT_TRUE(read.logY);
}

TEST_F(PlotChoiceOfRuns, DrawsOnceAndLeavesTheSettingsListening)
{
  int announced = 0;
  QObject::connect(container.getMetaData(), &PlotMetaData::redrawNeeded, [&] { ++announced; });
  choice.lines = false;
  choice.logX = true;
  applyChoice(container, choice);
  EXPECT_EQ(announced, 0);
  EXPECT_FALSE(container.getMetaData()->signalsBlocked());
}

TEST_F(PlotChoiceOfRuns, LabelsTheAxesWithoutTheKind)
{
  choice.x = 4;
  choice.y = {0, 1};
  applyChoice(container, choice);
  EXPECT_EQ(container.getChartXY()->GetAxis(vtkAxis::BOTTOM)->GetTitle(), "k");
  EXPECT_EQ(container.getChartXY()->GetAxis(vtkAxis::LEFT)->GetTitle(), "X, Y");
}

TEST_F(PlotChoiceOfRuns, DrawsEveryYColumnAsLines)
{
  choice.y = {0, 1};
  applyChoice(container, choice);
  ASSERT_EQ(container.getChartXY()->GetNumberOfPlots(), 2);
  auto* second = vtkPlotLineSet::SafeDownCast(container.getChartXY()->GetPlot(1));
  ASSERT_TRUE(second);
  EXPECT_EQ(second->GetStride(), 4);
  EXPECT_EQ(second->GetOnlyShowSelected(), 0);
  EXPECT_EQ(labelOf(0), "X");
  EXPECT_EQ(labelOf(1), "Y");
}

TEST_F(PlotChoiceOfRuns, BreaksTheLinesOfEveryYColumnAtGaps)
{
  choice.y = {0, 1};
  applyChoice(container, choice);
  ASSERT_EQ(container.getChartXY()->GetNumberOfPlots(), 2);
  for (int plot = 0; plot < 2; ++plot)
    EXPECT_TRUE(
        vtkPlotLineSet::SafeDownCast(container.getChartXY()->GetPlot(plot))->GetBreakAtGaps());
}

TEST_F(PlotChoiceOfRuns, GivesEverySeriesAColourOfItsOwn)
{
  choice.y = {0, 1, 2};
  choice.lines = false;
  applyChoice(container, choice);
  ASSERT_EQ(container.getChartXY()->GetNumberOfPlots(), 3);
  unsigned char first[3];
  unsigned char second[3];
  container.getChartXY()->GetPlot(0)->GetColor(first);
  container.getChartXY()->GetPlot(1)->GetColor(second);
  EXPECT_FALSE(first[0] == second[0] && first[1] == second[1] && first[2] == second[2]);
}

TEST_F(PlotChoiceOfRuns, LeavesASeriesOfAMissingColumnEmpty)
{
  choice.y = {0, 99, -1};
  EXPECT_EQ(applyChoice(container, choice), "");
  EXPECT_EQ(container.getChartXY()->GetNumberOfPlots(), 3);
  view.render(container);
}

TEST_F(PlotChoiceOfRuns, SwitchesThroughAllStylesTwice)
{
  for (int round = 0; round < 2; ++round)
    for (const ViewerStyle& style : viewerStyles())
    {
      choice.style = style.style;
      EXPECT_EQ(applyChoice(container, choice), "") << style.name;
      view.render(container);
      EXPECT_EQ(choiceOf(container).style, style.style);
    }
  choice.style = xyPlot;
  applyChoice(container, choice);
  view.render(container);
  EXPECT_GT(view.paintedPixels(), 500);
}

TEST_F(PlotChoiceOfRuns, FindsColumnsByWholeNameAndWithoutTheKind)
{
  EXPECT_EQ(findColumn(container, "Molecule: Y").value(), 1);
  EXPECT_EQ(findColumn(container, "Y").value(), 1);
  EXPECT_EQ(findColumn(container, "Run Index").value(), 3);
  EXPECT_EQ(findColumn(container, "k").value(), 4);
}

TEST_F(PlotChoiceOfRuns, NamesTheColumnsWhenOneIsNotThere)
{
  const Result<int> found = findColumn(container, "Z");
  EXPECT_FALSE(found.hasValue());
  EXPECT_EQ(found.error(), "no such column: Z; the columns are X, Y, time, Run Index, k");
}

TEST(PlotChoice, RefusesANameThatTwoColumnsHave)
{
  PlotScene view;
  PlotContainer container(nullptr);
  container.setScene(view.scene());
  showStudy(sampleStudy("Molecule: A,Pattern: A,: Time [s]\n1,2,0\n3,4,1\n"), container);
  EXPECT_EQ(findColumn(container, "A").error(),
            "more than one column is named A: Molecule: A and Pattern: A");
  EXPECT_EQ(findColumn(container, "Pattern: A").value(), 1);
}

TEST_F(PlotChoiceOfRuns, TakesWhatTheCommandLineNames)
{
  OpeningWishes options;
  options.style = scatterPlotMatrix;
  options.x = "k";
  options.y = {"Y", "X"};
  options.z = "time";
  EXPECT_EQ(chooseByName(container, options, choice), "");
  EXPECT_EQ(choice.style, scatterPlotMatrix);
  EXPECT_EQ(choice.x, 4);
  EXPECT_EQ(choice.y, (std::vector<int>{1, 0}));
  EXPECT_EQ(choice.z, 2);
}

TEST(PlotChoice, JoinsNamesWithCommasThatTheCommandLineParted)
{
  PlotScene view;
  PlotContainer container(nullptr);
  container.setScene(view.scene());
  showStudy(sampleStudy("time,\"glucose, total\",glucose,\" total\"\n0,1,2,3\n1,4,5,7\n"),
            container);
  const auto chosen = [&container](const std::vector<std::string>& names)
  {
    OpeningWishes options;
    options.y = names;
    PlotChoice choice = choiceOf(container);
    EXPECT_EQ(chooseByName(container, options, choice), "");
    std::vector<std::string> found;
    for (const int column : choice.y)
      found.push_back(shownName(container.getLabels().value(column).toStdString()));
    return found;
  };
  using Names = std::vector<std::string>;
  EXPECT_EQ(chosen({"glucose", " total"}), Names{"glucose, total"});
  EXPECT_EQ(chosen({"time", "glucose", " total", "glucose"}),
            (Names{"time", "glucose, total", "glucose"}));
  EXPECT_EQ(chosen({"glucose", "time"}), (Names{"glucose", "time"}));
}

TEST_F(PlotChoiceOfRuns, KeepsWhatTheCommandLineDoesNotName)
{
  const PlotChoice before = choice;
  EXPECT_EQ(chooseByName(container, OpeningWishes(), choice), "");
  EXPECT_EQ(choice.x, before.x);
  EXPECT_EQ(choice.y, before.y);
  EXPECT_EQ(choice.style, before.style);
}

TEST_F(PlotChoiceOfRuns, ReportsTheFirstNameThatIsNotThere)
{
  OpeningWishes options;
  options.x = "nowhere";
  options.y = {"neither"};
  EXPECT_EQ(chooseByName(container, options, choice),
            "no such column: nowhere; the columns are X, Y, time, Run Index, k");
}

TEST(PlotChoice, ShowsNamesWithoutTheirKind)
{
  EXPECT_EQ(shownName("Parameter: k1"), "k1");
  EXPECT_EQ(shownName(": Time [s]"), "Time [s]");
  EXPECT_EQ(shownName("plain"), "plain");
  EXPECT_EQ(shownName(""), "");
}
