#include "app/document/SelectionWords.h"

#include "app/import/TranslatedText.h"

#include <algorithm>

namespace Talmesh::app
{

namespace
{

std::string bracketed(const std::string& words)
{
  return '(' + words + ')';
}

std::string butNot(const std::string& words, const std::string& excepted)
{
  return bracketed(words) + " and not " + bracketed(excepted);
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
  const bool fromNothing = !any && step.how != RunCombination::Subtract;
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
    words = butNot(before, step.words) + " or " + butNot(step.words, before);
  return words.size() <= mostCharactersOfWords ? words : std::string();
}

std::string wordsOfAny(const std::vector<std::string>& conditions)
{
  std::string words;
  for (const std::string& condition : conditions)
    words = wordsAfter(words, !words.empty(), {RunCombination::Add, condition});
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

std::string stepText(RunCombination how, const std::vector<bool>& hit, const std::string& words)
{
  const auto count = std::count(hit.begin(), hit.end(), true);
  const bool one = count == 1;
  std::string text =
      one ? translated("RunFilter", "Select 1 run") : translated("RunFilter", "Select %1 runs");
  if (how == RunCombination::Add)
    text = one ? translated("RunFilter", "Add 1 run") : translated("RunFilter", "Add %1 runs");
  else if (how == RunCombination::Subtract)
    text = one ? translated("RunFilter", "Take away 1 run")
               : translated("RunFilter", "Take away %1 runs");
  else if (how == RunCombination::Toggle)
    text =
        one ? translated("RunFilter", "Toggle 1 run") : translated("RunFilter", "Toggle %1 runs");
  text = withValues(text, {std::to_string(count)});
  return words.empty() ? text : text + ": " + words + '\n' + text;
}

} // namespace Talmesh::app
