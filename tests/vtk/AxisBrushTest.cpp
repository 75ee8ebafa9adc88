#include "vtk/AxisBrush.h"

#include <vtkDoubleArray.h>
#include <vtkNew.h>
#include <vtkTable.h>

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

using namespace Talmesh;

namespace
{

using Rows = std::vector<bool>;

/// A table of the columns a and b, in units of any size.
class AxisBrush : public ::testing::TestWithParam<std::pair<double, double>>
{
protected:
  AxisBrush()
  {
    add("a", {1, 2, 3, NAN, 5});
    add("b", {9, 8, 7, 6, INFINITY});
  }

  double value(double number) const { return GetParam().first + GetParam().second * number; }

  void add(const char* name, const std::vector<double>& numbers)
  {
    vtkNew<vtkDoubleArray> column;
    column->SetName(name);
    for (const double number : numbers)
      column->InsertNextValue(value(number));
    table->AddColumn(column);
  }

  SelectionGesture::Brush brush(const char* column, double low, double high) const
  {
    return {column, value(low), value(high), 0.1 * GetParam().second};
  }

  vtkNew<vtkTable> table;
};

} // namespace

TEST_P(AxisBrush, MeansTheRowsWithinAllOfThem)
{
  EXPECT_EQ(rowsWithin(table, {brush("a", 1.5, 6)}), (Rows{false, true, true, false, true}));
  EXPECT_EQ(rowsWithin(table, {brush("a", 1.5, 6), brush("b", 7.5, 9)}),
            (Rows{false, true, false, false, false}));
  EXPECT_EQ(rowsWithin(table, {brush("gone", 0, 9)}), Rows(5, false));
  EXPECT_EQ(rowsWithin(table, {}), Rows(5, false));
}

TEST_P(AxisBrush, TellsASelectionByTheRowsThatLieWellWithin)
{
  const AxisBrushes both = {brush("a", 1.5, 6), brush("b", 5, 9)};
  EXPECT_TRUE(areWithin(table, both, {false, true, true, false, false}));
  EXPECT_FALSE(areWithin(table, both, {true, true, true, false, false})) << "one too many";
  EXPECT_FALSE(areWithin(table, both, {false, true, false, false, false})) << "one is missing";
  EXPECT_FALSE(areWithin(table, both, {false, true, true, true, false})) << "without a number";
  // Half a pixel from an end, words that are rounded may mean either.
  const AxisBrushes close = {brush("a", 2.05, 6)};
  EXPECT_TRUE(areWithin(table, close, {false, true, true, false, true}));
  EXPECT_TRUE(areWithin(table, close, {false, false, true, false, true}));
}

INSTANTIATE_TEST_SUITE_P(Units, AxisBrush,
                         ::testing::Values(std::pair{0.0, 1.0}, std::pair{1e6, 1e-3},
                                           std::pair{-3.0, 1e12}));
