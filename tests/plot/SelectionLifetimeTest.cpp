#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotState.h"
#include "plot/vtkSelectionUpdateCallback.h"
#include "support/CapturedOutput.h"
#include "support/SampleRuns.h"
#include "vtk/RowSelections.h"

#include <vtkAnnotationLink.h>
#include <vtkCommand.h>
#include <vtkIntArray.h>
#include <vtkTable.h>

#include <gtest/gtest.h>

#include <iostream>
#include <memory>
#include <set>
#include <vector>

using Talmesh::makeRowSelection;

namespace
{

using Rows = std::set<vtkIdType>;

std::vector<double> lastColumnOf(vtkTable* table)
{
  return SampleRuns::valuesOf(table->GetColumn(table->GetNumberOfColumns() - 1));
}

std::unique_ptr<PlotContainer> silentCopy(const PlotContainer& original)
{
  const CapturedOutput output(std::cout);
  return std::make_unique<PlotContainer>(original);
}

} // namespace

TEST(CopiedSelection, IsThatOfTheOriginal)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 2, 0));
  plot.container.getAnnotationLink()->SetCurrentSelection(makeRowSelection({1, 4}));
  const auto copy = silentCopy(plot.container);
  EXPECT_EQ(SampleRuns::selectedRows(*copy), Rows({1, 4}));
  vtkTable* table = copy->getTable();
  EXPECT_STREQ(table->GetColumnName(table->GetNumberOfColumns() - 1), "selected points");
  EXPECT_EQ(lastColumnOf(table), std::vector<double>({0, 1, 0, 0, 1, 0}));
  EXPECT_EQ(plot.container.getTable()->GetColumnByName("selected points"), nullptr);
}

TEST(CopiedSelection, IsEmptyForAFreshOriginal)
{
  const SampleRuns::Plot plot(SampleRuns::runs(2, 2, 0));
  const auto copy = silentCopy(plot.container);
  EXPECT_EQ(SampleRuns::selectedRows(*copy), Rows());
  EXPECT_EQ(lastColumnOf(copy->getTable()), std::vector<double>({0, 0, 0, 0}));
}

TEST(CopiedSelection, IsIndependentOfTheOriginal)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 2, 0));
  plot.container.getAnnotationLink()->SetCurrentSelection(makeRowSelection({1}));
  const auto copy = silentCopy(plot.container);
  copy->getAnnotationLink()->SetCurrentSelection(makeRowSelection({2, 3}));
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows({1}));
  plot.container.getAnnotationLink()->SetCurrentSelection(nullptr);
  EXPECT_EQ(SampleRuns::selectedRows(*copy), Rows({2, 3}));
}

TEST(CopiedSelection, WinsOverAnOlderFlagColumnInTheTable)
{
  SampleRuns::Plot plot(SampleRuns::runs(2, 2, 0));
  plot.container.getAnnotationLink()->SetCurrentSelection(makeRowSelection({0}));
  const auto copy = silentCopy(plot.container);
  copy->addColumn({0, 0, 0, 0}, "behind the flags");
  copy->getAnnotationLink()->SetCurrentSelection(makeRowSelection({3}));
  const auto copyOfCopy = silentCopy(*copy);
  EXPECT_EQ(SampleRuns::selectedRows(*copyOfCopy), Rows({3}));
  EXPECT_EQ(lastColumnOf(copyOfCopy->getTable()), std::vector<double>({0, 0, 0, 1}));
  EXPECT_EQ(copyOfCopy->getTable()->GetNumberOfColumns(), copy->getTable()->GetNumberOfColumns());
}

TEST(CopiedSelection, SurvivesTheMarkersOfASplit)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 2));
  plot.container.getAnnotationLink()->SetCurrentSelection(makeRowSelection({2, 3}));
  const auto copy = silentCopy(plot.container);
  EXPECT_EQ(SampleRuns::selectedRows(*copy), Rows({2, 3}));
  EXPECT_EQ(SampleRuns::valuesOf(copy->getTable(), "selected points"),
            std::vector<double>({0, 0, 1, 1, 0, 0}));
  // The copy has split its own table when its selection was made.
  EXPECT_EQ(copy->getDerivedTables().size(), 8U);
  EXPECT_EQ(stateOf(*copy).selectionUpdateCallback->Container, copy.get());
}

