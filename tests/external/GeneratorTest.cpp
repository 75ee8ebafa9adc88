#include "external/SharedTypes.h"

#include <gtest/gtest.h>

#include <ctime>

#include "FirstDraw.h"

namespace
{

bool isFirstDrawOfASeedBetween(std::uint_fast32_t drawn, std::time_t first, std::time_t last)
{
  for (std::time_t seconds = first; seconds <= last; ++seconds)
    if (std::mt19937(static_cast<std::mt19937::result_type>(seconds))() == drawn)
      return true;
  return false;
}

} // namespace

TEST(Generator, IsTheStandardMersenneTwister)
{
  // ISO C++ [rand.predef]: the 10000th value of a default-seeded mt19937 is 4123659995.
  Talmesh::MersenneTwister.seed(std::mt19937::default_seed);
  Talmesh::MersenneTwister.discard(9999);
  EXPECT_EQ(Talmesh::MersenneTwister(), 4123659995u);
  EXPECT_EQ(std::mt19937::state_size, 624u);
  EXPECT_EQ(std::mt19937::word_size, 32u);
}

TEST(Generator, InitSeedsWithTheCurrentTime)
{
  Talmesh::MersenneTwister.seed(1);
  const std::time_t before = std::time(nullptr);
  const Talmesh::init seeding;
  const std::time_t after = std::time(nullptr);
  EXPECT_TRUE(isFirstDrawOfASeedBetween(Talmesh::MersenneTwister(), before, after));
}

TEST(Generator, TheLastSeedingWins)
{
  const std::time_t before = std::time(nullptr);
  const Talmesh::init first;
  Talmesh::MersenneTwister.discard(5);
  const Talmesh::init second;
  const std::time_t after = std::time(nullptr);
  EXPECT_TRUE(isFirstDrawOfASeedBetween(Talmesh::MersenneTwister(), before, after));
}

TEST(Generator, EveryIncludingFileSeedsWhenItIsLoaded)
{
  // Had only one of them seeded, the other would have drawn the second value or an unseeded one.
  const std::time_t now = std::time(nullptr);
  const std::time_t anHourAgo = now - 3600;
  EXPECT_TRUE(isFirstDrawOfASeedBetween(firstDrawOfOneFile(), anHourAgo, now));
  EXPECT_TRUE(isFirstDrawOfASeedBetween(firstDrawOfAnotherFile(), anHourAgo, now));
}
