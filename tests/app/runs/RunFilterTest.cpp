#include "app/runs/RunFilter.h"

#include "app/runs/SampleCourses.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

using Talmesh::app::FilterFault;
using Talmesh::app::RunFilter;

namespace
{

const SampleCourses sample;

/// The numbers of the runs that a filter selects.
std::set<int> runsOf(const std::string& text)
{
  FilterFault fault;
  const RunFilter filter = RunFilter::read(text, sample, fault);
  EXPECT_EQ(fault.text, "") << text << " at " << fault.position;
  std::set<int> runs;
  for (std::size_t run = 0; run < sample.numberOfRuns(); ++run)
  {
    if (filter.selects(sample, run))
      runs.insert(static_cast<int>(sample.runNumber(run)));
  }
  return runs;
}

using Runs = std::set<int>;

/// "3: what is wrong" for a filter that is wrong from its byte 3 on; it selects nothing.
std::string faultOfFilter(const std::string& text)
{
  FilterFault fault;
  const RunFilter filter = RunFilter::read(text, sample, fault);
  for (std::size_t run = 0; run < sample.numberOfRuns(); ++run)
    EXPECT_FALSE(filter.selects(sample, run)) << text;
  return std::to_string(fault.position) + ": " + fault.text;
}

} // namespace

TEST(RunFilter, ComparesFeaturesOfItems)
{
  EXPECT_EQ(runsOf("max(TetR) > 60"), (Runs{102, 104}));
  EXPECT_EQ(runsOf("min(TetR) >= 5"), (Runs{103, 104}));
  EXPECT_EQ(runsOf("mean(TetR) < 34"), (Runs{101, 102}));
  EXPECT_EQ(runsOf("first(TetR) = 0"), (Runs{101, 102}));
  EXPECT_EQ(runsOf("final(TetR) != 0"), (Runs{103, 104}));
  EXPECT_EQ(runsOf("at(TetR, 5) = 50"), (Runs{102, 103}));
  EXPECT_EQ(runsOf("peaks(TetR) = 1"), (Runs{101, 102}));
  EXPECT_EQ(runsOf("peaks(TetR, 50) = 1"), (Runs{102}));
}

TEST(RunFilter, ComparesParameters)
{
  EXPECT_EQ(runsOf("alpha < 5"), (Runs{101, 102}));
  EXPECT_EQ(runsOf("1 < alpha <= 40"), (Runs{102, 104}));
}

TEST(RunFilter, JoinsConditions)
{
  EXPECT_EQ(runsOf("max(TetR) > 60 and alpha < 5"), (Runs{102}));
  EXPECT_EQ(runsOf("alpha = 1 or alpha = 40 and max(TetR) < 60"), (Runs{101}));
  EXPECT_EQ(runsOf("(alpha = 1 or alpha = 40) and max(TetR) > 60"), (Runs{104}));
  EXPECT_EQ(runsOf("not max(TetR) > 60"), (Runs{101, 103}));
  EXPECT_EQ(runsOf("NOT not max(TetR) > 60"), (Runs{102, 104}));
}

TEST(RunFilter, KnowsAllAndNoneWhereAConditionIsWanted)
{
  EXPECT_EQ(runsOf("all"), (Runs{101, 102, 103, 104}));
  EXPECT_EQ(runsOf("none"), Runs{});
  EXPECT_EQ(runsOf("not (none)"), (Runs{101, 102, 103, 104}));
  EXPECT_EQ(runsOf("all and alpha < 5 or (none)"), (Runs{101, 102}));
  EXPECT_EQ(faultOfFilter("all < 5"), "0: no column all");
  EXPECT_EQ(faultOfFilter("max(none) > 1"), "4: no column none");
}

TEST(RunFilter, TellsOneOrTheOtherFromBoth)
{
  EXPECT_EQ(runsOf("alpha < 5 xor max(TetR) > 60"), (Runs{101, 104}));
  EXPECT_EQ(runsOf("alpha < 5 xor max(TetR) > 60 xor run = 103"), (Runs{101, 103, 104}));
  EXPECT_EQ(runsOf("run = 103 or alpha < 5 xor max(TetR) > 60 and all"), (Runs{101, 103, 104}))
      << "between or and and";
}

TEST(RunFilter, FindsRunsInLists)
{
  EXPECT_EQ(runsOf("runs(104, 7, 101, 104)"), (Runs{101, 104}));
  EXPECT_EQ(runsOf("runs(100 + 2, 103)"), (Runs{102, 103}));
}

