#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/SampleTables.h"

#include <vtkColorTransferFunction.h>
#include <vtkPlotPoints.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "FitParameterFixture.h"

namespace
{

using Values = std::vector<double>;

class FitParameterColors : public FitParameterFixture
{
};

TEST_F(FitParameterColors, ColoursLowScoresBlueTheGeometricMiddleDarkAndHighScoresRed)
{
  draw();
  ASSERT_TRUE(points(0, 0)->GetScalarVisibility());
  EXPECT_EQ(points(2, 0)->GetLookupTable(), points(0, 0)->GetLookupTable());
  EXPECT_EQ(points(0, 0)->GetColorArrayName(), "Score");
  expectColor(1.0, 0.1, 0.1, 0.8);
  expectColor(10.0, 0.1, 0.1, 0.1);
  expectColor(100.0, 0.8, 0.1, 0.1);
  expectColor(std::sqrt(10.0), 0.1, 0.1, 0.45);
}

TEST_F(FitParameterColors, ColoursScoresThatAreNotAllPositiveOnALinearScale)
{
  Talmesh::plot::doubleColumn(container.getTable(), 0)->SetValue(20, -100.0);
  draw();
  expectColor(-100.0, 0.1, 0.1, 0.8);
  expectColor(0.0, 0.1, 0.1, 0.1);
  expectColor(50.0, 0.45, 0.1, 0.1);
  expectColor(100.0, 0.8, 0.1, 0.1);
}

TEST_F(FitParameterColors, ColoursScoresOfImmenseRange)
{
  Talmesh::plot::doubleColumn(container.getTable(), 0)->SetValue(0, 1e300);
  Talmesh::plot::doubleColumn(container.getTable(), 0)->SetValue(20, 1e-100);
  draw();
  expectColor(1e100, 0.1, 0.1, 0.1);
}

TEST_F(FitParameterColors, ColoursNothingByAnUnusableColumn)
{
  const auto replaceScore = [this](vtkAbstractArray* score)
  {
    auto table = vtkSmartPointer<vtkTable>::New();
    table->AddColumn(score);
    for (int i = 1; i < container.getTable()->GetNumberOfColumns(); ++i)
      table->AddColumn(container.getTable()->GetColumn(i));
    container.setPlotData(table);
    settings().parameterColumns = {2, 3, 4};
    draw();
    scene.render(container);
    EXPECT_FALSE(points(0, 0)->GetScalarVisibility());
  };
  const double infinity = std::numeric_limits<double>::infinity();
  const double nan = std::numeric_limits<double>::quiet_NaN();
  replaceScore(Talmesh::plot::makeColumn("Score", Values(21, infinity)));
  replaceScore(Talmesh::plot::makeColumn("Score", Values(21, nan)));
  vtkNew<vtkStringArray> text;
  text->SetName("Score");
  text->SetNumberOfValues(21);
  replaceScore(text);
  vtkNew<vtkIntArray> integers;
  integers->SetName("Score");
  integers->SetNumberOfValues(21);
  integers->FillValue(3);
  replaceScore(integers);
}

TEST_F(FitParameterColors, ColoursByTheFiniteScores)
{
  for (const double odd : {std::numeric_limits<double>::infinity(),
                           -std::numeric_limits<double>::infinity(), std::nan("")})
  {
    Talmesh::plot::doubleColumn(container.getTable(), 0)->SetValue(10, odd);
    container.getTable()->GetColumn(0)->Modified();
    draw();
    scene.render(container);
    ASSERT_TRUE(points(0, 0)->GetScalarVisibility()) << odd;
    expectColor(1.0, 0.1, 0.1, 0.8);
    expectColor(10.0, 0.1, 0.1, 0.1);
    expectColor(100.0, 0.8, 0.1, 0.1);
  }
}

TEST_F(FitParameterColors, ColoursAConstantScore)
{
  Talmesh::plot::doubleColumn(container.getTable(), 0)->FillValue(4.0);
  draw();
  scene.render(container);
  EXPECT_TRUE(points(0, 0)->GetScalarVisibility());
  expectColor(4.0, 0.8, 0.1, 0.1);
}

} // namespace
