#include "support/VtkErrors.h"
#include "vtk/PictureStore.h"
#include "vtk/vtkPlotLineSet.h"

#include <vtkAxis.h>
#include <vtkDoubleArray.h>
#include <vtkPlotPoints.h>
#include <vtkPoints2D.h>
#include <vtkWeakPointer.h>

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <memory>

#include "VtkTestSupport.h"

/// Points that items hand to items that come after them.
namespace
{
constexpr int rows = 12000;
using Item = Exposed<vtkPlotLineSet>;

class SharedPoints : public ::testing::Test
{
protected:
  static vtkSmartPointer<vtkTable> waves(double height, bool gap = false, int count = rows)
  {
    std::vector<double> x;
    std::vector<double> y;
    for (int i = 0; i < count; ++i)
    {
      x.push_back(1 + i);
      y.push_back(height + std::sin(0.01 * i));
    }
    if (gap)
      y[7] = NaN;
    return makeTable({{"x", x}, {"y", y}});
  }

  vtkSmartPointer<Item> show(vtkTable* table)
  {
    auto item = makeExposed<Item>();
    item->SetPictureStore(store);
    item->SetInputData(table, "x", "y");
    item->SetXAxis(x);
    item->SetYAxis(y);
    item->Update();
    return item;
  }

  static Point pointOf(Item* item, vtkIdType i)
  {
    const auto* values = static_cast<float*>(item->Points->GetVoidPointer(0));
    return {values[2 * i], values[2 * i + 1]};
  }

  static std::array<double, 4> boundsOf(vtkPlot* item)
  {
    std::array<double, 4> bounds{};
    item->GetBounds(bounds.data());
    return bounds;
  }

  static std::array<double, 4> inputBoundsOf(vtkPlot* item)
  {
    std::array<double, 4> bounds{};
    item->GetUnscaledInputBounds(bounds.data());
    return bounds;
  }

  /// What VTK's own item says of the same data.
  void expectBoundsOfVtk(Item* item)
  {
    vtkNew<vtkPlotPoints> reference;
    reference->SetInputData(item->GetInput(), "x", "y");
    reference->SetXAxis(x);
    reference->SetYAxis(y);
    reference->SetShiftScale(item->GetShiftScale());
    reference->Update();
    EXPECT_EQ(boundsOf(item), boundsOf(reference));
    EXPECT_EQ(inputBoundsOf(item), inputBoundsOf(reference));
  }

  std::shared_ptr<Talmesh::PictureStore> store = std::make_shared<Talmesh::PictureStore>();
  vtkNew<vtkAxis> x;
  vtkNew<vtkAxis> y;
};
} // namespace

TEST_F(SharedPoints, AreTakenByTheNextItemOfTheSameData)
{
  auto first = show(waves(3, true));
  vtkPoints2D* const points = first->Points;
  vtkIdTypeArray* const bad = first->BadPoints;
  const auto beside = show(waves(3, true));
  EXPECT_EQ(beside->Points, points);
  first = nullptr;
  const auto second = show(waves(3, true));
  EXPECT_EQ(second->Points, points);
  ASSERT_EQ(second->BadPoints, bad);
  EXPECT_EQ(second->BadPoints->GetNumberOfValues(), 1);
  EXPECT_EQ(pointOf(second, 2), Point(3.0F, static_cast<float>(3 + std::sin(0.02))));
}

TEST_F(SharedPoints, AreOthersOfOtherDataScalesAndFewRows)
{
  const auto first = show(waves(3));
  EXPECT_NE(show(waves(4))->Points, first->Points);
  EXPECT_NE(show(waves(3, true))->Points, first->Points);

  y->SetRange(1.0, 10.0);
  y->SetLogScale(true);
  y->Update();
  const auto logarithmic = show(waves(3));
  ASSERT_TRUE(y->GetLogScaleActive());
  EXPECT_NE(logarithmic->Points, first->Points);
  EXPECT_FLOAT_EQ(pointOf(logarithmic, 0).second, std::log10(3.0F));

  const auto few = show(waves(3, false, 100));
  EXPECT_NE(show(waves(3, false, 100))->Points, few->Points);
}

TEST_F(SharedPoints, AreNoLogarithmsForAnItemWithoutBothAxes)
{
  y->SetRange(1.0, 10.0);
  y->SetLogScale(true);
  y->Update();
  const auto logarithmic = show(waves(3));
  auto plain = makeExposed<Item>();
  plain->SetPictureStore(store);
  plain->SetInputData(waves(3), "x", "y");
  plain->SetYAxis(y);
  plain->Update();
  EXPECT_NE(plain->Points, logarithmic->Points);
  EXPECT_EQ(pointOf(plain, 0).second, 3.0F);
}

/// VTK refuses such columns, and leaves an item the points that it had before.
TEST_F(SharedPoints, AreNotThoseOfColumnsOfDifferentLengths)
{
  const auto uneven = []
  {
    const auto table = waves(3);
    vtkDoubleArray::SafeDownCast(table->GetColumnByName("y"))->InsertNextValue(5.0);
    return table;
  };
  const VtkErrors reports;
  const auto first = show(waves(3, false, 100));
  first->SetInputData(uneven(), "x", "y");
  first->Update();
  ASSERT_NE(first->Points, nullptr);
  EXPECT_EQ(show(uneven())->Points, nullptr);
}

TEST_F(SharedPoints, StayAsTheyAreWhenOneOfTheItemsGetsOtherData)
{
  const auto table = waves(3);
  const auto first = show(table);
  const auto second = show(waves(3));
  ASSERT_EQ(first->Points, second->Points);
  auto* column = vtkDoubleArray::SafeDownCast(table->GetColumnByName("y"));
  column->SetValue(5, 70);
  column->SetValue(6, NaN);
  column->Modified();
  first->Update();
  EXPECT_EQ(pointOf(first, 5).second, 70.0F);
  ASSERT_NE(first->BadPoints, nullptr);
  EXPECT_EQ(pointOf(second, 5).second, static_cast<float>(3 + std::sin(0.05)));
  EXPECT_EQ(second->BadPoints, nullptr);
  expectBoundsOfVtk(first);
  expectBoundsOfVtk(second);
}

TEST_F(SharedPoints, HaveTheBoundsOfTheirData)
{
  for (const bool gap : {false, true})
  {
    expectBoundsOfVtk(show(waves(3, gap)));
    expectBoundsOfVtk(show(waves(3, gap)));
  }
  const auto item = show(waves(5));
  item->SetShiftScale({1, 2, 3, 4});
  item->Update();
  expectBoundsOfVtk(item);
  x->SetRange(1.0, 10.0);
  x->SetLogScale(true);
  x->Update();
  item->Update();
  EXPECT_DOUBLE_EQ(boundsOf(item)[1], std::log10(rows));
  expectBoundsOfVtk(item);
}

TEST_F(SharedPoints, OfNoItemAreKeptUpToTheSizeOfThose)
{
  vtkWeakPointer<vtkPoints2D> small = show(waves(1))->Points;
  EXPECT_NE(small, nullptr) << "for the next item of these data";
  const auto shown = show(waves(2));
  EXPECT_NE(small, nullptr);
  vtkWeakPointer<vtkPoints2D> large = show(waves(3, false, 3 * rows))->Points;
  EXPECT_NE(large, nullptr);
  EXPECT_NE(small, nullptr);
  show(waves(4));
  EXPECT_EQ(large, nullptr);
  show(waves(5));
  EXPECT_EQ(small, nullptr);
  EXPECT_EQ(show(waves(2))->Points, shown->Points) << "that an item has";
}
