#ifndef ParameterComparison_h
#define ParameterComparison_h

#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

/// What a comparison of selected runs with the others says of one parameter.
namespace Talmesh::stats
{
/// One vector per parameter, all of one length, with a value per run. NaN is a missing value.
using ParameterColumns = std::vector<std::vector<double>>;

/// What is independent in a study.
enum class IndependentUnit
{
  run,
  /// The runs of equal parameters.
  parameterSet,
  /// The runs of a base sample of a Saltelli design.
  baseSample,
  /// Runs that share values (stats/LinkedRuns.h).
  linkedRuns
};

/// What somebody knows of how the parameters of a study were chosen, beyond what the values tell.
struct KnownDesign
{
  /// The runs, or the sets of as many runs each, are a Saltelli design (stats/SaltelliDesign.h).
  bool isSaltelli = false;
  /// Of how many parameters; 0 for as many as vary.
  std::size_t parameters = 0;

  friend bool operator==(const KnownDesign& left, const KnownDesign& right)
  {
    return left.isSaltelli == right.isSaltelli && left.parameters == right.parameters;
  }
};

/// What is compared between the selected runs and the others.
enum class ComparedBy
{
  /// Largest distance of the distribution functions, D.
  distribution,
  /// |2 A - 1| for the probability of superiority A, as Mann and Whitney compare.
  rankSum,
  /// Pearson's chi-squared of the counts per value.
  counts
};

/// Where the selected runs have their values, compared with the others.
enum class Direction
{
  /// The two distribution functions are equal, or a group is empty.
  none,
  larger,
  smaller,
  /// Larger and smaller ones, or such between: the lesser of the two one-sided distances is more
  /// than half of the greater.
  bothWays
};

struct Interval
{
  double low = 0.0;
  double high = 0.0;
};

/// How a p-value was found.
enum class TestMethod
{
  none,
  /// Kolmogorov-Smirnov, exact for the ties there are (stats/TiedKolmogorovSmirnov.h).
  exactDistribution,
  /// Kolmogorov-Smirnov, the limit for large samples.
  asymptoticDistribution,
  /// Mann-Whitney, exact for the ties there are (stats/MannWhitney.h).
  exactRankSum,
  /// Mann-Whitney by the normal distribution, with ties and continuity correction.
  normalRankSum,
  /// Fisher's exact test of the counts per value (stats/LevelCounts.h).
  exactCounts,
  /// The counts per value by the chi-squared distribution.
  chiSquaredCounts,
  /// The counts per value by permutations of single runs: too many tables, too small counts.
  permutedRuns,
  /// Permutations of whole parameter sets (stats/SelectionPermutation.h).
  permutedSets,
  /// Permutations of the base samples of a Saltelli design.
  permutedBaseSamples,
  /// Permutations of whole groups of runs that share values.
  permutedLinkedRuns
};

/// How p is adjusted for the number of parameters.
enum class Adjustment
{
  /// False discovery rate (stats/AdjustedPValues.h).
  benjaminiHochberg,
  /// Probability of any false rejection (stats/AdjustedPValues.h).
  holm,
  /// The same by permutations common to all parameters, which uses how they hang together
  /// (stats/SelectionPermutation.h). Also for single runs, where p itself comes from no
  /// permutation.
  maxT
};

/// Why there is no p-value. What comes first here is told where several hold.
enum class NotTested
{
  /// There is one.
  tested,
  /// No run of one of the groups has a value.
  emptyGroup,
  /// All runs have the same value.
  constant,
  /// The selection was made by this parameter.
  chosenByParameter,
  /// The plan says so.
  leftUntested,
  /// More values than a table of counts has rows (`mostLevels`).
  tooManyLevels,
  /// The independent units have fewer than `fewestArrangements` arrangements.
  tooFewUnits,
  /// The user has given up.
  cancelled
};

/// One row of the table. What does not exist is NaN.
struct ParameterComparison
{
  static constexpr double none = std::numeric_limits<double>::quiet_NaN();

  /// Position among the parameters.
  std::size_t parameter = 0;
  /// Runs with a value of this parameter.
  std::size_t selected = 0;
  std::size_t others = 0;
  /// Different values of all these runs.
  std::size_t levels = 0;

  /// Largest distance of the two empirical distribution functions, in [0, 1].
  double distance = none;
  /// Bounds for the distance of the true distributions; only where the runs are independent.
  Interval interval{none, none};
  Direction direction = Direction::none;
  /// Probability that the value of a selected run exceeds another's, ties count half.
  double superiority = none;
  /// Median of the selected runs less that of the others.
  double medianDifference = none;

  /// Whether its values are names without an order. Nothing of the above is said of them, but:
  bool isUnordered = false;
  /// Cramer's V of the counts per value, in [0, 1] (stats/LevelCounts.h).
  double association = none;
  /// The value whose share among the selected runs exceeds that among the others most.
  double leading = none;

  /// In (0, 1]. Below what doubles hold with all their digits it is the smallest such
  /// one, 2.2e-308: a bound.
  double p = none;
  /// Natural logarithm of p, also of what p only bounds.
  double logP = none;
  /// For the number of parameters with a p; at least p.
  double adjusted = none;
  TestMethod method = TestMethod::none;
  /// What the test compares, also by permutations.
  ComparedBy comparedBy = ComparedBy::distribution;
  NotTested reason = NotTested::tested;
  /// Permutations behind p; 0 for other methods.
  std::size_t permutations = 0;
  /// Of the adjusted p, and the permutations behind it; 0 for other adjustments.
  Adjustment adjustment = Adjustment::benjaminiHochberg;
  std::size_t adjustingPermutations = 0;
  /// Of all these permutations, if any.
  std::uint64_t seed = 0;

  /// How much the groups differ, in [0, 1]: Cramer's V of names, D of numbers.
  double effect() const { return isUnordered ? association : distance; }
  /// Whether the true p is smaller.
  bool isOnlyBounded() const { return p <= std::numeric_limits<double>::min(); }
};
} // namespace Talmesh::stats

#endif
