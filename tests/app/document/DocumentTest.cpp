#include <vtkChartMatrix.h>
#include <vtkStringArray.h>

#include "document/DocumentScene.h"

using namespace Talmesh::app;

namespace
{

const std::string threeColumns = "a,b,c\n1,2,3\n4,5,7\n2,8,4\n";

class DocumentOfRuns : public DocumentScene
{
protected:
  /// A chart that writes its variant as its title.
  static OpenedStudy ownChart()
  {
    OwnChart chart;
    chart.id = "own";
    chart.variants = {"first", "second"};
    chart.firstVariant = 1;
    chart.steps = [](int variant)
    {
      return ChartSteps{[](PlotContainer& container) {
                          container.addColumn({1.0, 2.0}, "own values");
                        },
                        [variant](PlotContainer& container)
                        {
                          container.setPlotTitle("variant " + std::to_string(variant));
                          container.getChartXY()->AddPlot(vtkChart::BAR);
                        }};
    };
    OpenedStudy opened;
    opened.study.name = "Own: chart";
    opened.study.chart = std::make_shared<const OwnChart>(chart);
    return opened;
  }
};

} // namespace

TEST_F(DocumentOfRuns, ShowsNothingAtFirst)
{
  EXPECT_EQ(document.container(), nullptr);
  EXPECT_EQ(document.size(), "");
  EXPECT_FALSE(document.canBeSaved());
  EXPECT_FALSE(document.canReturnToRuns());
  EXPECT_FALSE(document.sessionSource());
  document.draw();
  document.compareBy({});
  document.choose({});
  document.setLook({true, true, true});
  group();
  document.returnToRuns();
  EXPECT_EQ(document.drawingError(), "");
}

TEST_F(DocumentOfRuns, OpensRunsInThePageThatComparesThem)
{
  EXPECT_EQ(open(), "");
  EXPECT_EQ(document.drawingError(), "");
  EXPECT_EQ(document.choice().style, selectionCdfPlot);
  EXPECT_NE(vtkChartMatrix::SafeDownCast(container().getItem()), nullptr);
  EXPECT_EQ(document.size(), "6 runs, 8 points each, 2 parameters");
  EXPECT_EQ(document.columns(), container().getLabels());
  EXPECT_EQ(document.groups().runs(), 6);
  EXPECT_TRUE(document.canBeSaved());
  EXPECT_EQ(studies, 1);
  EXPECT_EQ(announced, 1);
}

TEST_F(DocumentOfRuns, OpensATableAsItIs)
{
  EXPECT_EQ(open(threeColumns), "");
  EXPECT_EQ(document.choice().style, xyPlot);
  EXPECT_EQ(document.choice().y, std::vector<int>{1});
  EXPECT_EQ(document.size(), "3 rows, 3 columns");
  EXPECT_EQ(document.groups().runs(), 0);
}

TEST_F(DocumentOfRuns, ShowsWhatIsWished)
{
  PlotWishes wishes;
  wishes.style = xyPlot;
  wishes.x = "k";
  wishes.y = {"Y", "X"};
  EXPECT_EQ(open(sixRuns(), wishes), "");
  EXPECT_EQ(document.choice().x, 4);
  EXPECT_EQ(document.choice().y, (std::vector<int>{1, 0}));
  EXPECT_EQ(labels(), (std::vector<std::string>{"max(Y)", "max(X)"}));
}

TEST_F(DocumentOfRuns, LeavesAllWishesOutWhenOneCannotBeMet)
{
  PlotWishes wishes;
  wishes.style = xyPlot;
  wishes.y = {"Z"};
  EXPECT_EQ(open(sixRuns(), wishes),
            "no such column: Z; the columns are X, Y, time, Run Index, k, m");
  EXPECT_EQ(document.drawingError(), "");
  EXPECT_EQ(document.choice().y, std::vector<int>{0});
  EXPECT_EQ(labels(), std::vector<std::string>{"X"}) << "the study is shown all the same";
}

TEST_F(DocumentOfRuns, DrawsWhatIsChosen)
{
  openInXYPlot();
  PlotChoice choice = document.choice();
  choice.y = {1, 0};
  choice.legend = true;
  choice.logY = true;
  document.choose(choice);
  EXPECT_EQ(document.choice(), choice);
  EXPECT_EQ(labels(), (std::vector<std::string>{"Y", "X"}));
  EXPECT_TRUE(chart().GetShowLegend());
  EXPECT_EQ(choiceOf(container()), choice);
}

TEST_F(DocumentOfRuns, SaysWhatCannotBeDrawn)
{
  EXPECT_EQ(open(), "");
  // The pages cut the kind off the names of parameters, and refuse names that are too short.
  container().getTable()->GetColumnByName("Parameter: k")->SetName("k");
  document.draw();
  EXPECT_EQ(document.drawingError().rfind("cannot draw this: ", 0), 0U) << document.drawingError();
  PlotChoice choice = document.choice();
  choice.style = xyPlot;
  document.choose(choice);
  EXPECT_EQ(document.drawingError(), "");
}

