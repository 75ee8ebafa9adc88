#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/SampleTables.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

namespace
{

class QuartileLimits : public ::testing::Test
{
protected:
  void setRuns(const std::vector<double>& values, int stride)
  {
    container.setPlotData(runsOfValues(values, stride));
    container.getMetaData()->setStride(stride);
  }

  double at(vtkIdType row, const char* column)
  {
    return container.getQuartileTable()->GetValueByName(row, column).ToDouble();
  }

  PlotContainer container{nullptr};
};

TEST_F(QuartileLimits, StayFiniteForTheLargestNumbers)
{
  setRuns({1e308, 1.4e308, 1.2e308, 1.6e308}, 1);
  container.generateQuartiles();
  EXPECT_DOUBLE_EQ(at(0, "First Quartile"), 1.1e308);
  EXPECT_DOUBLE_EQ(at(0, "Median"), 1.3e308);
  EXPECT_DOUBLE_EQ(at(0, "Third Quartile"), 1.5e308);
}

TEST_F(QuartileLimits, TakeATimeThatGrowsWithTheLengthOfTheRuns)
{
  setRuns(std::vector<double>(5 * 64000, 2.0), 64000);
  const auto start = std::chrono::steady_clock::now();
  container.generateQuartiles();
  // A column for each position, found by its name, took above a minute.
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
  EXPECT_EQ(container.getQuartileTable()->GetNumberOfRows(), 64000);
}

} // namespace
