#include "app/document/SelectionController.h"

#include "app/session/RunSelectionFile.h"
#include "external/ParameterSelection.h"
#include "external/PlotMetaData.h"
#include "plot/TableColumns.h"
#include "support/SampleRuns.h"
#include "vtk/RowSelections.h"

#include <vtkAbstractArray.h>
#include <vtkAnnotationLink.h>
#include <vtkCallbackCommand.h>
#include <vtkTable.h>

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QUndoStack>

#include <cmath>
#include <set>
#include <string>
#include <vector>

using Talmesh::makeRowSelection;
using Talmesh::app::SelectionController;

namespace
{

using Rows = std::set<vtkIdType>;

/// A plot of runs with the indices 5, 1 and 7, three points each.
class SelectionControllerTest : public ::testing::Test
{
protected:
  SelectionControllerTest() { controller.follow(&plot.container); }

  static SampleRuns::Shape shape()
  {
    SampleRuns::Shape shape;
    shape.runIndices = {5, 1, 7};
    return shape;
  }

  void select(const std::vector<vtkIdType>& rows)
  {
    plot.container.getAnnotationLink()->SetCurrentSelection(makeRowSelection(rows));
  }

  PlotMetaData& settings() { return *plot.container.getMetaData(); }

  void setStride(int stride)
  {
    PlotMetaData& settings = *plot.container.getMetaData();
    settings.blockSignals(true);
    settings.setStride(stride);
    settings.blockSignals(false);
  }

  /// Cuts the last run after its first two points.
  void cutLastRun()
  {
    const vtkSmartPointer<vtkTable> table = plot.container.getTable();
    table->RemoveRow(table->GetNumberOfRows() - 1);
    plot.container.setPlotData(table);
    plot.container.redraw();
  }

  std::string load(const QByteArray& runs)
  {
    QFile file(folder.filePath("runs.json"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(R"({"format": "talmesh-runs", "version": 1, "runs": )" + runs + "}");
    file.close();
    return controller.load(file.fileName());
  }

  std::string start() const { return folder.filePath("runs.json").toStdString() + ": "; }

  QTemporaryDir folder;
  SampleRuns::Plot plot{shape()};
  SelectionController controller;
};

} // namespace

TEST_F(SelectionControllerTest, CountsSelectedRuns)
{
  EXPECT_EQ(controller.summary(), "0 of 3 runs selected");
  select({0, 1, 8});
  EXPECT_EQ(controller.summary(), "2 of 3 runs selected");
}

TEST_F(SelectionControllerTest, DoesNotCountAPartialLastRun)
{
  cutLastRun();
  select({0, 6});
  EXPECT_EQ(controller.summary(), "1 of 2 runs selected");
  controller.selectAll();
  EXPECT_EQ(controller.summary(), "2 of 2 runs selected");
}

TEST_F(SelectionControllerTest, SelectsAllRowsOfAllRunsAndNoOthers)
{
  for (const bool lines : {true, false})
  {
    settings().setPlotLine(lines);
    controller.selectAll();
    EXPECT_EQ(SampleRuns::selectedRows(plot.container).size(), 9U);
    EXPECT_EQ(controller.summary(), "3 of 3 runs selected");
  }
  plot.container.setPlotStyle(selectionCdfPlot);
  EXPECT_EQ(controller.summary(), "3 of 3 runs selected");
  cutLastRun();
  controller.clear();
  controller.selectAll();
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows({0, 1, 2, 3, 4, 5}));
  setStride(0);
  controller.selectAll();
  EXPECT_EQ(SampleRuns::selectedRows(plot.container).size(), 8U) << "there are no runs";
}

TEST_F(SelectionControllerTest, SelectsWholeRunsWhoeverSelectsRows)
{
  int heard = 0;
  const auto count = [](vtkObject*, unsigned long, void* data, void*)
  { ++*static_cast<int*>(data); };
  vtkNew<vtkCallbackCommand> counter;
  counter->SetCallback(count);
  counter->SetClientData(&heard);
  plot.container.getAnnotationLink()->AddObserver(vtkCommand::AnnotationChangedEvent, counter);
  select({1, 8});
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows({0, 1, 2, 6, 7, 8}));
  EXPECT_EQ(heard, 1) << "of the whole runs alone";
  QUndoStack& steps = controller.undoStack();
  ASSERT_EQ(steps.count(), 1);
  EXPECT_EQ(steps.text(0), "Select 2 runs: runs(5, 7)");
  steps.undo();
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows());
  steps.redo();
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows({0, 1, 2, 6, 7, 8}));
  EXPECT_EQ(steps.count(), 1);
}

