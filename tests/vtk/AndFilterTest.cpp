#include "vtk/vtkCombinedFilterAndSelectedRows.h"

#include <vtkDoubleArray.h>
#include <vtkExecutive.h>
#include <vtkFloatArray.h>

#include <gtest/gtest.h>

#include "SelectionBuilders.h"
#include "VtkTestSupport.h"

namespace
{
using Rows = std::vector<vtkIdType>;

class AndFilter : public ::testing::Test
{
protected:
  void SetUp() override
  {
    filter->SetInputData(0, table);
    filter->SetTimeColumnIndex(0);
    filter->SetParaCount(0);
    filter->SetStride(3);
  }

  void setTimes(const std::vector<double>& times)
  {
    table->RemoveColumnByName("Time");
    table->AddColumn(makeColumn<vtkDoubleArray>("Time", times));
    filter->SetTimeColumnIndex(1);
  }

  void select(const Rows& rows)
  {
    filter->SetInputData(1, makeRowSelection(rows));
    filter->Update();
  }

  Rows output(int port) { return idColumn(filter->GetOutput(port), "row"); }
  Rows marks(const char* name) { return idColumn(table, name); }

  vtkNew<vtkCombinedFilterAndSelectedRows> filter;
  vtkSmartPointer<vtkTable> table = makeThreeRuns();
  VtkErrors vtkOutput;
};
} // namespace

