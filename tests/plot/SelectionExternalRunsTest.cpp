#include "external/ParameterSelection.h"
#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotState.h"
#include "support/SampleRuns.h"
#include "vtk/VtkCompat.h"

#include <vtkDoubleArray.h>
#include <vtkFloatArray.h>
#include <vtkIntArray.h>
#include <vtkObjectFactory.h>
#include <vtkTable.h>

#include <gtest/gtest.h>

#include <set>
#include <stdexcept>
#include <string>
#include <vector>

using SampleRuns::valuesOf;

namespace
{

using Values = std::vector<double>;

void setExternal(PlotContainer& container, const std::set<int>& runs)
{
  ParameterSelection selection;
  selection.runs = runs;
  container.setExternalSelection(&selection);
}

Values firstRowsOf(const SampleRuns::Shape& shape, const std::set<int>& runs)
{
  SampleRuns::Plot plot(shape);
  setExternal(plot.container, runs);
  return valuesOf(plot.container.getDerivedTables().at(0), "Complex: A");
}

/// A column whose values cannot be read while `broken` is set.
/// Not of doubles, which are read where they lie.
class UnreadableColumn : public vtkFloatArray
{
public:
  static UnreadableColumn* New();
  TALMESH_VTK_TYPE(UnreadableColumn, vtkFloatArray);
  double GetComponent(vtkIdType row, int component) override
  {
    if (broken)
      throw std::runtime_error("unreadable");
    return this->Superclass::GetComponent(row, component);
  }

  static bool broken;
};

bool UnreadableColumn::broken = false;
vtkStandardNewMacro(UnreadableColumn);

} // namespace

TEST(ExternalRuns, BecomeATableOfTheirFirstRows)
{
  SampleRuns::Plot plot(SampleRuns::indexedRuns({2, 3, 5, 7}, 4));
  setExternal(plot.container, {3, 7});
  vtkTable* runs = plot.container.getDerivedTables().at(0);
  vtkTable* all = plot.container.getTable();
  ASSERT_EQ(runs->GetNumberOfColumns(), all->GetNumberOfColumns());
  ASSERT_EQ(runs->GetNumberOfRows(), 2);
  for (vtkIdType column = 0; column < all->GetNumberOfColumns(); ++column)
  {
    EXPECT_STREQ(runs->GetColumnName(column), all->GetColumnName(column));
    EXPECT_EQ(runs->GetColumn(column)->GetDataType(), all->GetColumn(column)->GetDataType());
    EXPECT_EQ(runs->GetValue(0, column), all->GetValue(4, column));
    EXPECT_EQ(runs->GetValue(1, column), all->GetValue(12, column));
  }
}

TEST(ExternalRuns, AreRankedInTheSlotBehindTheirTable)
{
  SampleRuns::Plot plot(SampleRuns::runs(5, 2));
  stateOf(plot.container).derivedTables.resize(2);
  setExternal(plot.container, {1, 2});
  const auto& tables = plot.container.getDerivedTables();
  ASSERT_EQ(tables.size(), 5U);
  EXPECT_EQ(valuesOf(tables[2], "Complex: A"), Values({10, 20}));
  EXPECT_EQ(valuesOf(tables[3], "Sorted Parameter: k1"), Values({2, 3}));
  EXPECT_EQ(valuesOf(tables[4], "Density of Parameter: k1").size(), 200U);
}

TEST(ExternalRuns, AreAppendedToAListOfAnyLength)
{
  SampleRuns::Plot plot(SampleRuns::runs(5, 2));
  setExternal(plot.container, {1});
  setExternal(plot.container, {2, 3});
  const auto& tables = plot.container.getDerivedTables();
  ASSERT_EQ(tables.size(), 6U);
  EXPECT_EQ(valuesOf(tables[0], "Complex: A"), Values({10}));
  EXPECT_EQ(valuesOf(tables[3], "Complex: A"), Values({20, 30}));
  EXPECT_EQ(valuesOf(tables[4], "Sorted Parameter: k1"), Values({3, 4}));
}

TEST(ExternalRuns, EndWithTheFirstOneThatTheTableDoesNotHave)
{
  EXPECT_EQ(firstRowsOf(SampleRuns::indexedRuns({0, 1, 3, 4}, 2), {0, 2, 3, 4}), Values({0}));
  EXPECT_EQ(firstRowsOf(SampleRuns::indexedRuns({0, 1, 3, 4}, 2), {-1, 0}), Values());
}