TEST(RunFilter, Calculates)
{
  EXPECT_EQ(runsOf("max(TetR) - min(TetR) = 10 * alpha"), (Runs{101}));
  EXPECT_EQ(runsOf("alpha ^ 2 / 2 = 2"), (Runs{102}));
  EXPECT_EQ(runsOf("-2 ^ 2 + alpha = -3"), (Runs{101}));
  EXPECT_EQ(runsOf("2 ^ 3 ^ alpha = 8 or 2 ^ 3 ^ alpha = 512"), (Runs{101, 102}));
  EXPECT_EQ(runsOf("2 ^ -alpha = 0.25"), (Runs{102}));
  EXPECT_EQ(runsOf("8 / 2 / 2 = alpha"), (Runs{102}));
  EXPECT_EQ(runsOf("5 - 2 - 2 = alpha"), (Runs{101}));
  EXPECT_EQ(runsOf("log10(max(TetR)) = alpha"), (Runs{101, 102}));
  EXPECT_EQ(runsOf("abs(-alpha) = sqrt(alpha ^ 2) and exp(ln(alpha)) < 1.5"), (Runs{101}));
}

TEST(RunFilter, MeetsNoComparisonWithAMissingValue)
{
  EXPECT_EQ(runsOf("alpha != 1"), (Runs{102, 104})) << "run 103 has no alpha";
  EXPECT_EQ(runsOf("alpha = alpha"), (Runs{101, 102, 104}));
  EXPECT_EQ(runsOf("not alpha = 1"), (Runs{102, 103, 104}));
  EXPECT_EQ(runsOf("at(TetR, 10) < 1000"), (Runs{101, 102, 103})) << "run 104 has none at 10";
  EXPECT_EQ(runsOf("at(TetR, 21) < 1000"), Runs()) << "after the end";
  EXPECT_EQ(runsOf("peaks(TetR, alpha) >= 0"), (Runs{101, 102, 104}));
  EXPECT_EQ(runsOf("through(TetR, 0, 20, 0, 1000 * alpha)"), (Runs{101, 102, 104}));
}

TEST(RunFilter, SelectsWhatIsDrawn)
{
  EXPECT_EQ(runsOf("through(TetR, 4, 6, 40, 60)"), (Runs{102, 103}));
  EXPECT_EQ(runsOf("inside(TetR, 5, 15, 1, 60)"), (Runs{101, 103}));
  EXPECT_EQ(runsOf("crosses(TetR, 5, 0, 5, 20)"), (Runs{101}));
  EXPECT_EQ(runsOf("lasso(TetR, 4, 40, 6, 40, 5, 60)"), (Runs{102, 103}));
}

TEST(RunFilter, SelectsPointsWhereNoLineIsDrawn)
{
  EXPECT_EQ(runsOf("dot(TetR, 4, 6, 40, 60)"), Runs()) << "between two points";
  EXPECT_EQ(runsOf("dot(TetR, 4, 10, 40, 100)"), (Runs{102, 103}));
  EXPECT_EQ(runsOf("dotlasso(TetR, 4, 40, 6, 40, 5, 60)"), Runs());
  EXPECT_EQ(runsOf("dotlasso(TetR, 9, 45, 11, 45, 10, 60)"), Runs{103});
}

TEST(RunFilter, SelectsWhatIsDrawnOnLogAxes)
{
  // Between 1 at time 0 and 2 at 10 the line is at 1.5 on a linear axis, at 1.414 on a logarithmic
  // one.
  EXPECT_EQ(runsOf("through(\"Molecule: cI\", 4.99, 5.01, 1.4, 1.43)"), Runs());
  EXPECT_EQ(runsOf("through(\"Molecule: cI\", 4.99, 5.01, 1.4, 1.43, logy)"), (Runs{102}));
  // Between 2 at time 10 and 3 at 20 the middle of a logarithmic time is 14.14.
  EXPECT_EQ(runsOf("through(\"Molecule: cI\", 14.1, 14.2, 2.49, 2.51, logx)"), (Runs{102}));
  EXPECT_EQ(runsOf("crosses(\"Molecule: cI\", 14.14, 2.44, 14.14, 2.46, logxy)"), (Runs{102}));
}

TEST(RunFilter, SelectsWhatIsDrawnOverAnotherItem)
{
  // cI over TetR goes from (0, 1) to (100, 2) and to (0, 3) in run 102.
  EXPECT_EQ(runsOf("through(\"Molecule: cI\" over TetR, 98, 102, 1.9, 2.1)"), (Runs{102}));
}

TEST(RunFilter, SelectsRunsByNumber)
{
  EXPECT_EQ(runsOf("runs(102, 104, 7)"), (Runs{102, 104}));
  EXPECT_EQ(runsOf("run >= 103"), (Runs{103, 104}));
}

