#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/SampleTables.h"
#include "support/VtkErrors.h"

#include <vtkAxis.h>
#include <vtkFloatArray.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "SobolFixture.h"

namespace
{

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

class SobolTables : public SobolFixture
{
};

TEST_F(SobolTables, TableOverTimeHoldsTheParametersThenTheTime)
{
  showOverTime(false, 3);
  EXPECT_EQ(columnNames(table()), (std::vector<std::string>{"k_on", "k_off", "Time"}));
  for (int c = 0; c < 3; ++c)
    EXPECT_NE(vtkFloatArray::SafeDownCast(table()->GetColumn(c)), nullptr);
  EXPECT_EQ(column("k_on"), (std::vector<double>{0.375, 0.390625, 0.40625}));
  EXPECT_EQ(column("k_off"), (std::vector<double>{0.376953125, 0.392578125, 0.408203125}));
  EXPECT_EQ(column("Time"), (std::vector<double>{0.0, 12.5, 20.0}));
}

TEST_F(SobolTables, TableOverTimeTakesTheTotalIndices)
{
  showOverTime(true, 0);
  EXPECT_EQ(column("k_on"), (std::vector<double>{2.0, 2.015625, 2.03125}));
}

TEST_F(SobolTables, TableAtATimeHoldsTheEligibleOutputs)
{
  showAtTime(false, 1);
  EXPECT_EQ(columnNames(table()), (std::vector<std::string>{"k_on", "k_off", "Name"}));
  EXPECT_NE(vtkFloatArray::SafeDownCast(table()->GetColumn(0)), nullptr);
  EXPECT_EQ(
      stringsOf(table()->GetColumn(2)),
      (std::vector<std::string>{"Molecule: M", "Complex With Molecule: CM", "Pattern: A_bound"}));
  EXPECT_EQ(column("k_on"), (std::vector<double>{0.140625, 0.265625, 0.390625}));
  EXPECT_EQ(column("k_off"), (std::vector<double>{0.142578125, 0.267578125, 0.392578125}));
}

TEST_F(SobolTables, TableAtATimeTakesTheTotalIndices)
{
  showAtTime(true, 0);
  EXPECT_EQ(column("k_on"), (std::vector<double>{2.125, 2.25, 2.375}));
}

TEST_F(SobolTables, NegativeIndicesBecomeZeroAndNanStays)
{
  (*result.firstOrder)[1][0] = {-0.25, nan};
  showOverTime(false, 1);
  EXPECT_EQ(column("k_on")[0], 0.0);
  EXPECT_TRUE(std::isnan(column("k_off")[0]));
  showAtTime(false, 0);
  EXPECT_EQ(column("k_on")[0], 0.0);
  EXPECT_TRUE(std::isnan(column("k_off")[0]));
  VtkErrors errors;
  render();
  EXPECT_EQ(errors.text(), "");
}

TEST_F(SobolTables, KindsThatAreNotSpeciesNeverAppear)
{
  for (const Talmesh::DataType kind : {Talmesh::Complex, Talmesh::TimeOrValue, Talmesh::Parameter,
                                       Talmesh::UndefinedType, static_cast<Talmesh::DataType>(7)})
  {
    result.outputs = {{kind, "only"}, {Talmesh::Molecule, "last"}};
    showAtTime(false, 0);
    EXPECT_EQ(table()->GetNumberOfRows(), 0) << kind;
  }
}

TEST_F(SobolTables, TheLastOutputNeverAppears)
{
  result.outputs = {{Talmesh::Complex, "C"}, {Talmesh::Pattern, "the only pattern"}};
  showAtTime(false, 0);
  EXPECT_EQ(table()->GetNumberOfRows(), 0);
}

TEST_F(SobolTables, OneOutputGivesEmptyColumnsAndNoBars)
{
  result.outputs = {{Talmesh::Molecule, "M"}};
  VtkErrors errors;
  showAtTime(false, 0);
  ASSERT_EQ(table()->GetNumberOfColumns(), 3);
  for (int c = 0; c < 3; ++c)
    EXPECT_EQ(table()->GetColumn(c)->GetNumberOfTuples(), 0) << c;
  EXPECT_EQ(bottom()->GetMinimum(), -1.0);
  EXPECT_EQ(bottom()->GetMaximum(), 1.0);
  render();
  EXPECT_EQ(errors.text(), "");
}

TEST_F(SobolTables, WithoutOutputsNothingIsShown)
{
  result.outputs.clear();
  showAtTime(true, 0);
  EXPECT_EQ(table()->GetNumberOfRows(), 0);
  EXPECT_EQ(container.getMetaData()->title, "Total Sensitivities at t= 0 s");
}

TEST_F(SobolTables, CountsComeFromTheTableAsBuilt)
{
  result.parameterNames = {"k", "k"};
  showOverTime(false, 0);
  EXPECT_EQ(columnNames(table()), (std::vector<std::string>{"k", "Time"}));
  EXPECT_EQ(column("k")[0], indexValue(0, 0, 1));
  EXPECT_EQ(stringsOf(chart()->GetPlot(0)->GetLabels()), (std::vector<std::string>{"k"}));
}

TEST_F(SobolTables, WhatTheResultLacksIsNan)
{
  result.total = nullptr;
  result.parameterNames.pop_back();
  showOverTime(true, 1);
  EXPECT_TRUE(std::isnan(column("k_on")[0]));
  showOverTime(false, 99);
  EXPECT_TRUE(std::isnan(column("k_on")[0]));
  showAtTime(false, 99);
  EXPECT_TRUE(std::isnan(column("k_on")[0]));
  result.timePoints = nullptr;
  showOverTime(false, 1);
  EXPECT_EQ(table()->GetNumberOfRows(), 0);
  container.setSobolPostprocessResult(nullptr, false, false, 0, 0);
  EXPECT_EQ(chart()->GetTitle(), "Sensitivity of Molecule: M");
}

} // namespace