TEST(ExternalRuns, AreSoughtDownwardsOnly)
{
  EXPECT_EQ(firstRowsOf(SampleRuns::indexedRuns({5, 1, 2}, 1), {1, 2, 5}), Values({10, 20}));
}

TEST(ExternalRuns, MayBeNone)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 2));
  setExternal(plot.container, {});
  ASSERT_EQ(plot.container.getDerivedTables().size(), 3U);
  EXPECT_EQ(plot.container.getDerivedTables()[0]->GetNumberOfRows(), 0);
}

TEST(ExternalRuns, AreFoundInFrontOfTheParametersWithoutAnIndex)
{
  SampleRuns::Plot plot(SampleRuns::indexedRuns({2, 3, 5}, 2));
  plot.container.getTable()->GetColumn(SampleRuns::runIndexColumn)->SetName("run");
  setExternal(plot.container, {5});
  EXPECT_EQ(valuesOf(plot.container.getDerivedTables().at(0), "Complex: A"), Values({20}));
}

TEST(ExternalRuns, ChangeNothingWithoutAnyRunIndex)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 2));
  plot.container.getTable()->GetColumn(SampleRuns::runIndexColumn)->SetName("run");
  const unsigned long before = stateOf(plot.container).drawings;
  for (const std::vector<int>& parameters : {std::vector<int>{}, {0}, {99}})
  {
    plot.container.getMetaData()->parameterColumns = parameters;
    setExternal(plot.container, {1});
  }
  EXPECT_EQ(plot.container.getDerivedTables().size(), 0U);
  EXPECT_EQ(stateOf(plot.container).drawings, before);
}

TEST(ExternalRuns, ChangeNothingWithARunIndexThatIsNotDouble)
{
  SampleRuns::Plot plot(SampleRuns::runs(2, 1));
  vtkNew<vtkIntArray> index;
  index->SetName(": Run Index");
  index->InsertNextValue(0);
  index->InsertNextValue(1);
  plot.container.getTable()->RemoveColumnByName(": Run Index");
  plot.container.getTable()->AddColumn(index);
  setExternal(plot.container, {1});
  EXPECT_EQ(plot.container.getDerivedTables().size(), 0U);
}

TEST(ExternalRuns, ChangeNothingWithoutRowsPerRunOrRecord)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 2));
  plot.container.getMetaData()->blockSignals(true);
  plot.container.getMetaData()->setStride(0);
  plot.container.getMetaData()->blockSignals(false);
  setExternal(plot.container, {1});
  plot.container.setExternalSelection(nullptr);
  EXPECT_EQ(plot.container.getDerivedTables().size(), 0U);
}

TEST(ExternalRuns, AreDrawnAndLeaveTheSelectionAsItIs)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 2));
  const unsigned long before = stateOf(plot.container).drawings;
  setExternal(plot.container, {1});
  EXPECT_EQ(stateOf(plot.container).drawings, before + 1);
  EXPECT_TRUE(plot.scene->GetDirty());
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), std::set<vtkIdType>());
}

TEST(ExternalRuns, ChangeNothingWhenTheyCannotBeRanked)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 2));
  vtkNew<UnreadableColumn> parameter;
  parameter->DeepCopy(plot.container.getTable()->GetColumnByName("Parameter: k1"));
  plot.container.getTable()->AddColumn(parameter);
  ASSERT_EQ(plot.container.getTable()->GetColumnByName("Parameter: k1"), parameter.Get());
  setExternal(plot.container, {1});
  const auto before = plot.container.getDerivedTables();
  ASSERT_EQ(before.size(), 3U);
  const unsigned long drawings = stateOf(plot.container).drawings;
  UnreadableColumn::broken = true;
  EXPECT_THROW(setExternal(plot.container, {2}), std::runtime_error);
  UnreadableColumn::broken = false;
  EXPECT_EQ(plot.container.getDerivedTables(), before);
  EXPECT_EQ(stateOf(plot.container).drawings, drawings);
  EXPECT_FALSE(plot.container.getMetaData()->signalsBlocked());
  setExternal(plot.container, {2});
  EXPECT_EQ(plot.container.getDerivedTables().size(), 6U);
}
