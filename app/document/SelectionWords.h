#ifndef SelectionWords_h
#define SelectionWords_h

#include <cstddef>
#include <string>
#include <vector>

namespace Talmesh::app
{

/// What becomes of the runs selected so far when others are selected.
enum class RunCombination
{
  Replace,
  Add,
  Subtract,
  Toggle
};

/// `before` and `hit` say for each run whether it is selected; both have the same length.
std::vector<bool> combineRuns(std::vector<bool> before, const std::vector<bool>& hit,
                              RunCombination how);

/// A step from one selection of runs to the next one, in words.
struct SelectionStep
{
  RunCombination how = RunCombination::Replace;
  /// A condition, as of `RunFilter`; empty where nobody has said it in words.
  std::string words;
  /// Whether a replacement follows from what was selected before.
  bool goesOn = false;
  /// Conditions by which the runs of the step were chosen beside the words.
  std::vector<std::string> asked{};
};

/// Longer conditions are no words for anyone.
inline constexpr std::size_t mostCharactersOfWords = 20000;

/// The condition that all runs meet which are selected after a step, and no others.
/// @param before the condition before, empty where it is not known
/// @param any whether anything was selected before; runs may meet in another study what none meets
/// here
/// @return empty where it is not known, or longer than `mostCharactersOfWords`
std::string wordsAfter(const std::string& before, bool any, const SelectionStep& step);

/// The condition that all runs meet which do not meet this one; empty as above.
std::string wordsOfOthers(const std::string& words);

/// The condition that is met where any of these is.
std::string wordsOfAny(const std::vector<std::string>& conditions);

/// From one set of runs to another.
struct RunStep
{
  RunCombination how = RunCombination::Replace;
  std::vector<bool> hit;
};

/// The step between two sets of runs that names the fewest of them: all that are selected then, or
/// those that have come or gone.
RunStep shortestStep(const std::vector<bool>& before, const std::vector<bool>& after);

/// What a step of a history is called: with the words to do it again, unless they are too long for
/// anyone; after a line end without them, for menus.
std::string namedBy(const std::string& step, const std::string& words);

/// The same of a step that selects runs.
/// @param hit the runs that met the words
std::string stepText(RunCombination how, const std::vector<bool>& hit, const std::string& words);

} // namespace Talmesh::app

#endif
