#include "plot/PlotContainer.h"
#include "plot/Residuals.h"
#include "support/VtkErrors.h"

#include <vtkFloatArray.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "ResidualFixture.h"

namespace
{

constexpr double inf = std::numeric_limits<double>::infinity();

using Rows = std::vector<std::vector<double>>;

class ResidualTables : public ResidualFixture
{
};

TEST_F(ResidualTables, TimeCourseTableHoldsTimeAndResiduals)
{
  show(course, false, false);
  EXPECT_EQ(columnNames(table()),
            (std::vector<std::string>{"Time", "Residual M 0", "Residual P 1"}));
  for (int c = 0; c < 3; ++c)
    EXPECT_NE(vtkFloatArray::SafeDownCast(table()->GetColumn(c)), nullptr) << c;
  EXPECT_EQ(column("Time"), (std::vector<double>{0.0, 0.5, 1.0}));
  EXPECT_EQ(column("Residual M 0"), (std::vector<double>{-1.0, -2.0, 3.0}));
  EXPECT_EQ(column("Residual P 1"), (std::vector<double>{2.0, -4.0, 0.0}));
}

TEST_F(ResidualTables, ScaledResidualsAreDividedByTheErrors)
{
  show(course, true, false);
  EXPECT_EQ(column("Residual M 0"), (std::vector<double>{-2.0, -8.0, 1.5}));
  EXPECT_EQ(column("Residual P 1"), (std::vector<double>{2.0, -2.0, 0.0}));
}

TEST_F(ResidualTables, SideBySideTableHoldsPredictionsAndObservations)
{
  show(course, false, true);
  EXPECT_EQ(columnNames(table()),
            (std::vector<std::string>{"Time", "Prediction M 0", "Observation M 0", "Prediction P 1",
                                      "Observation P 1"}));
  EXPECT_EQ(column("Prediction M 0"), (std::vector<double>{2.0, 4.0, 1.0}));
  EXPECT_EQ(column("Observation P 1"), (std::vector<double>{10.0, 20.0, 30.0}));
}

TEST_F(ResidualTables, TheScaleMultipliesTheObservation)
{
  course.globalScale = 2.0;
  show(course, false, false);
  EXPECT_EQ(column("Residual M 0"), (std::vector<double>{0.0, 0.0, 7.0}));
  show(course, false, true);
  EXPECT_EQ(column("Observation M 0"), (std::vector<double>{2.0, 4.0, 8.0}));
  EXPECT_EQ(column("Prediction M 0"), (std::vector<double>{2.0, 4.0, 1.0}));
}

TEST_F(ResidualTables, AFittedScaleComesFromTheRun)
{
  course.globalScale = 2.0;
  run.parameters["Global Scale"] = 0.5F;
  show(course, false, true);
  EXPECT_EQ(column("Observation M 0")[0], 2.0) << "known but not fitted";
  course.globalScaleFitted = true;
  show(course, false, true);
  EXPECT_EQ(column("Observation M 0")[0], 0.5);
  run.parameters.clear();
  show(course, false, true);
  EXPECT_EQ(column("Observation M 0")[0], 2.0) << "fitted but not known";
}

TEST_F(ResidualTables, AFittedScaleIsWidenedFromSinglePrecision)
{
  course.globalScaleFitted = true;
  run.parameters["Global Scale"] = 0.1F;
  EXPECT_EQ(Talmesh::plot::observationScale(run, course), static_cast<double>(0.1F));
}

TEST_F(ResidualTables, StandardisingIgnoresEveryScale)
{
  course.standardize = true;
  course.globalScale = 2.0;
  course.globalScaleFitted = true;
  run.parameters["Global Scale"] = 0.5F;
  predictions = {{1.0, 2.0, 3.0}, {10.0, 30.0, 20.0}};
  for (const bool normalize : {false, true})
  {
    course.normalizeToReference = normalize;
    show(course, false, true);
    EXPECT_EQ(column("Prediction M 0"), (std::vector<double>{-1.0, 0.0, 1.0}));
    EXPECT_EQ(column("Prediction P 1"), (std::vector<double>{-1.0, 1.0, 0.0}));
    EXPECT_EQ(column("Observation M 0"), (std::vector<double>{1.0, 2.0, 4.0}));
  }
  EXPECT_EQ(predictions[0], (std::vector<double>{-1.0, 0.0, 1.0})) << "the caller sees them";
}

TEST_F(ResidualTables, NormalisingHalvesARowOfReferenceTwo)
{
  course.normalizeToReference = true;
  course.globalScale = 4.0;
  show(course, false, true);
  EXPECT_EQ(predictions[0], (std::vector<double>{1.0, 2.0, 0.5}));
  EXPECT_EQ(predictions[1], (std::vector<double>{1.0, 3.0, 3.75}));
  EXPECT_EQ(column("Observation M 0")[0], 4.0) << "the scale is kept";
}

TEST_F(ResidualTables, NormalisingTakesTheReciprocalBeforeTheRowChanges)
{
  course.normalizeToReference = true;
  course.referenceIndex = 1;
  show(course, false, true);
  EXPECT_EQ(predictions[0], (std::vector<double>{0.5, 1.0, 0.25}));
}

TEST_F(ResidualTables, AReferenceOutsideARowLeavesItAlone)
{
  course.normalizeToReference = true;
  predictions = {{2.0, 4.0}, {8.0, 24.0, 4.0}};
  course.referenceIndex = 2;
  show(course, false, true);
  EXPECT_EQ(predictions, (Rows{{2.0, 4.0}, {2.0, 6.0, 1.0}}));
  for (const int index : {-1, 3, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
  {
    course.referenceIndex = index;
    show(course, false, true);
    EXPECT_EQ(predictions, (Rows{{2.0, 4.0}, {2.0, 6.0, 1.0}})) << index;
  }
}

TEST_F(ResidualTables, AZeroReferenceMakesTheRowInfinite)
{
  course.normalizeToReference = true;
  predictions = {{0.0, 4.0, -1.0}, {8.0, 24.0, 30.0}};
  VtkErrors errors;
  show(course, false, true);
  EXPECT_TRUE(std::isnan(predictions[0][0]));
  EXPECT_EQ(predictions[0][1], inf);
  EXPECT_EQ(predictions[0][2], -inf);
  scene.render(container);
  EXPECT_EQ(errors.text(), "");
}

TEST_F(ResidualTables, WhatIsMissingIsNan)
{
  predictions = {{2.0}};
  course.errors = {{0.5, 0.25}};
  course.outputs.pop_back();
  VtkErrors errors;
  show(course, true, false);
  EXPECT_EQ(columnNames(table()),
            (std::vector<std::string>{"Time", "Residual M 0", "Residual  1"}));
  EXPECT_EQ(column("Residual M 0")[0], -2.0);
  EXPECT_TRUE(std::isnan(column("Residual M 0")[1]));
  EXPECT_TRUE(std::isnan(column("Residual  1")[0]));
  EXPECT_EQ(chart()->GetNumberOfPlots(), 1) << "one plot per row of predictions";
  scene.render(container);
  EXPECT_EQ(errors.text(), "");
}

TEST_F(ResidualTables, ColumnsOfDifferentLengthAreFilledWithNan)
{
  course.observations = {{1.0, 2.0, 4.0, 5.0}, {10.0}};
  VtkErrors errors;
  show(course, false, true);
  EXPECT_EQ(table()->GetNumberOfRows(), 4);
  EXPECT_EQ(table()->GetNumberOfColumns(), 5);
  EXPECT_TRUE(std::isnan(column("Time")[3]));
  EXPECT_TRUE(std::isnan(column("Prediction M 0")[3]));
  EXPECT_EQ(column("Observation M 0")[3], 5.0);
  EXPECT_TRUE(std::isnan(column("Observation P 1")[1]));
  scene.render(container);
  EXPECT_EQ(errors.text(), "");
}

TEST_F(ResidualTables, NullRecordsAreIgnored)
{
  vtkTable* before = table();
  container.setResidualPlot(nullptr, &course, predictions, false, false);
  container.setResidualPlot(&run, nullptr, predictions, false, false);
  EXPECT_EQ(table(), before);
}

} // namespace
