#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/CapturedOutput.h"
#include "support/SampleRuns.h"
#include "support/SampleTables.h"

#include <vtkAnnotationLink.h>
#include <vtkIntArray.h>

#include <gtest/gtest.h>

#include <QByteArray>

#include <memory>

using SampleRuns::selectedRows;
using SampleRuns::valuesOf;
using Values = std::vector<double>;

namespace
{

QByteArray dumpOf(PlotContainer& container)
{
  const std::unique_ptr<QByteArray> bytes(container.binaryDump());
  return *bytes;
}

QByteArray dumpOf(vtkTable* table)
{
  PlotContainer container(nullptr);
  container.getTable()->ShallowCopy(table);
  return dumpOf(container);
}

/// Four runs of three rows with the first rows of runs 1 and 2 flagged in the last column.
QByteArray flaggedRuns()
{
  const auto table = SampleRuns::table({});
  vtkNew<vtkIntArray> flags;
  flags->SetName("selected points");
  for (int row = 0; row < 12; ++row)
    flags->InsertNextValue(row == 3 || row == 6 ? 1 : 0);
  table->AddColumn(flags);
  PlotContainer container(nullptr);
  container.getTable()->ShallowCopy(table);
  stateOf(container).columnItems = SampleRuns::items({});
  return dumpOf(container);
}

/// Reads a dump into a container that has everything to do after it.
class DumpLastSteps : public ::testing::Test
{
protected:
  static void prepare(PlotContainer& container)
  {
    stateOf(container).selectionUpdatePending = true;
    stateOf(container).coordinateWindows.clear();
    container.getMetaData()->storedCoordinateWindow = {1, 2, 3, 4, true};
    container.generateQuartiles();
  }

  static void read(PlotContainer& container, QByteArray bytes)
  {
    prepare(container);
    const vtkSmartPointer<vtkTable> quartiles = container.getQuartileTable();
    CapturedOutput errors(std::cerr);
    CapturedOutput output(std::cout);
    container.readDump(&bytes);
    EXPECT_NE(container.getQuartileTable(), quartiles);
    EXPECT_FALSE(stateOf(container).selectionUpdatePending);
    const PlotMetaData& settings = *container.getMetaData();
    const ReducedMetaData key{settings.xColumns.front(), settings.yColumns.front(),
                              static_cast<int>(settings.getPlotStyle())};
    EXPECT_EQ(stateOf(container).coordinateWindows.count(key), 1U);
    EXPECT_EQ(stateOf(container).coordinateWindows[key].yMax, 4.0);
    said = output.text();
    complained = errors.text();
  }

