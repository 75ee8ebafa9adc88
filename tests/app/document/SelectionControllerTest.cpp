#include "app/document/SelectionController.h"

#include "external/ParameterSelection.h"
#include "external/PlotMetaData.h"
#include "plot/TableColumns.h"
#include "support/SampleRuns.h"
#include "vtk/RowSelections.h"

#include <vtkAbstractArray.h>
#include <vtkAnnotationLink.h>
#include <vtkTable.h>

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <cmath>
#include <memory>
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

TEST_F(SelectionControllerTest, SelectsOneRowOfEachRunWhereRunsAreDrawnAsLines)
{
  settings().setPlotLine(true);
  controller.selectAll();
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows({0, 3, 6}));
  EXPECT_EQ(controller.summary(), "3 of 3 runs selected");
  // The comparison of runs counts those that are selected at every selected time.
  plot.container.setPlotStyle(selectionCdfPlot);
  EXPECT_EQ(controller.summary(), "3 of 3 runs selected");
  EXPECT_EQ(std::unique_ptr<ParameterSelection>(plot.container.getSelection())->runs,
            std::set<int>({1, 5, 7}));
  settings().setPlotLine(false);
  controller.selectAll();
  EXPECT_EQ(SampleRuns::selectedRows(plot.container).size(), 9U);
}

TEST_F(SelectionControllerTest, SelectsEveryRowOfRunsThatStartAtDifferentTimes)
{
  settings().setPlotLine(true);
  auto* times = Talmesh::plot::doubleColumn(plot.container.getTable(), SampleRuns::timeColumn);
  // Run 2 counts down: 2, 1, 0.
  times->SetValue(6, 2.0);
  times->SetValue(8, 0.0);
  controller.selectAll();
  EXPECT_EQ(SampleRuns::selectedRows(plot.container).size(), 9U);
  plot.container.setPlotStyle(selectionCdfPlot);
  EXPECT_EQ(controller.summary(), "3 of 3 runs selected");
  times->SetValue(6, std::nan(""));
  controller.selectAll();
  EXPECT_EQ(SampleRuns::selectedRows(plot.container).size(), 9U);
}

TEST_F(SelectionControllerTest, SelectsEveryRowWhereThereAreOtherRowsThanThoseOfRuns)
{
  settings().setPlotLine(true);
  cutLastRun();
  controller.selectAll();
  EXPECT_EQ(SampleRuns::selectedRows(plot.container).size(), 8U);
  setStride(0);
  controller.selectAll();
  EXPECT_EQ(SampleRuns::selectedRows(plot.container).size(), 8U);
}

TEST_F(SelectionControllerTest, CountsRowsWhereThereAreNoRuns)
{
  select({0, 1, 6});
  for (const int stride : {0, -3})
  {
    setStride(stride);
    EXPECT_EQ(controller.summary(), "3 of 9 rows selected") << stride;
  }
  setStride(3);
  plot.container.getTable()->GetColumn(SampleRuns::runIndexColumn)->SetName("run");
  EXPECT_EQ(controller.summary(), "3 of 9 rows selected");
  controller.follow(nullptr);
  EXPECT_EQ(controller.summary(), "");
}

TEST_F(SelectionControllerTest, LoadsRunsInWhateverOrderTheyStandInTheTable)
{
  EXPECT_EQ(load("[1, 5]"), "");
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows({0, 3}));
}

TEST_F(SelectionControllerTest, SaysWhichRunsAreMissing)
{
  EXPECT_EQ(load("[-1, 1, 2, 3, 4, 6, 8, 9, 10, 11, 12, 13]"),
            start() + "11 of its 12 runs are not in this table: "
                      "-1, 2, 3, 4, 6, 8, 9, 10, 11, 12, ...");
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows({3}));
}

TEST_F(SelectionControllerTest, DoesNotLoadAPartialLastRun)
{
  cutLastRun();
  select({1});
  EXPECT_EQ(load("[7]"), start() + "none of its runs is in this table: 7");
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows({1}));
  EXPECT_EQ(load("[5, 7]"), start() + "1 of its 2 runs is not in this table: 7");
}

TEST_F(SelectionControllerTest, LoadsNothingWhereThereAreNoRuns)
{
  setStride(0);
  EXPECT_EQ(load("[5]"), "This table has no runs to select.");
  controller.follow(nullptr);
  EXPECT_EQ(load("[5]"), "This table has no runs to select.");
}