TEST_F(AndFilter, AcceptsRunsThatAreSelectedAtEverySelectedTime)
{
  select({0, 1, 4, 7});
  EXPECT_EQ(output(0), (Rows{0, 1}));
  EXPECT_EQ(output(1), (Rows{3, 4, 6, 7}));
  EXPECT_EQ(marks("vtkRemainderSelection"), (Rows{1, 1, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(marks("vtkReducedSelection"), (Rows{0, 0, 0, 0, 1, 0, 0, 1, 0}));
  EXPECT_EQ(marks("vtkComplementSelection"), (Rows{0, 0, 0, 1, 0, 0, 1, 0, 0}));
  EXPECT_EQ(numbers(filter->GetOutput(1), "Time"), (std::vector<double>{0, 1, 0, 1}));
}

TEST_F(AndFilter, AddsTheMarkersInAFixedOrder)
{
  select({0});
  ASSERT_EQ(table->GetNumberOfColumns(), 5);
  EXPECT_STREQ(table->GetColumnName(2), "vtkComplementSelection");
  EXPECT_STREQ(table->GetColumnName(3), "vtkReducedSelection");
  EXPECT_STREQ(table->GetColumnName(4), "vtkRemainderSelection");
}

TEST_F(AndFilter, ReplacesTheMarkersOfAnEarlierRun)
{
  select({0, 1, 4, 7});
  select({5});
  EXPECT_EQ(table->GetNumberOfColumns(), 5);
  EXPECT_EQ(marks("vtkRemainderSelection"), (Rows{0, 0, 0, 0, 0, 1, 0, 0, 0}));
  EXPECT_EQ(marks("vtkReducedSelection"), Rows(9, 0));
  EXPECT_EQ(marks("vtkComplementSelection"), (Rows{0, 0, 1, 0, 0, 0, 0, 0, 1}));
}

TEST_F(AndFilter, AcceptsNoRunWhenTheTimesHaveNoneInCommon)
{
  select({0, 4, 8});
  EXPECT_EQ(output(0), Rows());
  EXPECT_EQ(output(1), (Rows{0, 1, 2, 3, 4, 5, 6, 7, 8}));
  EXPECT_EQ(marks("vtkReducedSelection"), (Rows{1, 0, 0, 0, 1, 0, 0, 0, 1}));
}

TEST_F(AndFilter, DistributesARowOnceHoweverOftenItIsListed)
{
  filter->AddOriginalRowIdsArrayOn();
  select({1, 0, 1});
  EXPECT_EQ(output(0), (Rows{0, 1}));
  EXPECT_EQ(idColumn(filter->GetOutput(0), "vtkOriginalRowIds"), (Rows{0, 1}));
  EXPECT_EQ(idColumn(filter->GetOutput(1), "vtkOriginalRowIds"), (Rows{3, 4, 6, 7}));
}

TEST_F(AndFilter, WritesNothingWhenNothingIsSelected)
{
  filter->AddOriginalRowIdsArrayOn();
  select({});
  for (int port = 0; port < 2; ++port)
  {
    EXPECT_EQ(filter->GetOutput(port)->GetNumberOfRows(), 0);
    EXPECT_EQ(filter->GetOutput(port)->GetNumberOfColumns(), 3) << "with the row numbers";
  }
  EXPECT_EQ(table->GetNumberOfColumns(), 2);
  EXPECT_EQ(vtkOutput.text(), "");
}

TEST_F(AndFilter, WritesNothingForATimeColumnThatHoldsNoDoubles)
{
  table->AddColumn(makeColumn<vtkFloatArray>("float time", {0, 1, 2, 0, 1, 2, 0, 1, 2}));
  for (const vtkIdType column : {2, 70})
  {
    filter->SetTimeColumnIndex(column);
    select({0, 1});
    EXPECT_EQ(output(0), Rows());
    EXPECT_EQ(output(1), Rows());
    EXPECT_EQ(filter->GetOutput(1)->GetNumberOfColumns(), 3);
    EXPECT_EQ(table->GetNumberOfColumns(), 3);
  }
}

TEST_F(AndFilter, MatchesNoTimeThatIsNaN)
{
  setTimes({0, NaN, 2, 0, NaN, 2, 0, 1, NaN});
  select({0, 1, 8});
  EXPECT_EQ(output(0), (Rows{0, 1})) << "row 1 is a selected row of an accepted run";
  EXPECT_EQ(output(1), (Rows{3, 6, 8}));
  EXPECT_EQ(marks("vtkComplementSelection"), (Rows{0, 0, 0, 1, 0, 0, 1, 0, 0}));
  EXPECT_EQ(marks("vtkReducedSelection"), (Rows{0, 0, 0, 0, 0, 0, 0, 0, 1}));
}

TEST_F(AndFilter, WritesNothingWhenOnlyRowsWithoutTimeAreSelected)
{
  setTimes({0, NaN, 2, 0, 1, 2, 0, 1, 2});
  select({1});
  EXPECT_EQ(output(0), Rows());
  EXPECT_EQ(output(1), Rows());
  EXPECT_EQ(table->GetNumberOfColumns(), 2);
}

TEST_F(AndFilter, CountsAStrideBelowOneAsOne)
{
  filter->SetStride(1);
  select({0, 3, 4});
  const Rows selected = output(0);
  const Rows compared = output(1);
  EXPECT_EQ(compared, (Rows{0, 1, 3, 4, 6, 7})) << "no single row has both times";
  for (const vtkIdType stride : {0, -5})
  {
    filter->SetStride(stride);
    filter->Update();
    EXPECT_EQ(output(0), selected);
    EXPECT_EQ(output(1), compared);
  }
}

TEST_F(AndFilter, CountsAPartialLastRun)
{
  filter->SetStride(4);
  select({0, 8});
  EXPECT_EQ(marks("vtkReducedSelection"), (Rows{1, 0, 0, 0, 0, 0, 0, 0, 1}));
  select({8});
  EXPECT_EQ(output(0), (Rows{8}));
}

TEST_F(AndFilter, ReportsSettingsThatAreNotSet)
{
  filter->SetInputData(1, makeRowSelection({0}));
  filter->SetTimeColumnIndex(-1);
  filter->SetParaCount(-1);
  {
    const ErrorLog errors(filter);
    EXPECT_FALSE(filter->GetExecutive()->Update());
    EXPECT_EQ(onlyMessage(errors), expectedMessage(filter, 134, "TimeColumnIndex not set."));
  }
  filter->SetTimeColumnIndex(0);
  {
    const ErrorLog errors(filter);
    EXPECT_FALSE(filter->GetExecutive()->Update());
    EXPECT_EQ(onlyMessage(errors), expectedMessage(filter, 139, "ParaCount not set."));
  }
  EXPECT_EQ(table->GetNumberOfColumns(), 2);
  filter->SetParaCount(0);
  EXPECT_TRUE(filter->GetExecutive()->Update());
}

TEST_F(AndFilter, ChecksItsSettingsEvenWhenNoAnnotationContributes)
{
  filter->SetParaCount(-1);
  filter->SetInputData(2, makeLayers({makeAnnotation(nullptr, Says::No)}));
  const ErrorLog errors(filter);
  EXPECT_FALSE(filter->GetExecutive()->Update());
  EXPECT_EQ(onlyMessage(errors), expectedMessage(filter, 139, "ParaCount not set."));
}

TEST_F(AndFilter, HoldsItsProperties)
{
  vtkNew<vtkCombinedFilterAndSelectedRows> fresh;
  EXPECT_EQ(fresh->GetParaCount(), -1);
  EXPECT_EQ(fresh->GetStride(), 1);
  EXPECT_TRUE(fresh->ParameterColumns.empty());
  auto before = fresh->GetMTime();
  fresh->SetParaCount(-1);
  fresh->SetStride(1);
  EXPECT_EQ(fresh->GetMTime(), before);
  fresh->SetParaCount(2);
  EXPECT_GT(fresh->GetMTime(), before);
  before = fresh->GetMTime();
  fresh->SetStride(5);
  EXPECT_GT(fresh->GetMTime(), before);
}

TEST_F(AndFilter, DoesNotReadItsParameterColumns)
{
  select({0, 1, 4, 7});
  const Rows selected = output(0);
  filter->ParameterColumns = {-3, 700};
  filter->Modified();
  filter->Update();
  EXPECT_EQ(output(0), selected);
}
