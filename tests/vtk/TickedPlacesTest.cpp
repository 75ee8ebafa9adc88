#include "vtk/PointCloud.h"
#include "vtk/vtkPlotErrorPoints.h"
#include "vtk/vtkPlotInvisiblePoints.h"
#include "vtk/vtkPlotLineSet.h"
#include "vtk/vtkPlotSafeLine.h"
#include "vtk/vtkPlotShiftedBag.h"
#include "vtk/vtkPlotStepLine.h"

#include <vtkDoubleArray.h>
#include <vtkFloatArray.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "PlacedChart.h"

namespace
{
/// Points of the axes' ticks on logarithmic axes so narrow that the chart shifts its points.
template <class Item>
class TickedPlaces : public PlacedChart
{
protected:
  TickedPlaces()
  {
    for (const int position : {vtkAxis::BOTTOM, vtkAxis::LEFT})
    {
      setAxis(position, 309, 311);
      vtkAxis* axis = chart->GetAxis(position);
      axis->SetLogScale(true);
      axis->SetCustomTickPositions(
          makeColumn<vtkDoubleArray>("ticks", {std::log10(values[0]), std::log10(values[1])}));
    }
  }

  /// Pixels of the ticks.
  Point tick(vtkIdType index)
  {
    return {chart->GetAxis(vtkAxis::BOTTOM)->GetTickScenePositions()->GetValue(index),
            chart->GetAxis(vtkAxis::LEFT)->GetTickScenePositions()->GetValue(index)};
  }

  static void prepare(vtkPlot* plot)
  {
    plot->SetColor(10, 20, 30, 255);
    if (auto* lines = vtkPlotLineSet::SafeDownCast(plot))
    {
      lines->SetStride(2);
      lines->OnlyShowSelectedOff();
    }
    else if (auto* points = vtkPlotInvisiblePoints::SafeDownCast(plot))
      points->OnlyShowSelectedOff();
  }

  bool paintsAt(const Point& place)
  {
    for (const auto& call : device->calls())
    {
      const bool own = call.penColor == RecordingDevice::Color{10, 20, 30, 255};
      const auto isNear = [&place](const Point& point)
      {
        // VTK's ticks lie on whole pixels.
        return std::fabs(point.first - place.first) < 1 &&
               std::fabs(point.second - place.second) < 1;
      };
      if (own && std::any_of(call.points.begin(), call.points.end(), isNear))
        return true;
    }
    return false;
  }

  const std::vector<double> values{309.5, 310.25};
};

using PlacedItems =
    ::testing::Types<Talmesh::PointCloud, vtkPlotInvisiblePoints, vtkPlotLineSet, vtkPlotStepLine,
                     vtkPlotErrorPoints, vtkPlotSafeLine, vtkPlotShiftedBag>;
TYPED_TEST_SUITE(TickedPlaces, PlacedItems);
} // namespace

TYPED_TEST(TickedPlaces, AreWherePointsOfTheTicksValuesArePainted)
{
  const auto table = makeTable({{"x", this->values}, {"y", this->values}});
  vtkNew<TypeParam> item;
  item->SetInputData(table, "x", "y");
  this->prepare(item);
  this->chart->AddPlot(item);
  this->paintChart();
  ASSERT_NE(item->GetShiftScale().GetX(), 0.0);
  ASSERT_NE(item->GetShiftScale().GetY(), 0.0);
  EXPECT_GT(this->tick(1).first, this->tick(0).first + 50);
  EXPECT_TRUE(this->paintsAt(this->tick(0)));
  EXPECT_TRUE(this->paintsAt(this->tick(1)));
}
