#include "app/ComparisonOptions.h"

#include "app/OptionValues.h"
#include "app/comparison/ComparisonChoice.h"

#include <string_view>

namespace Talmesh::app
{

namespace
{

template <typename Value>
struct NamedValue
{
  std::string_view name;
  Value value;
};

constexpr NamedValue<stats::ComparedBy> testsByName[] = {
    {"ks", stats::ComparedBy::distribution},
    {"mannwhitney", stats::ComparedBy::rankSum},
    {"counts", stats::ComparedBy::counts}};

constexpr NamedValue<stats::Adjustment> adjustmentsByName[] = {
    {"bh", stats::Adjustment::benjaminiHochberg},
    {"holm", stats::Adjustment::holm},
    {"maxt", stats::Adjustment::maxT}};

/// Nothing for a name that is not among them.
template <typename Value, std::size_t count>
std::optional<Value> valueOf(std::string_view name, const NamedValue<Value> (&values)[count])
{
  for (const NamedValue<Value>& one : values)
    if (one.name == name)
      return one.value;
  return std::nullopt;
}

std::string readTest(const std::string& value, PlotWishes& wishes)
{
  wishes.comparedBy = valueOf(value, testsByName);
  return wishes.comparedBy ? std::string()
                           : "--compare-by takes ks, mannwhitney or counts, not " + value;
}

std::string readAdjustment(const std::string& value, PlotWishes& wishes)
{
  wishes.adjustment = valueOf(value, adjustmentsByName);
  return wishes.adjustment ? std::string() : "--adjust takes bh, holm or maxt, not " + value;
}

std::string readSeed(const std::string& value, PlotWishes& wishes)
{
  std::uint64_t seed = 0;
  if (!readNumber<std::uint64_t>(value, 1, largestSeed, seed))
    return "--seed takes a whole number from 1 to " + std::to_string(largestSeed) + ", not " +
           value;
  wishes.seed = seed;
  return {};
}

/// "saltelli", or "saltelli:K" for K parameters.
std::optional<stats::KnownDesign> designOf(std::string_view text)
{
  // More parameters than a table has columns.
  constexpr std::size_t tooMany = 100'000;
  const std::string_view name = text.substr(0, text.find(':'));
  stats::KnownDesign design{true, 0};
  if (name != "saltelli")
    return std::nullopt;
  if (name.size() == text.size())
    return design;
  return readNumber<std::size_t>(text.substr(name.size() + 1), 1, tooMany - 1, design.parameters)
             ? std::optional(design)
             : std::nullopt;
}

std::string readDesign(const std::string& value, PlotWishes& wishes)
{
  wishes.design = designOf(value);
  return wishes.design ? std::string()
                       : "--design takes saltelli, or saltelli:K for K parameters, not " + value;
}

} // namespace

const std::vector<ComparisonOption>& comparisonOptions()
{
  static const std::vector<ComparisonOption> all = {{"compare-by", readTest},
                                                    {"adjust", readAdjustment},
                                                    {"seed", readSeed},
                                                    {"design", readDesign}};
  return all;
}

std::string comparisonHelp()
{
  return "  --compare-by TEST       compare distributions (ks, without this), ranks (mannwhitney) "
         "or\n"
         "                          the counts of values (counts)\n"
         "  --adjust METHOD         adjust p for several parameters by Benjamini and Hochberg "
         "(bh,\n"
         "                          without this), Holm (holm) or joint permutations (maxt)\n"
         "  --halves                test in one half of the runs what differs in the other\n"
         "  --seed N                the seed of halves and permutations, 1 without this\n"
         "  --design saltelli[:K]   the parameter sets are a Saltelli design of K parameters, or "
         "of as\n"
         "                          many as vary; otherwise it is recognised by the values\n";
}

} // namespace Talmesh::app
