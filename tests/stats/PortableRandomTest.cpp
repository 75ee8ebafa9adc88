#include "stats/PortableRandom.h"

#include <gtest/gtest.h>

#include <numeric>

using Talmesh::stats::PortableRandom;

// Expected numbers: Python, mt19937_64 and seed_seq written down from the C++ standard
// ([rand.eng.mers], [rand.util.seedseq]), below(n) = the upper word of (number >> 32) * n, again
// where the lower word is less than 2^32 mod n.
TEST(PortableRandom, IsTheSameEverywhere)
{
  PortableRandom random(2026, 3);
  for (const std::uint32_t expected : {7U, 8U, 2U, 3U, 9U, 8U, 6U, 6U, 3U, 7U, 4U, 9U})
    EXPECT_EQ(random.below(10), expected);
  // A third of the numbers are drawn again.
  for (const std::uint32_t expected :
       {2278364099U, 2614021808U, 2911049804U, 2700281991U, 1601765587U, 2569204451U})
    EXPECT_EQ(random.below(3U << 30U), expected);
  EXPECT_EQ(random.unit(), 0.6545229055919346);
}

TEST(PortableRandom, ShufflesTheSameEverywhere)
{
  std::vector<int> values(10);
  std::iota(values.begin(), values.end(), 0);
  PortableRandom((std::uint64_t{5} << 32U) + 1, 0).shuffle(values);
  EXPECT_EQ(values, (std::vector<int>{6, 8, 5, 4, 0, 1, 3, 7, 2, 9}));
}

TEST(PortableRandom, TellsSeedsAndStreamsApart)
{
  const auto first = [](std::uint64_t seed, std::uint64_t stream)
  { return PortableRandom(seed, stream).unit(); };
  EXPECT_EQ(first(1, 2), first(1, 2));
  EXPECT_NE(first(1, 2), first(2, 1));
  EXPECT_NE(first(1, 2), first(1, 3));
  EXPECT_NE(first(1, 2), first(1 + (std::uint64_t{1} << 32U), 2));
}

TEST(PortableRandom, OrdersAreEquallyLikely)
{
  PortableRandom random(1, 0);
  std::vector<int> counts(6);
  for (int i = 0; i < 6000; ++i)
  {
    std::vector<int> values{0, 1, 2};
    random.shuffle(values);
    ++counts[std::size_t(2 * values[0] + (values[1] > values[2] ? 1 : 0))];
  }
  // Four standard deviations.
  for (const int count : counts)
    EXPECT_NEAR(count, 1000, 4 * 28.9);
}
