#include "app/document/RunSearch.h"

#include "app/document/TableRuns.h"
#include "app/import/TranslatedText.h"
#include "app/runs/CopiedRuns.h"

#include <new>
#include <utility>

namespace Talmesh::app
{

namespace
{

/// Whoever waits longer for a window believes that it hangs.
constexpr std::chrono::milliseconds mostPatience{150};

} // namespace

RunSearch::RunSearch(Select selectRuns, std::function<void()> toldOfEnd)
    : select(std::move(selectRuns))
    , tellOfEnd(std::move(toldOfEnd))
    , patience(mostPatience)
{
}

FilterFault RunSearch::search(const TableRuns& runs, const std::string& words, RunCombination how)
{
  FilterFault fault;
  auto condition = std::make_shared<RunFilter>(RunFilter::read(words, runs, fault));
  if (!fault.text.empty())
    return fault;
  if (how == RunCombination::Replace)
    giveUp();
  if (waiting.empty() && selectsAtOnce(*condition, runs, words, how))
    return {};
  try
  {
    waiting.push_back(
        {condition, std::make_shared<CopiedRuns>(runs, condition->columns()), words, how});
  }
  catch (const std::bad_alloc&)
  {
    return {0, translated("RunFilter", "there is not enough memory for this condition")};
  }
  if (waiting.size() == 1)
  {
    selectedBefore = runs.selected();
    begin();
  }
  return {};
}

/// @return whether that took no longer than the caller may wait
bool RunSearch::selectsAtOnce(const RunFilter& condition, const TableRuns& runs,
                              const std::string& words, RunCombination how)
{
  const auto end = std::chrono::steady_clock::now() + patience;
  const auto mayWait = [&](double)
  { return !background.start || std::chrono::steady_clock::now() < end; };
  const Result<Runs> hit = condition.select(runs, mayWait);
  if (hit.hasValue())
    select(hit.value(), words, how);
  return hit.hasValue();
}

void RunSearch::begin()
{
  const Wish& next = waiting.front();
  background.start([condition = next.condition, runs = next.runs](const ImportProgress& progress)
                   { return condition->select(*runs, progress); },
                   [this](const Runs& hit) { take(hit); });
}

void RunSearch::take(const Runs& hit)
{
  const Wish done = waiting.front();
  selecting = true;
  select(hit, done.words, done.how);
  selecting = false;
  selectedBefore = combineRuns(selectedBefore, hit, done.how);
  waiting.pop_front();
  if (!waiting.empty())
    begin();
}

bool RunSearch::giveUp()
{
  if (waiting.empty() || selecting)
    return false;
  waiting.clear();
  background.cancel();
  tellOfEnd();
  return true;
}

void RunSearch::giveUpUnless(const Runs& selected)
{
  if (selected != selectedBefore)
    giveUp();
}

} // namespace Talmesh::app
