#include "stats/PortableRandom.h"
#include "stats/TiedKolmogorovSmirnov.h"

#include <boost/multiprecision/cpp_dec_float.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

using namespace Talmesh::stats;

namespace
{
using FiftyDigits = boost::multiprecision::cpp_dec_float_50;

struct Groups
{
  std::vector<double> selected;
  std::vector<double> others;
};

/// @param levels 0 for values without ties
/// @param shift how much larger the selected values are, in parts of the range
Groups randomGroups(PortableRandom& random, std::size_t m, std::size_t n, std::uint32_t levels,
                    double shift)
{
  const auto value = [&random, levels](double more)
  {
    const double uniform = random.unit() + more;
    return levels == 0 ? uniform : std::floor(uniform * levels);
  };
  Groups groups;
  for (std::size_t i = 0; i < m; ++i)
    groups.selected.push_back(value(shift));
  for (std::size_t i = 0; i < n; ++i)
    groups.others.push_back(value(0.0));
  return groups;
}

/// The recursion of the header, row by row in fifty digits.
FiftyDigits tailInFiftyDigits(const TieBlocks& blocks, long m, long n, long steps)
{
  std::vector<char> endsBlock(static_cast<std::size_t>(m + n + 1), 0);
  std::size_t end = 0;
  for (const TieBlock& block : blocks)
    endsBlock[end += block.selected + block.others] = 1;
  std::vector<FiftyDigits> row(static_cast<std::size_t>(n + 1), 0);
  for (long i = 0; i <= m; ++i)
    for (long j = 0; j <= n; ++j)
    {
      FiftyDigits& here = row[static_cast<std::size_t>(j)];
      if (endsBlock[static_cast<std::size_t>(i + j)] && std::abs(i * n - j * m) >= steps)
        here = 1;
      else if (i + j == 0)
        here = 0;
      else
        here = (i * (i > 0 ? here : FiftyDigits(0)) +
                j * (j > 0 ? row[static_cast<std::size_t>(j - 1)] : FiftyDigits(0))) /
               (i + j);
    }
  return row.back();
}

/// Counts the choices of the selected ones among all values that are as far apart.
double tailByCounting(const Groups& groups, std::uint64_t steps)
{
  std::vector<double> all(groups.selected);
  all.insert(all.end(), groups.others.begin(), groups.others.end());
  std::vector<char> chosen(all.size(), 0);
  std::fill_n(chosen.rbegin(), groups.selected.size(), 1);
  double choices = 0.0;
  double reached = 0.0;
  do
  {
    std::vector<double> selected, others;
    for (std::size_t i = 0; i < all.size(); ++i)
      (chosen[i] ? selected : others).push_back(all[i]);
    choices += 1.0;
    reached += ksDistance(tieBlocks(selected, others)).steps() >= steps ? 1.0 : 0.0;
  } while (std::next_permutation(chosen.begin(), chosen.end()));
  return reached / choices;
}
} // namespace

TEST(TiedKolmogorovRandom, AgreesWithFiftyDigitsWithAndWithoutTies)
{
  PortableRandom random(1, 0);
  double smallest = 1.0;
  for (const std::uint32_t levels : {0U, 3U, 12U})
    for (int sample = 0; sample < 20; ++sample)
    {
      const std::size_t m = 1 + random.below(60);
      const std::size_t n = 1 + random.below(90);
      const Groups groups = randomGroups(random, m, n, levels, 0.04 * sample);
      const TieBlocks blocks = tieBlocks(groups.selected, groups.others);
      const KsTest test = tiedKsTest(blocks);
      const FiftyDigits exact =
          tailInFiftyDigits(blocks, static_cast<long>(m), static_cast<long>(n),
                            static_cast<long>(test.distance.steps()));
      ASSERT_TRUE(test.exact);
      EXPECT_LT(abs(test.p / exact - 1), 1e-12) << m << ' ' << n << ' ' << levels << ' ' << test.p;
      smallest = std::min(smallest, test.p);
    }
  EXPECT_LT(smallest, 1e-13) << "where R has no digits left";
}

TEST(TiedKolmogorovRandom, AgreesWithCountingAllChoices)
{
  PortableRandom random(2, 0);
  for (const std::uint32_t levels : {0U, 2U, 4U})
    for (int sample = 0; sample < 12; ++sample)
    {
      const Groups groups =
          randomGroups(random, 1 + random.below(5), 1 + random.below(7), levels, 0.2);
      const KsTest test = tiedKsTest(tieBlocks(groups.selected, groups.others));
      EXPECT_NEAR(test.p, tailByCounting(groups, test.distance.steps()), 1e-14);
    }
}
