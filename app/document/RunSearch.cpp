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
  const auto condition = std::make_shared<const RunFilter>(RunFilter::read(words, runs, fault));
  if (!fault.text.empty())
    return fault;
  if (how == RunCombination::Replace)
    drop();
  if (waiting.empty() && selectsAtOnce(*condition, runs, words, how))
    return {};
  try
  {
    const auto copy = std::make_shared<const CopiedRuns>(runs, condition->columns());
    append(runs, {[condition, copy](const ImportProgress& progress)
                  { return condition->select(*copy, progress); },
                  words, how});
  }
  catch (const std::bad_alloc&)
  {
    return {0, translated("RunFilter", "there is not enough memory for this condition")};
  }
  return {};
}

void RunSearch::take(const TableRuns& runs, const Runs& hit, const std::string& words,
                     RunCombination how)
{
  if (how == RunCombination::Replace)
    drop();
  if (waiting.empty())
    select(hit, words, how);
  else
    append(runs, {[hit](const ImportProgress&) { return Result<Runs>(hit); }, words, how});
}

void RunSearch::append(const TableRuns& runs, const Wish& wish)
{
  waiting.push_back(wish);
  if (waiting.size() > 1)
    return;
  selectedBefore = runs.selected();
  begin();
}

ImportProgress RunSearch::impatience() const
{
  if (!background.start)
    return {};
  const auto end = std::chrono::steady_clock::now() + patience;
  return [end](double) { return std::chrono::steady_clock::now() < end; };
}

/// @return whether that took no longer than the caller may wait
bool RunSearch::selectsAtOnce(const RunFilter& condition, const TableRuns& runs,
                              const std::string& words, RunCombination how)
{
  const Result<Runs> hit = condition.select(runs, impatience());
  if (hit.hasValue())
    select(hit.value(), words, how);
  return hit.hasValue();
}

void RunSearch::begin()
{
  background.start(waiting.front().work, [this](const Runs& hit) { finish(hit); });
}

void RunSearch::finish(const Runs& hit)
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
  drop();
  tellOfEnd();
  return true;
}

/// What takes its place tells of itself.
void RunSearch::drop()
{
  if (waiting.empty() || selecting)
    return;
  waiting.clear();
  background.cancel();
}

void RunSearch::giveUpUnless(const Runs& selected)
{
  if (selected != selectedBefore)
    giveUp();
}

} // namespace Talmesh::app
