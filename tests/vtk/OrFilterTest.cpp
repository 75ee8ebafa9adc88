#include "vtk/vtkCombinedFilterOrSelectedRows.h"

#include <vtkExecutive.h>
#include <vtkFloatArray.h>
#include <vtkStringArray.h>

#include <gtest/gtest.h>

#include "SelectionBuilders.h"
#include "VtkTestSupport.h"

namespace
{
using Rows = std::vector<vtkIdType>;

class OrFilter : public ::testing::Test
{
protected:
  void setTimes(const std::vector<double>& times)
  {
    table = makeTable({{"Time", times}});
    vtkNew<vtkIdTypeArray> rows;
    rows->SetName("row");
    for (std::size_t row = 0; row < times.size(); ++row)
      rows->InsertNextValue(static_cast<vtkIdType>(row));
    table->AddColumn(rows);
    filter->SetInputData(0, table);
    filter->SetTimeColumnIndex(0);
  }

  void select(const Rows& rows)
  {
    filter->SetInputData(1, makeRowSelection(rows));
    filter->Update();
  }

  Rows output(int port) { return idColumn(filter->GetOutput(port), "row"); }

  vtkNew<vtkCombinedFilterOrSelectedRows> filter;
  vtkSmartPointer<vtkTable> table;
};
} // namespace

TEST_F(OrFilter, ComparesWithUnselectedRowsInTheSelectedTimeRange)
{
  setTimes({0, 1, 2, 3, 4, 5, 6, 0, 1, 2, 3, 4, 5, 6});
  select({2, 5});
  EXPECT_EQ(output(0), (Rows{2, 5}));
  EXPECT_EQ(output(1), (Rows{3, 4, 9, 10, 11, 12})) << "times 2 to 5 inclusive";
  EXPECT_EQ(idColumn(table, "vtkComplementSelection"),
            (Rows{0, 0, 0, 1, 1, 0, 0, 0, 0, 1, 1, 1, 1, 0}));
  EXPECT_EQ(table->GetColumnByName("vtkReducedSelection"), nullptr);
  EXPECT_EQ(table->GetColumnByName("vtkRemainderSelection"), nullptr);
}

TEST_F(OrFilter, KeepsListOrderAndRepeatedRows)
{
  setTimes({0, 1, 2, 3});
  filter->AddOriginalRowIdsArrayOn();
  select({3, 1, 3});
  EXPECT_EQ(output(0), (Rows{3, 1, 3}));
  EXPECT_EQ(idColumn(filter->GetOutput(0), "vtkOriginalRowIds"), (Rows{3, 1, 3}));
  EXPECT_EQ(output(1), (Rows{2}));
  EXPECT_EQ(idColumn(filter->GetOutput(1), "vtkOriginalRowIds"), (Rows{2}));
}

TEST_F(OrFilter, ComparesWithNothingWhenNothingIsSelected)
{
  setTimes({0, 1, 2});
  select({});
  EXPECT_EQ(filter->GetOutput(0)->GetNumberOfColumns(), 2);
  EXPECT_EQ(output(0), Rows());
  EXPECT_EQ(output(1), Rows());
  EXPECT_EQ(idColumn(table, "vtkComplementSelection"), (Rows{0, 0, 0}));
}

TEST_F(OrFilter, MatchesNoTimeThatIsNaN)
{
  setTimes({NaN, 1, NaN, 1, 2, 3});
  select({0, 1, 4});
  EXPECT_EQ(output(0), (Rows{0, 1, 4}));
  EXPECT_EQ(output(1), (Rows{3}));
  select({0});
  EXPECT_EQ(output(0), (Rows{0}));
  EXPECT_EQ(output(1), Rows());
}

TEST_F(OrFilter, ReadsTimesOfAnyNumericType)
{
  setTimes({0, 1, 2, 3});
  table->AddColumn(makeColumn<vtkFloatArray>("float time", {5, 6, 6, 7}));
  filter->SetTimeColumnIndex(2);
  select({1});
  EXPECT_EQ(output(1), (Rows{2}));
}

TEST_F(OrFilter, ComparesWithNothingWithoutAUsableTimeColumn)
{
  setTimes({0, 1, 2, 3});
  vtkNew<vtkStringArray> texts;
  texts->SetName("texts");
  texts->SetNumberOfValues(4);
  table->AddColumn(texts);
  for (const vtkIdType column : {2, 70})
  {
    filter->SetTimeColumnIndex(column);
    select({1});
    EXPECT_EQ(output(0), (Rows{1}));
    EXPECT_EQ(output(1), Rows());
    EXPECT_EQ(idColumn(table, "vtkComplementSelection"), (Rows{0, 0, 0, 0}));
  }
}

TEST_F(OrFilter, ReportsAMissingTimeColumnIndex)
{
  setTimes({0, 1});
  filter->SetTimeColumnIndex(-1);
  filter->SetInputData(1, makeRowSelection({0}));
  const ErrorLog errors(filter);
  VtkErrors vtkOutput;
  EXPECT_FALSE(filter->GetExecutive()->Update());
  const auto message = onlyMessage(errors);
  EXPECT_NE(message.find("): TimeColumnIndex not set.\n\n"), std::string::npos) << message;
  EXPECT_EQ(table->GetNumberOfColumns(), 2);
}
