#include "plot/ContainerAccess.h"
#include "support/SampleRuns.h"
#include "vtk/RowSelections.h"

#include <vtkAnnotationLink.h>
#include <vtkDoubleArray.h>
#include <vtkTable.h>

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace
{

/// Five runs of three rows, of which the last three and then the first two are compared.
class SampleSizes : public ::testing::Test
{
protected:
  void set(const char* parameter, const std::vector<double>& ofRuns)
  {
    auto* column =
        vtkDoubleArray::SafeDownCast(plot.container.getTable()->GetColumnByName(parameter));
    for (vtkIdType row = 0; row < column->GetNumberOfTuples(); ++row)
      column->SetValue(row, ofRuns[static_cast<std::size_t>(row / 3)]);
    column->Modified();
  }

  const TestedSamples& samplesOf(std::size_t parameter)
  {
    plot.container.getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection({6, 9, 12}));
    return plot.container.getTestedSamples().at(parameter);
  }

  SampleRuns::Plot plot{SampleRuns::runs(5, 3)};
};

TEST_F(SampleSizes, AreKeptWithTheTestsOfASelection)
{
  const TestedSamples& first = samplesOf(0);
  ASSERT_EQ(plot.container.getTestedSamples().size(), plot.container.getKsResults().size());
  EXPECT_TRUE(first.selected.ranked);
  EXPECT_TRUE(first.others.ranked);
  EXPECT_EQ(first.selected.runs, 3u);
  EXPECT_EQ(first.selected.values, 3u);
  EXPECT_FALSE(first.selected.filledUp);
  EXPECT_EQ(first.others.runs, 2u);
  EXPECT_EQ(first.others.values, 2u);
}

TEST_F(SampleSizes, TellRepeatedValuesFromMissingOnes)
{
  set("Parameter: k1", {1, 2, 3, 3, 4});
  set("Parameter: k2", {1, 2, 3, std::numeric_limits<double>::quiet_NaN(), 4});
  const TestedSamples& repeated = samplesOf(0);
  EXPECT_EQ(repeated.selected.values, 2u);
  EXPECT_FALSE(repeated.selected.lacksValues);
  const TestedSamples& missing = samplesOf(1);
  EXPECT_EQ(missing.selected.values, 2u);
  EXPECT_TRUE(missing.selected.lacksValues);
  EXPECT_FALSE(missing.others.lacksValues);
}

TEST_F(SampleSizes, SayWhichSampleIsFilledUp)
{
  set("Parameter: k1", {1, 2, 3, 3, 4});
  EXPECT_TRUE(samplesOf(0).selected.filledUp) << "k2 has three values";
  EXPECT_FALSE(samplesOf(1).selected.filledUp);
}

TEST_F(SampleSizes, AreForgottenByOtherTests)
{
  samplesOf(0);
  plot.container.ksTestSelection(3, 6);
  EXPECT_TRUE(plot.container.getTestedSamples().empty());
  EXPECT_FALSE(plot.container.getKsResults().empty());
}

} // namespace
