#include "vtk/KeptMemory.h"

#include <vtkDoubleArray.h>
#include <vtkIntArray.h>
#include <vtkNew.h>
#include <vtkSmartPointer.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

using namespace Talmesh;

namespace
{
constexpr vtkIdType large = 200000;

vtkSmartPointer<vtkDoubleArray> columnOf(vtkIdType rows, double value)
{
  auto column = vtkSmartPointer<vtkDoubleArray>::New();
  giveRoom(column, rows);
  std::fill_n(column->GetPointer(0), column->GetNumberOfValues(), value);
  return column;
}

bool hasOnly(vtkDoubleArray* column, double value)
{
  const double* const values = column->GetPointer(0);
  return std::count(values, values + column->GetNumberOfValues(), value) ==
         column->GetNumberOfValues();
}
} // namespace

TEST(KeptMemory, GoesFromOneColumnToTheNext)
{
  const KeptMemory kept;
  vtkSmartPointer<vtkDoubleArray> first = columnOf(large, 1.0);
  const double* const place = first->GetPointer(0);
  first = nullptr;
  const auto second = columnOf(large - 1000, 2.0);
  EXPECT_EQ(second->GetPointer(0), place);
  EXPECT_EQ(second->GetNumberOfTuples(), large - 1000);
}

TEST(KeptMemory, StaysWithAColumnThatIsHeld)
{
  const KeptMemory kept;
  const auto first = columnOf(large, 1.0);
  const auto second = columnOf(large, 2.0);
  const auto third = columnOf(large, 3.0);
  EXPECT_TRUE(hasOnly(first, 1.0));
  EXPECT_TRUE(hasOnly(second, 2.0));
  EXPECT_TRUE(hasOnly(third, 3.0));
}

TEST(KeptMemory, IsNotHeldByAColumnThatNeedsLittleOfIt)
{
  const KeptMemory kept;
  vtkSmartPointer<vtkDoubleArray> first = columnOf(4 * large, 1.0);
  first = nullptr;
  const auto second = columnOf(large, 2.0);
  EXPECT_EQ(second->GetSize(), large);
  EXPECT_TRUE(hasOnly(second, 2.0));
}

TEST(KeptMemory, OutlivesWhoeverKeepsIt)
{
  std::optional<KeptMemory> kept(std::in_place);
  vtkSmartPointer<vtkDoubleArray> first = columnOf(large, 1.0);
  columnOf(large, 2.0);
  kept.reset();
  EXPECT_TRUE(hasOnly(first, 1.0));
  first = nullptr;
  EXPECT_TRUE(hasOnly(columnOf(large, 3.0), 3.0));
}

TEST(KeptMemory, LetsColumnsGrowAndShrink)
{
  const KeptMemory kept;
  const auto grown = columnOf(large, 1.0);
  for (int i = 0; i < 10; ++i)
    grown->InsertNextValue(1.0);
  const auto shrunk = columnOf(large, 2.0);
  shrunk->SetNumberOfTuples(10);
  shrunk->Squeeze();
  const auto emptied = columnOf(large, 3.0);
  emptied->Initialize();
  emptied->InsertNextValue(3.0);
  const auto others = columnOf(large, 4.0);
  EXPECT_EQ(grown->GetNumberOfValues(), large + 10);
  EXPECT_TRUE(hasOnly(grown, 1.0));
  EXPECT_TRUE(hasOnly(shrunk, 2.0));
  EXPECT_TRUE(hasOnly(emptied, 3.0));
  EXPECT_TRUE(hasOnly(others, 4.0));
}

TEST(KeptMemory, HasRoomForAllComponents)
{
  vtkNew<vtkIntArray> pairs;
  pairs->SetNumberOfComponents(2);
  giveRoom(pairs, large);
  EXPECT_EQ(pairs->GetNumberOfTuples(), large);
  vtkNew<vtkIntArray> few;
  few->SetNumberOfComponents(2);
  giveRoom(few, 3);
  EXPECT_EQ(few->GetNumberOfTuples(), 3);
}
