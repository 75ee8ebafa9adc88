#include "app/SelectionController.h"
#include "vtk/vtkPlotLineSet.h"

#include <vtkPlotFunctionalBag.h>
#include <vtkTable.h>
#include <vtkVariant.h>

#include "GroupsInWindow.h"

namespace
{

using namespace Talmesh::app;

class RunLooksInWindow : public GroupsInWindow
{
};

TEST_F(RunLooksInWindow, QuartileBandsLieBehindTheSelectedRuns)
{
  tick("runBands");
  const auto bands = plots<vtkPlotFunctionalBag>();
  ASSERT_EQ(bands.size(), 3U);
  vtkPlotLineSet* all = plots<vtkPlotLineSet>()[0];
  EXPECT_TRUE(all->GetOnlyShowSelected());
  EXPECT_LT(chart().GetPlotIndex(bands[0]), chart().GetPlotIndex(bands[1]));
  EXPECT_LT(chart().GetPlotIndex(bands[1]), chart().GetPlotIndex(bands[2]));
  EXPECT_LT(chart().GetPlotIndex(bands[2]), chart().GetPlotIndex(all));
  // X at the first time: 1, 16, 3, 32, 5, 48.
  vtkTable* quartiles = container().getQuartileTable();
  EXPECT_EQ(quartiles->GetValueByName(0, "Median").ToDouble(), 10.5);
  PlotChoice choice = window.plotDock()->choice();
  choice.y = {1};
  choose(choice);
  // Y at the first time: 1, 2, ... 6.
  EXPECT_EQ(container().getQuartileTable()->GetValueByName(0, "Median").ToDouble(), 3.5);
  tick("runBands");
  EXPECT_TRUE(plots<vtkPlotFunctionalBag>().empty());
}

TEST_F(RunLooksInWindow, NormalisedRunsAreUndoneByReloadingTheValues)
{
  std::vector<double> before;
  for (vtkIdType row = 0; row < container().getTable()->GetNumberOfRows(); ++row)
    before.push_back(value(0, row));
  const auto expectOriginal = [&]
  {
    for (std::size_t row = 0; row < before.size(); ++row)
      EXPECT_EQ(value(0, static_cast<vtkIdType>(row)), before[row]) << row;
  };
  tick("normaliseRuns");
  // The second run falls from 16 in steps of 2.
  EXPECT_EQ(value(0, pointsPerRun), 1.0);
  EXPECT_EQ(value(0, pointsPerRun + 1), 14.0 / 16.0);
  EXPECT_EQ(value(1, 0), 1.0) << "other columns stay";
  EXPECT_TRUE(window.selectionController()->undoStack().canUndo());
  press(QKeySequence::Undo);
  expectOriginal();
  EXPECT_FALSE(find<QCheckBox>("normaliseRuns")->isChecked());
  press(QKeySequence::Redo);
  EXPECT_EQ(value(0, pointsPerRun), 1.0);
  EXPECT_TRUE(find<QCheckBox>("normaliseRuns")->isChecked());
  tick("normaliseRuns");
  expectOriginal();
}

TEST_F(RunLooksInWindow, NormalisingBelongsToTheColumnsShown)
{
  tick("normaliseRuns");
  PlotChoice choice = window.plotDock()->choice();
  choice.y = {1};
  choose(choice);
  EXPECT_FALSE(find<QCheckBox>("normaliseRuns")->isChecked());
  choice.y = {0};
  choose(choice);
  EXPECT_TRUE(find<QCheckBox>("normaliseRuns")->isChecked());
}

} // namespace