TEST(RunFilter, PointsToWhatIsWrong)
{
  EXPECT_EQ(faultOfFilter("max(LacI) > 3"), "4: no column LacI");
  EXPECT_EQ(faultOfFilter("alpha > 1 and TetR > 3"),
            "14: TetR changes during a run: say max(TetR), final(TetR) or another number of it");
  EXPECT_EQ(faultOfFilter("max(TetR)"), "0: a condition is wanted here, such as \"max(A) > 1\"");
  EXPECT_EQ(faultOfFilter("alpha > (alpha < 3)"), "9: a number is wanted here, not a condition");
  EXPECT_EQ(faultOfFilter("alpha > through(TetR, 1, 2, 3, 4)"),
            "8: a number is wanted here, not a condition");
  EXPECT_EQ(faultOfFilter("max(3) > 2"), "4: the name of an item is wanted here");
  EXPECT_EQ(faultOfFilter("max() > 2"), "0: max takes an item: the name of a column");
  EXPECT_EQ(faultOfFilter("max(TetR, 3) > 2"), "0: max takes one item and nothing else");
  EXPECT_EQ(faultOfFilter("at(TetR) > 2"), "0: at takes an item and one number");
  EXPECT_EQ(faultOfFilter("1 < peaks(TetR, 1, 2)"),
            "4: peaks takes an item and at most one number");
  EXPECT_EQ(faultOfFilter("through(TetR, 1, 2, 3)"), "0: through takes an item and 4 numbers");
  EXPECT_EQ(faultOfFilter("lasso(TetR, 1, 2, 3, 4, 5)"),
            "0: lasso takes an item and three or more points, each a time and a value");
  EXPECT_EQ(faultOfFilter("runs()"), "0: runs takes one or more numbers");
  EXPECT_EQ(faultOfFilter("ln(1, 2) > 0"), "0: ln takes one number");
  EXPECT_EQ(faultOfFilter("max(TetR over alpha) > 0"), "0: max looks at one item over time");
  EXPECT_EQ(
      faultOfFilter("lg(alpha) > 2"),
      "0: there is no function lg; there are min, max, mean, first, final, at, peaks, period, "
      "through, inside, crosses, lasso, dot, dotlasso, runs, abs, sqrt, exp, ln, log10");
  EXPECT_EQ(faultOfFilter("alpha < 1e999"), "8: this number is too large");
  EXPECT_EQ(faultOfFilter("through(TetR, 0, 1, 0, 2e308)"), "23: this number is too large");
  EXPECT_EQ(faultOfFilter("alpha >"), "7: a name or a number is missing here");
}

TEST(RunFilter, IsGivenUpWhenAsked)
{
  FilterFault fault;
  const RunFilter filter = RunFilter::read("alpha > 0", sample, fault);
  EXPECT_TRUE(filter.select(sample, [](double) { return false; }).isCancelled());
  int asked = 0;
  const auto once = [&asked](double) { return ++asked < 2; };
  EXPECT_TRUE(filter.select(sample, once).isCancelled()) << "between any two runs";
  EXPECT_EQ(filter.select(sample, {}).value(), (std::vector<bool>{true, true, false, true}));
}

TEST(RunFilter, ComparesTextsForEqualOnly)
{
  /// alpha holds texts: that of the run 101 is one, that of 102 is two, or TetR.
  class TextCourses : public SampleCourses
  {
  public:
    std::optional<double> numberOf(int column, const std::string& text) const override
    {
      if (column != 0)
        return std::nullopt;
      return text == "one"                     ? std::optional<double>(1)
             : text == "two" || text == "TetR" ? std::optional<double>(2)
                                               : std::nullopt;
    }
  } const texts;
  const auto selects = [&texts](const char* text, std::size_t run)
  {
    FilterFault fault;
    const RunFilter filter = RunFilter::read(text, texts, fault);
    return fault.text.empty() ? filter.selects(texts, run) ? "yes" : "no" : fault.text;
  };
  EXPECT_EQ(selects("alpha = one", 0), "yes");
  EXPECT_EQ(selects("two == alpha", 0), "no");
  EXPECT_EQ(selects("alpha != two", 0), "yes");
  EXPECT_EQ(selects("0 < alpha = one", 0), "yes");
  for (const char* ordered : {"alpha < two", "one <= alpha", "alpha > one", "two >= alpha"})
    EXPECT_EQ(selects(ordered, 0), std::string(ordered).find("one") != std::string::npos
                                       ? "no column one"
                                       : "no column two")
        << ordered;
  // An item that is called as a text.
  EXPECT_NE(selects("alpha = TetR", 1), "yes");
}
