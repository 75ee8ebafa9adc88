#include "app/examples/ExampleStudy.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <string>
#include <vector>

using namespace Talmesh::app;

namespace
{

constexpr double promisedSeconds = 2.0;

/// How much slower than for use the code may be as it is compiled here.
#if defined(__SANITIZE_ADDRESS__) || !defined(__OPTIMIZE__)
constexpr double slowness = 10.0;
#else
constexpr double slowness = 1.0;
#endif

const boost::shared_ptr<LinePlotTable>& study()
{
  static const boost::shared_ptr<LinePlotTable> table = makeExampleStudy();
  return table;
}

std::size_t rows()
{
  return study()->numberOfTrajectories * study()->pointsPerTrajectory;
}

} // namespace

TEST(ExampleStudy, HoldsTypedItemsInTheOrderOfLinePlotTables)
{
  std::vector<std::string> labels;
  for (const auto& item : study()->items)
    labels.push_back(Talmesh::selectionPairToString(item));
  EXPECT_EQ(labels, (std::vector<std::string>{"Molecule: TetR", "Molecule: LacI", "Molecule: cI",
                                              "Pattern: tetR mRNA", "Pattern: lacI mRNA",
                                              "Pattern: cI mRNA", ": Time [s]", ": Run Index",
                                              "Parameter: alpha", "Parameter: alpha0",
                                              "Parameter: beta", "Parameter: n"}));
  EXPECT_EQ(study()->values.size(), labels.size());
  EXPECT_EQ(study()->parameterRanges.size(), 4u);
  EXPECT_EQ(study()->numberOfTrajectories, 400u);
  EXPECT_EQ(study()->pointsPerTrajectory, 200u);
}

TEST(ExampleStudy, IsTheSameEveryTime)
{
  const auto again = makeExampleStudy();
  for (std::size_t item = 0; item < study()->values.size(); ++item)
    EXPECT_TRUE(
        std::equal(study()->values[item], study()->values[item] + rows(), again->values[item]))
        << item;
}

TEST(ExampleStudy, SamplesWhatMt19937Gives)
{
  // The first output of the generator seeded with 403335, by Python's generator of the same kind:
  //   mt = [403335]
  //   for i in range(1, 624):
  //     mt.append((1812433253 * (mt[-1] ^ (mt[-1] >> 30)) + i) & 0xffffffff)
  //   random.setstate((3, tuple(mt + [624]), None)); random.getrandbits(32)
  const double u = (3231437844.0 + 0.5) / 4294967296.0;
  EXPECT_NEAR(exampleParameters()[0].alpha, 10.0 * std::pow(30.0, u), 1e-9);
}

TEST(ExampleStudy, CountsTimeInSecondsAndRunsFromZero)
{
  const double* time = study()->values[6];
  const double* run = study()->values[7];
  for (std::size_t row = 0; row < rows(); ++row)
  {
    ASSERT_EQ(time[row], 180.0 * static_cast<double>(row % 200));
    ASSERT_EQ(run[row], static_cast<double>(row / 200));
  }
}

TEST(ExampleStudy, KeepsParametersConstantWithinRunsAndInTheirRanges)
{
  for (std::size_t k = 0; k < 4; ++k)
  {
    const double* values = study()->values[8 + k];
    const auto [lower, upper] = study()->parameterRanges[k];
    for (std::size_t row = 0; row < rows(); ++row)
    {
      ASSERT_EQ(values[row], values[row - row % 200]);
      ASSERT_GE(values[row], lower);
      ASSERT_LE(values[row], upper);
    }
  }
}

TEST(ExampleStudy, HoldsTheTrajectoriesOfItsParameters)
{
  constexpr std::size_t run = 123;
  std::vector<double> times;
  for (int point = 0; point < 200; ++point)
    times.push_back(point * 180.0 / mRnaLifetimeInSeconds());
  const auto states = integrateRepressilator(exampleParameters()[run], exampleStart(), times);
  for (std::size_t point = 0; point < 200; ++point)
    for (std::size_t gene = 0; gene < 3; ++gene)
    {
      ASSERT_EQ(study()->values[gene][run * 200 + point], states[point][3 + gene]);
      ASSERT_EQ(study()->values[3 + gene][run * 200 + point], states[point][gene]);
    }
}

TEST(ExampleStudy, HoldsFiniteAmountsOnly)
{
  for (std::size_t item = 0; item < 6; ++item)
    for (std::size_t row = 0; row < rows(); ++row)
    {
      ASSERT_TRUE(std::isfinite(study()->values[item][row]));
      ASSERT_GT(study()->values[item][row], -1e-3);
    }
}

TEST(ExampleStudy, HasRunsThatOscillateAndRunsThatRest)
{
  const auto parameters = exampleParameters();
  const auto stable = std::count_if(parameters.begin(), parameters.end(), repressilatorIsStable);
  EXPECT_GT(stable, 100);
  EXPECT_LT(stable, 300);
}

TEST(ExampleStudy, TellsHowFarItIsAndStopsWhenToldTo)
{
  std::vector<double> told;
  EXPECT_FALSE(makeExampleStudy(
      [&told](double done)
      {
        told.push_back(done);
        return told.size() < 3;
      }));
  EXPECT_EQ(told, (std::vector<double>{1.0 / 400.0, 2.0 / 400.0, 3.0 / 400.0}));
}

TEST(ExampleStudy, IsReadySoon)
{
  // Of this process, in one thread: on an idle machine that is the time that the user waits.
  const std::clock_t begin = std::clock();
  makeExampleStudy();
  const double seconds = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
  EXPECT_LT(seconds, promisedSeconds * slowness);
}
