#include "external/vtkPrepareKMeansTable.h"

#include <vtkDoubleArray.h>
#include <vtkIntArray.h>
#include <vtkNew.h>
#include <vtkStringArray.h>
#include <vtkTable.h>

#include <gtest/gtest.h>

#include <limits>
#include <sstream>
#include <string>
#include <vector>

namespace
{

// "value" counts 0, 1, 2, ...; "whole" holds its tens as integers; "text" the row in words.
class PrepareKMeansTable : public testing::Test
{
protected:
  void fill(int rows)
  {
    vtkNew<vtkDoubleArray> value;
    vtkNew<vtkIntArray> whole;
    vtkNew<vtkStringArray> text;
    value->SetName("value");
    whole->SetName("whole");
    text->SetName("text");
    for (int row = 0; row < rows; ++row)
    {
      value->InsertNextValue(row);
      whole->InsertNextValue(10 * row);
      text->InsertNextValue("row " + std::to_string(row));
    }
    table->AddColumn(value);
    table->AddColumn(whole);
    table->AddColumn(text);
  }

  vtkTable* prepare(const char* column, int stride)
  {
    filter->SetInputData(table);
    filter->SetInputArrayToProcess(0, 0, 0, vtkDataObject::FIELD_ASSOCIATION_ROWS, column);
    filter->SetStride(stride);
    filter->Update();
    return filter->GetOutput();
  }

  void expectEmpty(vtkTable* output)
  {
    EXPECT_EQ(output->GetNumberOfColumns(), 0);
    EXPECT_EQ(output->GetNumberOfRows(), 0);
  }

  vtkNew<vtkTable> table;
  vtkNew<vtkPrepareKMeansTable> filter;
};

} // namespace

TEST_F(PrepareKMeansTable, MakesEachRunARow)
{
  fill(6);
  vtkTable* output = prepare("value", 3);
  ASSERT_EQ(output->GetNumberOfColumns(), 3);
  ASSERT_EQ(output->GetNumberOfRows(), 2);
  for (int run = 0; run < 2; ++run)
    for (int position = 0; position < 3; ++position)
      EXPECT_EQ(output->GetValue(run, position).ToDouble(), run * 3 + position);
}

TEST_F(PrepareKMeansTable, LeavesThePartialRunOut)
{
  fill(8);
  vtkTable* output = prepare("value", 3);
  ASSERT_EQ(output->GetNumberOfColumns(), 3);
  ASSERT_EQ(output->GetNumberOfRows(), 2);
  EXPECT_EQ(output->GetValue(1, 2).ToDouble(), 5.0);
}

TEST_F(PrepareKMeansTable, MakesDoublesOfAnyNumericColumn)
{
  fill(4);
  vtkTable* output = prepare("whole", 2);
  ASSERT_EQ(output->GetNumberOfColumns(), 2);
  auto* column = vtkDoubleArray::SafeDownCast(output->GetColumn(1));
  ASSERT_NE(column, nullptr);
  EXPECT_EQ(column->GetValue(0), 10.0);
  EXPECT_EQ(column->GetValue(1), 30.0);
}

TEST_F(PrepareKMeansTable, TakesTheFirstOfSeveralComponents)
{
  vtkNew<vtkDoubleArray> pairs;
  pairs->SetName("pairs");
  pairs->SetNumberOfComponents(2);
  for (double value : {1.0, 2.0})
    pairs->InsertNextTuple2(value, -value);
  table->AddColumn(pairs);
  vtkTable* output = prepare("pairs", 2);
  ASSERT_EQ(output->GetNumberOfRows(), 1);
  EXPECT_EQ(output->GetValue(0, 0).ToDouble(), 1.0);
  EXPECT_EQ(output->GetValue(0, 1).ToDouble(), 2.0);
}

TEST_F(PrepareKMeansTable, NameOrderIsPositionOrder)
{
  fill(202);
  for (int stride : {1, 9, 10, 11, 100, 101})
  {
    vtkTable* output = prepare("value", stride);
    ASSERT_EQ(output->GetNumberOfColumns(), stride);
    for (int position = 1; position < stride; ++position)
      EXPECT_LT(std::string(output->GetColumnName(position - 1)),
                std::string(output->GetColumnName(position)));
  }
}

TEST_F(PrepareKMeansTable, NamesArePaddedPositions)
{
  fill(11);
  EXPECT_STREQ(prepare("value", 10)->GetColumnName(9), "9");
  EXPECT_STREQ(prepare("value", 11)->GetColumnName(0), "00");
  EXPECT_STREQ(prepare("value", 11)->GetColumnName(10), "10");
}

TEST_F(PrepareKMeansTable, StrideOneMakesOneColumn)
{
  fill(3);
  vtkTable* output = prepare("value", 1);
  EXPECT_EQ(output->GetNumberOfColumns(), 1);
  EXPECT_EQ(output->GetNumberOfRows(), 3);
}

TEST_F(PrepareKMeansTable, KeepsValuesThatAreNotFinite)
{
  fill(2);
  const double infinity = std::numeric_limits<double>::infinity();
  table->SetValueByName(1, "value", infinity);
  EXPECT_EQ(prepare("value", 2)->GetValue(0, 1).ToDouble(), infinity);
}

TEST_F(PrepareKMeansTable, FollowsAChangeOfStride)
{
  fill(6);
  EXPECT_EQ(prepare("value", 2)->GetNumberOfRows(), 3);
  EXPECT_EQ(prepare("value", 3)->GetNumberOfRows(), 2);
  expectEmpty(prepare("value", 0));
  EXPECT_EQ(prepare("value", 2)->GetNumberOfColumns(), 2);
}

TEST_F(PrepareKMeansTable, SettingTheSameStrideIsNoModification)
{
  filter->SetStride(5);
  const vtkMTimeType before = filter->GetMTime();
  filter->SetStride(5);
  EXPECT_EQ(filter->GetMTime(), before);
  filter->SetStride(6);
  EXPECT_GT(filter->GetMTime(), before);
}

TEST_F(PrepareKMeansTable, IsEmptyWithoutTheColumn)
{
  fill(4);
  expectEmpty(prepare("no such column", 2));
}

TEST_F(PrepareKMeansTable, IsEmptyForAColumnOfText)
{
  fill(4);
  expectEmpty(prepare("text", 2));
}

TEST_F(PrepareKMeansTable, IsEmptyWhenNoColumnWasChosen)
{
  fill(4);
  filter->SetInputData(table);
  filter->Update();
  expectEmpty(filter->GetOutput());
}

TEST_F(PrepareKMeansTable, IsEmptyForAStrideBelowOne)
{
  fill(4);
  expectEmpty(prepare("value", 0));
  expectEmpty(prepare("value", -1));
  expectEmpty(prepare("value", std::numeric_limits<int>::min()));
}

TEST_F(PrepareKMeansTable, IsEmptyWithoutAWholeRun)
{
  fill(4);
  expectEmpty(prepare("value", 5));
  expectEmpty(prepare("value", std::numeric_limits<int>::max()));
}

TEST_F(PrepareKMeansTable, IsEmptyForEmptyTables)
{
  expectEmpty(prepare("value", 1));
  fill(0);
  expectEmpty(prepare("value", 1));
}

TEST_F(PrepareKMeansTable, PrintsItsStride)
{
  filter->SetStride(12);
  std::ostringstream printed;
  filter->Print(printed);
  EXPECT_NE(printed.str().find("Stride: 12\n"), std::string::npos);
  EXPECT_STREQ(filter->GetClassName(), "vtkPrepareKMeansTable");
  EXPECT_TRUE(filter->IsA("vtkTableAlgorithm"));
}