TEST(CopiedSelection, OutlivesTheOriginal)
{
  std::unique_ptr<PlotContainer> copy;
  {
    SampleRuns::Plot plot(SampleRuns::runs(3, 2));
    plot.container.getAnnotationLink()->SetCurrentSelection(makeRowSelection({5}));
    copy = silentCopy(plot.container);
  }
  vtkNew<vtkContextScene> scene;
  copy->setScene(scene);
  copy->getAnnotationLink()->SetCurrentSelection(makeRowSelection({0}));
  EXPECT_EQ(SampleRuns::selectedRows(*copy), Rows({0}));
  EXPECT_EQ(SampleRuns::valuesOf(copy->getDerivedTables().at(2), "Complex: A"),
            std::vector<double>({0}));
}

TEST(SelectionLifetime, TheLinkAnnouncesNothingToADeadContainer)
{
  vtkSmartPointer<vtkAnnotationLink> link;
  vtkSmartPointer<vtkSelectionUpdateCallback> callback;
  {
    SampleRuns::Plot plot(SampleRuns::runs(3, 2));
    link = plot.container.getAnnotationLink();
    callback = stateOf(plot.container).selectionUpdateCallback;
    ASSERT_EQ(callback->Container, &plot.container);
    ASSERT_TRUE(link->HasObserver(vtkCommand::AnnotationChangedEvent, callback));
  }
  EXPECT_EQ(callback->Container, nullptr);
  EXPECT_FALSE(link->HasObserver(vtkCommand::AnnotationChangedEvent, callback));
  link->SetCurrentSelection(makeRowSelection({1}));
  callback->Execute(link, 0, nullptr);
}

TEST(SelectionLifetime, TheContainerMayOutliveEveryOtherHolderOfItsLink)
{
  auto plot = std::make_unique<SampleRuns::Plot>(SampleRuns::runs(3, 2));
  {
    vtkSmartPointer<vtkAnnotationLink> link = plot->container.getAnnotationLink();
    link->SetCurrentSelection(makeRowSelection({1}));
  }
  plot->container.annotationUpdate();
  EXPECT_EQ(SampleRuns::selectedRows(plot->container), Rows({1}));
  plot.reset();
}

TEST(SelectionLifetime, ACallbackWatchesAForeignLinkUntilItsContainerDies)
{
  vtkNew<vtkAnnotationLink> link;
  {
    SampleRuns::Plot plot(SampleRuns::runs(3, 2));
    link->AddObserver(vtkCommand::AnnotationChangedEvent,
                      stateOf(plot.container).selectionUpdateCallback);
    link->SetCurrentSelection(makeRowSelection({2}));
    EXPECT_EQ(SampleRuns::valuesOf(plot.container.getDerivedTables().at(2), "Complex: A"),
              std::vector<double>({10}));
  }
  link->SetCurrentSelection(makeRowSelection({0}));
}

TEST(SelectionLifetime, FlagsFollowEveryAnnouncedChange)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 2));
  for (vtkIdType row = 0; row < 6; ++row)
  {
    plot.container.getAnnotationLink()->SetCurrentSelection(makeRowSelection({row}));
    const auto flags = vtk::TakeSmartPointer(plot.container.getCurrentSelection());
    std::vector<double> expected(6, 0.0);
    expected[static_cast<std::size_t>(row)] = 1.0;
    EXPECT_EQ(SampleRuns::valuesOf(flags), expected) << row;
  }
}

TEST(SelectionLifetime, AContainerWithoutASceneReportsTheDrawingAndKeepsTheTables)
{
  PlotContainer container(nullptr);
  SampleRuns::load(container, SampleRuns::runs(3, 2));
  const CapturedOutput output(std::cout);
  container.getAnnotationLink()->SetCurrentSelection(makeRowSelection({0}));
  EXPECT_EQ(output.text(), "void PlotContainer::redraw(): invalid scene\n");
  EXPECT_EQ(container.getDerivedTables().size(), 8U);
}
