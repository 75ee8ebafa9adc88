#include "document/DocumentScene.h"

using namespace Talmesh::app;

namespace
{

/// How often a document draws what is changed.
using DocumentDrawings = DocumentScene;

} // namespace

TEST_F(DocumentDrawings, DrawsEachChangeOnce)
{
  openInXYPlot();
  countDrawings();
  PlotChoice choice = document.choice();
  choice.y = {0, 1};
  document.choose(choice);
  expectOneDrawing("choice");
  choice.style = selectionCdfPlot;
  document.choose(choice);
  expectOneDrawing("another style");
  ComparisonChoice comparison = comparisonChoiceOf(container());
  comparison.density = true;
  comparison.pThreshold = 0.5;
  document.compareBy(comparison);
  expectOneDrawing("comparison");
  select({0, 2});
  expectOneDrawing("selection");
  document.selection().undoStack().undo();
  expectOneDrawing("undone selection");
  document.setLook({false, false, true});
  EXPECT_EQ(document.choice().style, xyPlot) << "which alone has bands";
  expectOneDrawing("look");
  group();
  expectOneDrawing("groups");
  document.groups().normalise(true);
  expectOneDrawing("values");
  settings().setLogX(true);
  expectOneDrawing("setting");
}

TEST_F(DocumentDrawings, DrawsEachSelectionOnceWithoutParametersToo)
{
  PlotWishes wishes;
  wishes.style = parallelCoordinates;
  EXPECT_EQ(open("run,time,X,Y\n0,0,1,2\n0,1,2,3\n1,0,4,3\n1,1,5,1\n", wishes), "");
  countDrawings();
  document.selection().selectAll();
  expectOneDrawing("selection");
  document.groups().normalise(true);
  expectOneDrawing("values");
}

TEST_F(DocumentDrawings, DrawsSeveralChangesTogetherOnce)
{
  openInXYPlot();
  countDrawings();
  document.together(
      [this]
      {
        PlotChoice choice = document.choice();
        choice.y = {0, 1};
        choice.legend = true;
        document.choose(choice);
        settings().setLogX(true);
        select({0, 2});
      });
  expectOneDrawing("all of it");
  EXPECT_EQ(labels(), (std::vector<std::string>{"X", "Y"}));
  EXPECT_TRUE(chart().GetShowLegend());
  EXPECT_EQ(selectedRuns(), (std::set<int>{0, 2}));
  document.together([this] { open(); });
  EXPECT_EQ(drawingsSoFar(), 1U);
  select({1});
  EXPECT_EQ(drawingsSoFar(), 2U) << "and each change by itself from then on";
}