TEST_F(DocumentOfRuns, DrawsEachOpeningOnce)
{
  open();
  EXPECT_EQ(drawingsSoFar(), 1U) << "runs";
  openInXYPlot();
  EXPECT_EQ(drawingsSoFar(), 1U) << "runs in a style of their own";
  document.open(ownChart());
  EXPECT_EQ(drawingsSoFar(), 1U) << "its own chart";
  document.returnToRuns();
  EXPECT_EQ(drawingsSoFar(), 2U) << "runs once more";
  open(threeColumns);
  EXPECT_EQ(drawingsSoFar(), 1U) << "a table";
}

TEST_F(DocumentOfRuns, CompletesEveryDrawing)
{
  openInXYPlot();
  PlotChoice choice = document.choice();
  choice.y = {0, 1};
  document.choose(choice);
  document.groups().setGrouping(2, byCourse);
  group();
  const std::vector<std::string> complete = labels();
  EXPECT_EQ(complete, (std::vector<std::string>{"X", "Y", "Group 1: 3 runs", "Group 2: 3 runs"}));
  for (int i = 0; i < 2; ++i)
  {
    container().redraw();
    EXPECT_EQ(labels(), complete) << "started by the library's client";
    settings().setStride(8 + i);
    settings().setStride(8);
    EXPECT_EQ(labels(), complete) << "started by a setting";
  }
}

TEST_F(DocumentOfRuns, ShowsAChartOfItsOwnInsteadOfTheRunsAndBack)
{
  openInXYPlot();
  select({1, 3});
  const QPointer<PlotContainer> runs = document.container();
  const PlotChoice choice = document.choice();
  EXPECT_EQ(document.open(ownChart()), "");
  EXPECT_EQ(document.variant(), 1);
  EXPECT_STREQ(chart().GetTitle().c_str(), "variant 1");
  EXPECT_EQ(document.columns(), QStringList("own values"));
  EXPECT_FALSE(document.canBeSaved());
  ASSERT_TRUE(document.sessionSource()) << "the runs are still the user's work";
  EXPECT_EQ(&document.sessionSource()->container, runs.data());
  EXPECT_TRUE(document.canReturnToRuns());
  EXPECT_FALSE(document.selection().undoGroup().canUndo()) << "a history of its own";
  document.returnToRuns();
  EXPECT_EQ(document.container(), runs.data());
  EXPECT_EQ(document.choice(), choice);
  EXPECT_EQ(document.variant(), 0);
  EXPECT_EQ(selectedRuns(), (std::set<int>{1, 3}));
  EXPECT_TRUE(document.selection().undoGroup().canUndo());
  EXPECT_EQ(studies, 3);
}

TEST_F(DocumentOfRuns, DrawsAChartOfItsOwnWholeInEveryDrawing)
{
  document.open(ownChart());
  countDrawings();
  const vtkIdType plots = chart().GetNumberOfPlots();
  settings().setLogX(true);
  expectOneDrawing("setting");
  EXPECT_EQ(chart().GetNumberOfPlots(), plots);
  container().setPlotTitle("Mine");
  settings().setLogX(false);
  EXPECT_EQ(chart().GetTitle(), "Mine");
  drawings = announced = 0;
  document.chooseVariant(0);
  expectOneDrawing("variant");
  EXPECT_EQ(chart().GetTitle(), "variant 0");
}

TEST_F(DocumentOfRuns, LetsTheUserChooseNothingOfAChartOfItsOwn)
{
  document.open(ownChart());
  PlotChoice choice = document.choice();
  choice.style = xyzPlot;
  document.choose(choice);
  EXPECT_EQ(document.choice().style, xyPlot);
  EXPECT_EQ(chart().GetTitle(), "variant 1");
}

TEST_F(DocumentOfRuns, GivesEachStudyAContainerOfItsOwn)
{
  open();
  const QPointer<PlotContainer> first = document.container();
  open(threeColumns);
  EXPECT_NE(document.container(), first.data());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(first.isNull());
}

TEST_F(DocumentOfRuns, GivesTheValuesBackToAStudyThatItLeaves)
{
  OpenedStudy opened;
  opened.study = sampleStudy(sixRuns());
  ASSERT_EQ(document.open(opened), "");
  const double before = value(0, 7);
  document.groups().normalise(true);
  EXPECT_EQ(value(0, 7), 1.0) << "the largest of its run";
  EXPECT_TRUE(document.groups().showsNormalised());
  open(threeColumns);
  EXPECT_EQ(opened.study.runs->values[0][7], before);
}

TEST_F(DocumentOfRuns, SortsRunsIntoGroupsThatCanBeSelected)
{
  openInXYPlot();
  document.groups().setGrouping(2, byCourse);
  group();
  EXPECT_EQ(document.groups().groups().groupOfRun, (std::vector<int>{0, 1, 0, 1, 0, 1}));
  EXPECT_TRUE(document.groups().state().look.groupColours);
  document.groups().select(1);
  EXPECT_EQ(selectedRuns(), (std::set<int>{1, 3, 5}));
}
