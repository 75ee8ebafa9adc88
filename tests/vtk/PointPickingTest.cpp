#include "vtk/PointCloud.h"
#include "vtk/vtkGuardedAxis.h"
#include "vtk/vtkPlotInvisiblePoints.h"
#include "vtk/vtkPlotLineSet.h"

#include <vtkContextPolygon.h>
#include <vtkPoints2D.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#include "VtkTestSupport.h"

namespace
{
using Ids = std::vector<vtkIdType>;

Ids idsOf(vtkIdTypeArray* list)
{
  return {list->GetPointer(0), list->GetPointer(0) + list->GetNumberOfValues()};
}

/// More points than one thread takes at once, in no order, some of them equal, some without y.
constexpr int pointCount = 150000;

std::vector<double> someNumbers(unsigned seed)
{
  std::mt19937 random(seed);
  std::vector<double> numbers(pointCount);
  for (double& number : numbers)
    number = 1.0 + (random() % 1000) * 0.01;
  return numbers;
}

std::vector<double> someGaps(std::vector<double> numbers)
{
  for (std::size_t i = 0; i < numbers.size(); i += 7)
    numbers[i] = i % 2 == 0 ? NAN : INFINITY;
  return numbers;
}

/// Items beside an item of VTK's own with the same points.
template <class Item>
class PointPicking : public ::testing::Test
{
protected:
  void show(const std::vector<double>& xs, const std::vector<double>& ys)
  {
    table = makeTable({{"x", xs}, {"y", ys}});
    x->SetRange(0.5, 20.0);
    y->SetRange(0.5, 20.0);
    for (vtkPlotPoints* one : {static_cast<vtkPlotPoints*>(item), plain.Get()})
    {
      one->SetXAxis(x);
      one->SetYAxis(y);
      one->SetInputData(table, "x", "y");
      one->Update();
    }
  }

  /// Expects what VTK picks between points that the item has.
  void expectAsInVtk()
  {
    const auto* const places = static_cast<const vtkVector2f*>(item->Points->GetVoidPointer(0));
    for (const auto& [first, second] : {std::pair(1, 2), {3, 4}, {11, 5}, {9, 9}})
    {
      const vtkVector2f& a = places[first];
      const vtkVector2f& b = places[second];
      const vtkVector2f low(std::min(a[0], b[0]), std::min(a[1], b[1]));
      const vtkVector2f high(std::max(a[0], b[0]), std::max(a[1], b[1]));
      EXPECT_EQ(item->SelectPoints(low, high), plain->SelectPoints(low, high));
      EXPECT_EQ(idsOf(item->GetSelection()), idsOf(plain->GetSelection()));
      EXPECT_FALSE(idsOf(plain->GetSelection()).empty());
      expectAsInVtk({low, {high[0], low[1]}, high});
    }
    const vtkVector2f far(100.0F, 100.0F);
    EXPECT_FALSE(item->SelectPoints(far, far));
    EXPECT_TRUE(idsOf(item->GetSelection()).empty()) << "what was selected before";
  }

  void expectAsInVtk(const std::vector<vtkVector2f>& corners)
  {
    vtkContextPolygon polygon;
    for (const vtkVector2f& corner : corners)
      polygon.AddPoint(corner);
    EXPECT_EQ(item->SelectPointsInPolygon(polygon), plain->SelectPointsInPolygon(polygon));
    EXPECT_EQ(idsOf(item->GetSelection()), idsOf(plain->GetSelection()));
  }

  vtkNew<vtkGuardedAxis> x;
  vtkNew<vtkGuardedAxis> y;
  vtkSmartPointer<vtkTable> table;
  vtkSmartPointer<Exposed<Item>> item = makeExposed<Exposed<Item>>();
  vtkNew<vtkPlotPoints> plain;
};

using Items = ::testing::Types<Talmesh::PointCloud, vtkPlotInvisiblePoints, vtkPlotLineSet>;
TYPED_TEST_SUITE(PointPicking, Items);

TYPED_TEST(PointPicking, FindsThePointsThatVtkFinds)
{
  this->show(someNumbers(1), someNumbers(2));
  this->expectAsInVtk();
}

TYPED_TEST(PointPicking, LeavesOutPointsWithoutAPlace)
{
  this->show(someNumbers(3), someGaps(someNumbers(4)));
  this->expectAsInVtk();
}

TYPED_TEST(PointPicking, FindsThePointsUnderAShiftAndAScale)
{
  this->item->SetShiftScale({-3.0, 1.5, 100.0, 0.001});
  this->plain->SetShiftScale({-3.0, 1.5, 100.0, 0.001});
  this->show(someNumbers(5), someGaps(someNumbers(6)));
  this->expectAsInVtk();
}

TYPED_TEST(PointPicking, FindsThePointsOnLogarithmicAxes)
{
  this->x->SetLogScale(true);
  this->y->SetLogScale(true);
  this->show(someNumbers(7), someGaps(someNumbers(8)));
  this->expectAsInVtk();
}

TYPED_TEST(PointPicking, FindsPointsWhoseNeighboursHaveNoX)
{
  this->show({NAN, 2, 1, NAN, 2, 3}, {1, 2, 1, 1, 1, 9});
  EXPECT_TRUE(this->item->SelectPoints({1.0F, 1.0F}, {2.0F, 2.0F}));
  EXPECT_EQ(idsOf(this->item->GetSelection()), (Ids{1, 2, 4}));
}

TYPED_TEST(PointPicking, FindsNothingBeforeThereArePoints)
{
  EXPECT_FALSE(this->item->SelectPoints({0.0F, 0.0F}, {1.0F, 1.0F}));
  EXPECT_FALSE(this->item->SelectPointsInPolygon({}));
}
} // namespace
