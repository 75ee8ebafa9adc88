#ifndef ComparisonResults_h
#define ComparisonResults_h

#include "app/comparison/ComparisonChoice.h"
#include "stats/RunComparison.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace Talmesh::app
{

/// The runs that are compared, as they are called; empty for the present selection, and for the
/// others.
struct ComparedNames
{
  std::string selected;
  std::string others;
};

/// What there is to compare: the parameters of a study's runs and which runs are selected.
struct ComparedStudy
{
  /// One per parameter, without its kind.
  std::vector<std::string> names;
  /// Parameters that change within a run, by position; there is no value of the run then, and their
  /// columns do not count.
  std::vector<std::size_t> changing;
  /// One per parameter.
  stats::ParameterColumns columns;
  /// An entry per run.
  std::vector<char> selected;
  /// Parameters that the selection itself asks about, by position.
  std::vector<std::size_t> chosenBy;
  /// Runs in neither group, an entry per run, 0 for those that are compared; empty for none.
  std::vector<char> leftOut{};
  /// How many of these are left out for being in both.
  std::size_t inBoth = 0;
  /// Parameters that tell runs with otherwise equal parameters apart, by position, as "seed" does.
  std::vector<std::size_t> labels{};
  ComparedNames sides{};
  /// Whether words select the runs, so that they do so in halves.
  bool byWords = false;
  /// Of each parameter the texts that its numbers 0, 1, 2, ... stand for; empty for numbers that
  /// are numbers.
  std::vector<std::vector<std::string>> levels{};

  bool isCategory(std::size_t parameter) const
  {
    return parameter < levels.size() && !levels[parameter].empty();
  }
};

bool operator==(const ComparedStudy& one, const ComparedStudy& other);

/// Why a parameter has no p.
enum class TestObstacle
{
  none,
  emptyGroup,
  constant,
  chosenByParameter,
  tooManyLevels,
  tooFewUnits,
  cancelled,
  /// A run has several values.
  changingValues,
  /// The test is not through.
  pending,
  /// The other half of the runs gave no reason to test it.
  alikeInFirstHalf,
  /// It tells the runs of a set of parameters apart.
  label
};

/// How one parameter of the selected runs differs from that of the other runs.
struct ComparedParameter
{
  /// Without its kind.
  std::string name;
  stats::ParameterComparison result;
  TestObstacle obstacle = TestObstacle::none;
  /// Whether adjusted p and D, or V of a category, meet the thresholds.
  bool significant = false;
  /// By which the half was drawn that the numbers speak of; 0 where they speak of all runs.
  std::uint64_t seedOfHalf = 0;
  /// Of a category: the text that selected runs have more often than others, by most.
  std::string leading{};
};

/// What can be said of a selection.
struct Comparison
{
  enum class State
  {
    compared,
    noParameters,
    nothingSelected,
    noOthers,
    /// All runs of one group are in the other, too.
    onlyInBoth
  };

  State state = State::noParameters;
  /// In the order of the parameters; empty unless something was compared.
  std::vector<ComparedParameter> parameters;
  stats::UnitSummary units;
  /// Of the permutations, if any were made.
  std::uint64_t seed = 0;
  std::size_t permutations = 0;
  /// An entry per run, 0 for those that the numbers speak of; empty for all.
  std::vector<char> uncounted;
  /// Only one half of the independent units was tested, drawn at random.
  bool halved = false;
  /// Seed of that.
  std::uint64_t seedOfHalves = 0;
  /// By the words that select the runs, in either half; otherwise the selection was split.
  bool byWords = false;
  /// The test is not through.
  bool pending = false;
  ComparedNames sides;
  /// Runs in both groups, which count for neither.
  std::size_t inBoth = 0;
};

/// What can be said of these runs without comparing them; `compared` if they are to be compared.
Comparison::State comparisonState(const ComparedStudy& study);

/// Whether a comparison takes longer than a user waits without a word.
bool takesTime(const ComparedStudy& study, const ComparisonChoice& choice);

/// Compares. May run in any thread.
/// @param progress told the part done; false gives up. May be empty
Comparison compare(const ComparedStudy& study, const ComparisonChoice& choice,
                   const std::function<bool(double)>& progress = {});

/// The same without tests, which are to follow, or were given up.
/// @param why `pending` or `cancelled`
Comparison describe(const ComparedStudy& study, const ComparisonChoice& choice, TestObstacle why);

/// Decides anew what is significant, for other thresholds.
void applyThresholds(Comparison& comparison, const ComparisonChoice& choice);

} // namespace Talmesh::app

#endif
