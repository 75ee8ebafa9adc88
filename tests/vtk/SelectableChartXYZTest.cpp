#include "vtk/vtkSelectableChartXYZ.h"

#include <vtkContextScene.h>
#include <vtkFloatArray.h>
#include <vtkNew.h>
#include <vtkObjectFactory.h>
#include <vtkPlaneCollection.h>
#include <vtkPlotPoints3D.h>
#include <vtkSmartPointer.h>
#include <vtkTable.h>
#include <vtkTransform.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace
{
/// Three columns of four rows, each of which is extreme in every column.
vtkSmartPointer<vtkTable> extremeRows()
{
  auto table = vtkSmartPointer<vtkTable>::New();
  const std::array<std::array<float, 4>, 3> values = {
      {{-3.0F, 7.0F, 7.0F, -3.0F}, {1e-3F, 2e-3F, 1e-3F, 2e-3F}, {1e6F, 1e6F, 4e6F, 4e6F}}};
  const std::array<const char*, 3> names = {"x", "y", "z"};
  for (std::size_t column = 0; column < values.size(); ++column)
  {
    vtkNew<vtkFloatArray> numbers;
    numbers->SetName(names[column]);
    for (const float value : values[column])
      numbers->InsertNextValue(value);
    table->AddColumn(numbers);
  }
  return table;
}

/// Shows what its painting is clipped to.
class ClippedChartXYZ : public vtkSelectableChartXYZ
{
public:
  static ClippedChartXYZ* New();

  /// How far a point in units of the axes is inside of the nearest face, in pixels.
  double inside(const std::array<float, 3>& point)
  {
    CheckForSceneResize();
    CalculateTransforms();
    std::array<float, 3> pixel{};
    ContextTransform->TransformPoint(point.data(), pixel.data());
    double least = VTK_DOUBLE_MAX;
    for (int i = 0; i < BoundingCube->GetNumberOfItems(); ++i)
    {
      std::array<double, 4> plane{};
      GetClippingPlaneEquation(i, plane.data());
      least = std::min(least,
                       plane[0] * pixel[0] + plane[1] * pixel[1] + plane[2] * pixel[2] + plane[3]);
    }
    return least;
  }
};
vtkStandardNewMacro(ClippedChartXYZ);
} // namespace

TEST(SelectableChartXYZ, ShowsPointsOnTheFacesOfItsBox)
{
  const auto table = extremeRows();
  vtkNew<vtkContextScene> scene;
  scene->SetGeometry(420, 330);
  vtkNew<ClippedChartXYZ> chart;
  scene->AddItem(chart);
  chart->SetGeometry(vtkRectf(40.0F, 30.0F, 300.0F, 250.0F));
  vtkNew<vtkPlotPoints3D> points;
  points->SetInputData(table, "x", "y", "z");
  chart->AddPlot(points);
  chart->RecalculateBounds();
  chart->SetAutoRotate(true);
  for (const double angle : {0.0, 33.0, 190.0})
  {
    chart->SetAngle(angle);
    for (vtkIdType row = 0; row < table->GetNumberOfRows(); ++row)
      EXPECT_NEAR(
          chart->inside({table->GetValue(row, 0).ToFloat(), table->GetValue(row, 1).ToFloat(),
                         table->GetValue(row, 2).ToFloat()}),
          0.5, 1e-3)
          << angle << " " << row;
    EXPECT_LT(chart->inside({-4.0F, 1e-3F, 1e6F}), 0.0) << "outside " << angle;
  }
}
