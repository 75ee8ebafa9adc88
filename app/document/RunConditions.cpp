#include "app/document/RunConditions.h"

#include "app/import/TranslatedText.h"

#include <algorithm>

namespace Talmesh::app
{

std::string describe(const FilterFault& fault, const std::string& words)
{
  // Bytes that continue a character of UTF-8 begin with the bits 10.
  const auto begin = words.begin();
  const auto character = std::count_if(begin, begin + static_cast<std::ptrdiff_t>(fault.position),
                                       [](char byte) { return (byte & 0xC0) != 0x80; });
  return withValues(translated("RunFilter", "%1: at character %2: %3"),
                    {words, std::to_string(character + 1), fault.text});
}

Result<std::vector<bool>> runsWhere(const TableRuns& runs,
                                    const std::vector<std::string>& conditions,
                                    const ImportProgress& progress)
{
  using Found = Result<std::vector<bool>>;
  if (runs.numberOfRuns() == 0)
    return Found::failed(translated("RunFilter", "This table has no runs to select."));
  std::vector<RunFilter> filters;
  for (const std::string& words : conditions)
  {
    FilterFault fault;
    filters.push_back(RunFilter::read(words, runs, fault));
    if (!fault.text.empty())
      return Found::failed(describe(fault, words));
  }
  std::vector<bool> wanted(runs.numberOfRuns(), false);
  for (const RunFilter& filter : filters)
  {
    const Found hit = filter.select(runs, progress);
    if (!hit.hasValue())
      return hit;
    wanted = combineRuns(wanted, hit.value(), RunCombination::Add);
  }
  return wanted;
}

} // namespace Talmesh::app
