#include "app/document/SelectionWords.h"

#include "app/import/TranslatedText.h"
#include "app/runs/FilterSyntax.h"

#include <algorithm>

namespace Talmesh::app
{

namespace
{

std::string bracketed(const std::string& words)
{
  return '(' + words + ')';
}

/// In parentheses unless it is joined in the same way: what is changed step by step nests no
/// deeper.
std::string bracketedUnless(FilterNode::Kind kind, const std::string& words)
{
  FilterNode node;
  const bool isAlike = parseFilter(words, node).text.empty() && node.kind == kind;
  return isAlike ? words : bracketed(words);
}

std::string butNot(const std::string& words, const std::string& excepted)
{
  return bracketedUnless(FilterNode::Kind::And, words) + " and not " + bracketed(excepted);
}

std::string eitherOr(const std::string& words, const std::string& other)
{
  return bracketedUnless(FilterNode::Kind::Xor, words) + " xor " + bracketed(other);
}

/// Words that are too long, or nested too deep to be read, are none.
std::string usable(const std::string& words)
{
  FilterNode node;
  const bool readable =
      words.size() <= mostCharactersOfWords && parseFilter(words, node).text.empty();
  return readable ? words : std::string();
}

/// The place of the parenthesis that closes the one at `open`.
std::size_t closingOf(const std::string& words, std::size_t open)
{
  int depth = 0;
  bool quoted = false;
  for (std::size_t i = open; i < words.size(); ++i)
  {
    quoted ^= words[i] == '"';
    if (!quoted)
      depth += (words[i] == '(') - (words[i] == ')');
    if (depth == 0)
      return i;
  }
  return std::string::npos;
}

} // namespace

std::vector<bool> combineRuns(std::vector<bool> before, const std::vector<bool>& hit,
                              RunCombination how)
{
  for (std::size_t run = 0; run < before.size(); ++run)
  {
    const bool was = how != RunCombination::Replace && before[run];
    if (how == RunCombination::Subtract)
      before[run] = was && !hit[run];
    else if (how == RunCombination::Toggle)
      before[run] = was != hit[run];
    else
      before[run] = was || hit[run];
  }
  return before;
}

std::string wordsAfter(const std::string& before, bool any, const SelectionStep& step)
{
  const bool fromNothing =
      !any && step.how != RunCombination::Subtract && (before.empty() || before == "none");
  if (step.how != RunCombination::Replace && !fromNothing && before.empty())
    return {};
  if (step.words.empty())
    return {};
  std::string words;
  if (step.how == RunCombination::Replace || fromNothing)
    words = step.words;
  else if (step.how == RunCombination::Add)
    words = before + " or " + step.words;
  else if (step.how == RunCombination::Subtract)
    words = butNot(before, step.words);
  else
    words = eitherOr(before, step.words);
  return usable(words);
}

std::string wordsOfOthers(const std::string& words)
{
  if (words.empty())
    return {};
  const std::string start = "not ";
  const bool isNegated = words.compare(0, start.size() + 1, start + '(') == 0 &&
                         closingOf(words, start.size()) == words.size() - 1;
  if (isNegated)
    return words.substr(start.size() + 1, words.size() - start.size() - 2);
  return usable(start + bracketed(words));
}

std::string wordsOfAny(const std::vector<std::string>& conditions)
{
  std::string words;
  for (const std::string& condition : conditions)
  {
    words = wordsAfter(words, !words.empty(), {RunCombination::Add, condition});
    if (words.empty())
      break;
  }
  return words;
}

RunStep shortestStep(const std::vector<bool>& before, const std::vector<bool>& after)
{
  const auto count = [](const std::vector<bool>& runs)
  { return std::count(runs.begin(), runs.end(), true); };
  const std::vector<bool> changed = combineRuns(before, after, RunCombination::Toggle);
  if (count(changed) >= count(after))
    return {RunCombination::Replace, after};
  const auto stayed = count(combineRuns(after, changed, RunCombination::Subtract));
  if (stayed == count(before))
    return {RunCombination::Add, changed};
  if (stayed == count(after))
    return {RunCombination::Subtract, changed};
  return {RunCombination::Toggle, changed};
}

std::string namedBy(const std::string& step, const std::string& words)
{
  if (words.size() > mostCharactersOfWords)
    return withValues(translated("RunFilter", "%1, too many to name"), {step}) + '\n' + step;
  return words.empty() ? step : step + ": " + words + '\n' + step;
}

std::string stepText(RunCombination how, const std::vector<bool>& hit, const std::string& words)
{
  const auto count = std::count(hit.begin(), hit.end(), true);
  const bool one = count == 1;
  std::string text = count == 0 ? translated("RunFilter", "Select nothing")
                     : one      ? translated("RunFilter", "Select 1 run")
                                : translated("RunFilter", "Select %1 runs");
  if (how == RunCombination::Add)
    text = one ? translated("RunFilter", "Add 1 run") : translated("RunFilter", "Add %1 runs");
  else if (how == RunCombination::Subtract)
    text = one ? translated("RunFilter", "Take away 1 run")
               : translated("RunFilter", "Take away %1 runs");
  else if (how == RunCombination::Toggle)
    text =
        one ? translated("RunFilter", "Toggle 1 run") : translated("RunFilter", "Toggle %1 runs");
  return namedBy(withValues(text, {std::to_string(count)}), words);
}

} // namespace Talmesh::app