  static std::string said;
  static std::string complained;
};

std::string DumpLastSteps::said;
std::string DumpLastSteps::complained;

constexpr int medianColumn = 3;

Values medians(const PlotContainer& container)
{
  return valuesOf(container.getQuartileTable()->GetColumn(medianColumn));
}

TEST_F(DumpLastSteps, SummariseTheDataRead)
{
  PlotContainer container(nullptr);
  read(container, dumpOf(tableOf({{"x", {0, 0, 0}}, {"y", {7, 9, 8}}})));
  EXPECT_EQ(medians(container), Values({8}));
  EXPECT_EQ(complained, "");
}

TEST_F(DumpLastSteps, SummariseZerosWhereTheBytesEnd)
{
  PlotContainer container(nullptr);
  const QByteArray bytes = dumpOf(tableOf({{"x", {0, 0, 0}}, {"y", {7, 9, 8}}}));
  read(container, bytes.left(bytes.size() - 9));
  EXPECT_EQ(valuesOf(container.getTable(), "y"), Values({7, 0, 0}));
  EXPECT_EQ(medians(container), Values({0}));
  EXPECT_EQ(complained, "");
}

TEST_F(DumpLastSteps, SummariseNothingOfAnEmptyTable)
{
  PlotContainer container(nullptr);
  container.setPlotData(plainTable());
  for (const QByteArray& bytes : {QByteArray(12, '\0'), QByteArray()})
  {
    read(container, bytes);
    EXPECT_EQ(container.getQuartileTable()->GetNumberOfColumns(), 9);
    EXPECT_EQ(medians(container), Values());
    EXPECT_EQ(complained, "");
  }
}

TEST_F(DumpLastSteps, RunAfterTheComplaintToo)
{
  PlotContainer container(nullptr);
  container.setPlotData(plainTable());
  QByteArray bytes(12, '\0');
  bytes[4] = 0x7F; // columns
  bytes[8] = 0x7F; // rows
  read(container, bytes);
  EXPECT_EQ(medians(container), Values());
  EXPECT_EQ(complained, "void PlotContainer::readDump(QByteArray*): the data end too early or name "
                        "too many columns, the table stays empty\n");
}

TEST_F(DumpLastSteps, NeitherDrawNorSilenceWithoutASelection)
{
  SampleRuns::Plot plot;
  PlotContainer hidden(nullptr);
  SampleRuns::load(hidden, {});
  QByteArray runs = dumpOf(SampleRuns::table({}));
  for (PlotContainer* container : {&plot.container, &hidden})
  {
    ASSERT_FALSE(container->getMetaData()->parameterColumns.empty());
    for (const bool blocked : {false, true})
    {
      container->getMetaData()->blockSignals(blocked);
      const unsigned long drawings = stateOf(*container).drawings;
      read(*container, runs);
      EXPECT_EQ(stateOf(*container).drawings, drawings);
      EXPECT_EQ(container->getMetaData()->signalsBlocked(), blocked);
      EXPECT_EQ(said + complained, "");
    }
  }
}

TEST_F(DumpLastSteps, NeitherDrawNorSilenceWithoutParameterColumns)
{
  SampleRuns::Plot plot;
  PlotContainer hidden(nullptr);
  for (PlotContainer* container : {&plot.container, &hidden})
  {
    container->getMetaData()->parameterColumns.clear();
    for (const bool blocked : {false, true})
    {
      container->getMetaData()->blockSignals(blocked);
      const unsigned long drawings = stateOf(*container).drawings;
      read(*container, flaggedRuns());
      EXPECT_EQ(selectedRows(*container), (std::set<vtkIdType>{3, 6}));
      EXPECT_EQ(stateOf(*container).drawings, drawings);
      EXPECT_EQ(container->getMetaData()->signalsBlocked(), blocked);
      EXPECT_EQ(said + complained, "");
    }
  }
}

TEST_F(DumpLastSteps, FollowTheReactionToTheSelectionInAScene)
{
  SampleRuns::Plot plot;
  const unsigned long drawings = stateOf(plot.container).drawings;
  plot.container.getMetaData()->blockSignals(true);
  read(plot.container, flaggedRuns());
  EXPECT_EQ(selectedRows(plot.container), (std::set<vtkIdType>{3, 6}));
  ASSERT_EQ(plot.container.getDerivedTables().size(), 8U);
  EXPECT_EQ(valuesOf(plot.container.getDerivedTables()[2], "Complex: A"), Values({10, 20}));
  EXPECT_EQ(stateOf(plot.container).drawings, drawings + 1);
  EXPECT_FALSE(plot.container.getMetaData()->signalsBlocked()) << "as after every drawing";
  EXPECT_EQ(said + complained, "");
  // Row p of run k holds -(10 k + p) of the molecule.
  EXPECT_EQ(medians(plot.container), Values({-15, -16, -17}));
}

TEST_F(DumpLastSteps, FollowTheReactionToTheSelectionWithoutAScene)
{
  PlotContainer hidden(nullptr);
  SampleRuns::load(hidden, {});
  hidden.getMetaData()->blockSignals(false);
  read(hidden, flaggedRuns());
  EXPECT_EQ(hidden.getDerivedTables().size(), 8U);
  EXPECT_EQ(said, "void PlotContainer::redraw(): invalid scene\n");
  EXPECT_EQ(complained, "");
  EXPECT_TRUE(hidden.getMetaData()->signalsBlocked()) << "as after every drawing without a scene";
  EXPECT_EQ(medians(hidden), Values({-15, -16, -17}));
}

TEST_F(DumpLastSteps, RankByTheBoundsKnownBefore)
{
  SampleRuns::Plot plot;
  stateOf(plot.container).parameterBounds.pop_back();
  read(plot.container, flaggedRuns());
  EXPECT_NE(complained.find("does not match the number of parameter bounds"), std::string::npos);
  EXPECT_EQ(stateOf(plot.container).parameterBounds.size(), 1U);
}

TEST_F(DumpLastSteps, RunForTruncationsInAScene)
{
  const QByteArray whole = flaggedRuns();
  for (int length = 0; length <= whole.size(); length += 31)
  {
    SampleRuns::Plot plot;
    read(plot.container, whole.left(length));
    EXPECT_FALSE(plot.container.getMetaData()->signalsBlocked()) << length;
    EXPECT_EQ(said, "") << length;
    if (HasFailure())
      return;
  }
}

} // namespace
