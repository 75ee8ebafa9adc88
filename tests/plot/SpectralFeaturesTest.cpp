#include "plot/SpectralFeatures.h"

#include "support/SampleTables.h"

#include <vtkMath.h>

#include <gtest/gtest.h>

#include <cmath>

#include "ClusteringFixture.h"

namespace
{

using Values = std::vector<double>;

class SpectralClustering : public ClusteringFixture
{
};

TEST_F(SpectralClustering, ByMagnitudesIgnoresAShiftInTime)
{
  Values values;
  const auto addWave = [&](double frequency, int shift)
  {
    for (int i = 0; i < 16; ++i)
      values.push_back(std::cos(2.0 * vtkMath::Pi() * frequency * (i + shift) / 16.0));
  };
  addWave(1, 0);
  addWave(3, 0);
  addWave(1, 8);
  addWave(3, 5);
  addWave(1, 4);
  addWave(3, 11);
  setRuns(values, 16);
  EXPECT_EQ(cluster(2, 3), (std::vector<int>{0, 1, 0, 1, 0, 1}));
  EXPECT_EQ(output, "6\n7  16\n");
  // A cosine of 16 samples has the modulus 8 at its frequency and at the mirrored one.
  ASSERT_EQ(means()->GetNumberOfRows(), 16);
  for (std::size_t k = 0; k < 16; ++k)
  {
    EXPECT_NEAR(mean(0)[k], k == 1 || k == 15 ? 8.0 : 0.0, 1e-12);
    EXPECT_NEAR(mean(1)[k], k == 3 || k == 13 ? 8.0 : 0.0, 1e-12);
  }
}

TEST_F(SpectralClustering, ByPhasesIgnoresTheAmplitudeAndSeesTheShift)
{
  Values values(6 * 7, 0.0);
  const std::size_t pulses[] = {1, 2, 2, 1, 1, 2};
  for (std::size_t run = 0; run < 6; ++run)
    values[run * 7 + pulses[run]] = static_cast<double>(1U << run);
  setRuns(values, 7);
  EXPECT_EQ(cluster(2, 2), (std::vector<int>{0, 1, 1, 0, 0, 1}));
  // The pulse at position 1 has the phase -2 pi k / 7, brought into (-pi, pi].
  for (std::size_t k = 0; k < 7; ++k)
  {
    const double phase = -2.0 * vtkMath::Pi() * static_cast<double>(k) / 7.0;
    EXPECT_NEAR(mean(0)[k], k > 3 ? phase + 2.0 * vtkMath::Pi() : phase, 1e-12) << k;
  }
}

TEST_F(SpectralClustering, TakesSteadyRunsForOneShape)
{
  Values values;
  for (int run = 0; run < 8; ++run)
  {
    for (int i = 0; i < 37; ++i)
      values.push_back((1.0 + 0.1 * run) * (1.0 + 1e-16 * ((7 * run + 3 * i) % 5)));
  }
  for (int run = 1; run < 3; ++run)
  {
    for (int i = 0; i < 37; ++i)
      values.push_back(std::sin(0.4 * run * i));
  }
  setRuns(values, 37);
  for (const int mode : {2, 3})
    EXPECT_EQ(cluster(3, mode), (std::vector<int>{0, 0, 0, 0, 0, 0, 0, 0, 1, 2})) << mode;
}

TEST(SpectralFeatures, AreThoseOfTheFullTransform)
{
  using namespace Talmesh::plot;
  // The transform of (1, 2, 3, 4) is 10, -2 + 2i, -2, -2 - 2i.
  const auto curves = tableOf({{"time", {1, 2, 3, 4}}, {"constant", {3, 3, 3, 3}}});
  const auto magnitudes = spectralFeatures(curves, SpectralFeature::magnitude);
  ASSERT_EQ(magnitudes->GetNumberOfColumns(), 2);
  ASSERT_EQ(magnitudes->GetNumberOfRows(), 4);
  EXPECT_NEAR(doubleColumn(magnitudes, 0)->GetValue(0), 10.0, 1e-12);
  EXPECT_NEAR(doubleColumn(magnitudes, 0)->GetValue(1), std::sqrt(8.0), 1e-12);
  EXPECT_NEAR(doubleColumn(magnitudes, 0)->GetValue(2), 2.0, 1e-12);
  EXPECT_NEAR(doubleColumn(magnitudes, 0)->GetValue(3), std::sqrt(8.0), 1e-12);
  EXPECT_NEAR(doubleColumn(magnitudes, 1)->GetValue(0), 12.0, 1e-12);
  EXPECT_NEAR(doubleColumn(magnitudes, 1)->GetValue(1), 0.0, 1e-12);
  const auto phases = spectralFeatures(curves, SpectralFeature::phase);
  EXPECT_NEAR(doubleColumn(phases, 0)->GetValue(1), 0.75 * vtkMath::Pi(), 1e-12);
  EXPECT_NEAR(doubleColumn(phases, 0)->GetValue(3), -0.75 * vtkMath::Pi(), 1e-12);
  EXPECT_EQ(columnName(curves, 0), "time") << "the input keeps its names";
}

} // namespace
