#include "vtk/PointCloud.h"
#include "vtk/vtkGuardedAxis.h"
#include "vtk/vtkPlotErrorPoints.h"
#include "vtk/vtkPlotInvisiblePoints.h"
#include "vtk/vtkPlotLineSet.h"
#include "vtk/vtkPlotSafeLine.h"
#include "vtk/vtkPlotStepLine.h"

#include <vtkDoubleArray.h>
#include <vtkPoints2D.h>

#include <gtest/gtest.h>

#include <cmath>

#include "VtkTestSupport.h"

namespace
{
/// Items that keep the points which they have read, on axes of their own.
template <class Item>
class CachedPoints : public ::testing::Test
{
protected:
  CachedPoints()
  {
    x->SetRange(1.0, 1e9);
    y->SetRange(1e-300, 1.0);
    item->SetXAxis(x);
    item->SetYAxis(y);
  }

  void show(const std::vector<double>& xs, const std::vector<double>& ys)
  {
    table = makeTable({{"x", xs}, {"y", ys}});
    item->SetInputData(table, "x", "y");
    item->Update();
  }

  Points points()
  {
    Points found;
    const auto* values = static_cast<float*>(item->Points->GetVoidPointer(0));
    for (vtkIdType i = 0; i < item->Points->GetNumberOfPoints(); ++i)
      found.emplace_back(values[2 * i], values[2 * i + 1]);
    return found;
  }

  vtkNew<vtkGuardedAxis> x;
  vtkNew<vtkGuardedAxis> y;
  vtkSmartPointer<vtkTable> table;
  vtkSmartPointer<Exposed<Item>> item = makeExposed<Exposed<Item>>();
};

using Items = ::testing::Types<Talmesh::PointCloud, vtkPlotInvisiblePoints, vtkPlotLineSet,
                               vtkPlotStepLine, vtkPlotErrorPoints, vtkPlotSafeLine>;
TYPED_TEST_SUITE(CachedPoints, Items);

TYPED_TEST(CachedPoints, FollowALogarithmicAxisThatItsDataAllowOrForbid)
{
  this->x->SetLogScale(true);
  this->y->SetLogScale(true);
  this->show({10, 1000}, {0.1, 1});
  EXPECT_EQ(this->points(), (Points{{1.0F, -1.0F}, {3.0F, 0.0F}}));
  this->y->SetLogScaleAllowed(false);
  this->item->Update();
  EXPECT_EQ(this->points(), (Points{{1.0F, 0.1F}, {3.0F, 1.0F}}));
  this->x->SetLogScaleAllowed(false);
  this->y->SetLogScaleAllowed(true);
  this->item->Update();
  EXPECT_EQ(this->points(), (Points{{10.0F, -1.0F}, {1000.0F, 0.0F}}));
}

TYPED_TEST(CachedPoints, HaveLogarithmsOfValuesBeyondSinglePrecision)
{
  this->x->SetLogScale(true);
  this->y->SetLogScale(true);
  this->show({1, 1e39, 1e300, 4}, {1e-300, 1e-46, 1e-5, 0});
  const Points found = this->points();
  EXPECT_EQ(Points(found.begin(), found.begin() + 3),
            (Points{{0.0F, -300.0F}, {39.0F, -46.0F}, {300.0F, -5.0F}}));
  EXPECT_EQ(found[3].second, -INFINITY) << "zero has none";
}

TYPED_TEST(CachedPoints, HaveLogarithmsOfShiftedAndScaledValues)
{
  this->y->SetLogScale(true);
  this->item->SetShiftScale({0.0, 2.0, 1.0, 100.0});
  this->show({1, 2}, {1e-60, 1.0});
  EXPECT_EQ(this->points(), (Points{{1.0F, -5800.0F}, {2.0F, 200.0F}}));
}

TYPED_TEST(CachedPoints, HaveShiftedLogarithmsOfTheirIndices)
{
  this->x->SetLogScale(true);
  this->item->SetUseIndexForXSeries(true);
  this->item->SetShiftScale({0.5, 0.0, 2.0, 1.0});
  this->show({5, 5}, {3, 4});
  EXPECT_EQ(this->points()[1], (Point{1.0F, 4.0F}));
}

TYPED_TEST(CachedPoints, TellThePlaceOfTheNearestInUnitsOfTheAxes)
{
  this->x->SetLogScale(true);
  this->item->SetShiftScale({-1.0, 5.0, 100.0, 10.0});
  this->show({10, 100}, {1, 2});
  vtkVector2f place;
  vtkIdType segment = -1;
  // the second point lies at ((2 - 1) * 100, (2 + 5) * 10)
  ASSERT_EQ(this->item->GetNearestPoint({101, 69}, {5, 5}, &place, &segment), 1);
  EXPECT_FLOAT_EQ(place.GetX(), 2);
  EXPECT_FLOAT_EQ(place.GetY(), 2);
}

TYPED_TEST(CachedPoints, AreNoneOfATableWithoutRows)
{
  this->x->SetLogScale(true);
  this->y->SetLogScale(true);
  this->show({}, {});
  EXPECT_TRUE(!this->item->Points || this->points().empty());
}

TYPED_TEST(CachedPoints, HaveLogarithmsOfNoMoreValuesThanPoints)
{
  this->y->SetLogScale(true);
  this->show({1, 2, 3}, {1e-300, 1, 1});
  vtkNew<vtkDoubleArray> pairs;
  pairs->SetName("y");
  pairs->SetNumberOfComponents(2);
  pairs->SetNumberOfTuples(3);
  for (vtkIdType i = 0; i < 6; ++i)
    pairs->SetValue(i, 1e-300);
  this->table->RemoveColumnByName("y");
  this->table->AddColumn(pairs);
  this->item->Update();
  EXPECT_EQ(this->points().size(), 3U);
}
} // namespace