TEST_F(SelectionControllerTest, BeginsWithWholeRuns)
{
  controller.follow(nullptr);
  select({4});
  controller.follow(&plot.container);
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows({3, 4, 5}));
  EXPECT_FALSE(controller.undoStack().canUndo());
}

TEST_F(SelectionControllerTest, DropsRowsThatAreOfNoWholeRun)
{
  cutLastRun();
  select({0, 7});
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows({0, 1, 2}));
}

TEST_F(SelectionControllerTest, InvertsWhatIsSelected)
{
  select({1});
  controller.invert();
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows({3, 4, 5, 6, 7, 8}));
  EXPECT_EQ(controller.undoStack().undoText(), "Invert Selection");
  setStride(0);
  controller.invert();
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows({0, 1, 2})) << "rows";
}

TEST_F(SelectionControllerTest, SavesTheRunsThatItCounts)
{
  // In this style the library tells the runs that are selected at every selected time.
  plot.container.setPlotStyle(selectionCdfPlot);
  auto* times = Talmesh::plot::doubleColumn(plot.container.getTable(), SampleRuns::timeColumn);
  times->SetValue(0, std::nan(""));
  select({1});
  EXPECT_EQ(controller.summary(), "1 of 3 runs selected");
  EXPECT_EQ(controller.save(folder.filePath("saved.json")), "");
  EXPECT_EQ(Talmesh::app::loadRunSelection(folder.filePath("saved.json")).value().runs,
            std::set<int>{5});
}

TEST_F(SelectionControllerTest, CountsRowsWhereThereAreNoRuns)
{
  for (const int stride : {0, -3})
  {
    setStride(stride);
    select({0, 1, 6});
    EXPECT_EQ(controller.summary(), "3 of 9 rows selected") << stride;
  }
  setStride(3);
  plot.container.getTable()->GetColumn(SampleRuns::runIndexColumn)->SetName("run");
  EXPECT_EQ(controller.summary(), "2 of 3 runs selected") << "counted, as it has parameters";
  controller.follow(nullptr);
  EXPECT_EQ(controller.summary(), "");
}

TEST_F(SelectionControllerTest, LoadsRunsInWhateverOrderTheyStandInTheTable)
{
  EXPECT_EQ(load("[1, 5]"), "");
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows({0, 1, 2, 3, 4, 5}));
}

TEST_F(SelectionControllerTest, SaysWhichRunsAreMissing)
{
  EXPECT_EQ(load("[-1, 1, 2, 3, 4, 6, 8, 9, 10, 11, 12, 13]"),
            start() + "11 of its 12 runs are not in this table: "
                      "-1, 2, 3, 4, 6, 8, 9, 10, 11, 12, ...");
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows({3, 4, 5}));
}

TEST_F(SelectionControllerTest, DoesNotLoadAPartialLastRun)
{
  cutLastRun();
  select({1});
  EXPECT_EQ(load("[7]"), start() + "none of its runs is in this table: 7");
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows({0, 1, 2}));
  EXPECT_EQ(load("[5, 7]"), start() + "1 of its 2 runs is not in this table: 7");
}

TEST_F(SelectionControllerTest, LoadsNothingWhereThereAreNoRuns)
{
  setStride(0);
  EXPECT_EQ(load("[5]"), "This table has no runs to select.");
  controller.follow(nullptr);
  EXPECT_EQ(load("[5]"), "This table has no runs to select.");
}
