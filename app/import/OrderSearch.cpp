#include "app/import/RoleChoice.h"
#include "app/import/RoleNames.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Talmesh::app
{

namespace
{

constexpr std::size_t fewestTimes = 3;

class OrderSearch
{
public:
  OrderSearch(TableText& text_, const ImportRequest& request_, ImportReport& report_)
      : text(text_)
      , roles(text_.roles)
      , request(request_)
      , report(report_)
  {
  }

  void search()
  {
    if (roles.anyTyped || request.layout == "rows" || request.layout == "table")
      return;
    const bool wantsTime = roles.timeColumn < 0 && request.parameters.empty();
    for (std::size_t i = 0; wantsTime && roles.timeColumn < 0 && i < text.columns.size(); ++i)
      if (isFree(i) && isCountingName(name(i)) && !standsAmongDraws(i) && countsTimes(i))
        takeTime(i);
    const bool wantsRuns =
        roles.timeColumn >= 0 && roles.runColumn < 0 && !risesThroughout(times(), fewestTimes);
    for (std::size_t i = 0; wantsRuns && roles.runColumn < 0 && i < text.columns.size(); ++i)
      if (isFree(i) && isMemberName(name(i)) && partsRuns(i))
        takeRuns(i);
  }

private:
  const std::string& name(std::size_t column) const { return roles.headers[column].name; }
  const std::vector<double>& times() const
  {
    return text.columns[static_cast<std::size_t>(roles.timeColumn)].values;
  }

  bool isFree(std::size_t column) const
  {
    const int index = static_cast<int>(column);
    const auto isOf = [index](const std::vector<int>& columns)
    { return std::find(columns.begin(), columns.end(), index) != columns.end(); };
    return text.uses[column] == ColumnUse::Open && index != roles.timeColumn &&
           index != roles.itemColumn && index != roles.valueColumn && !isOf(roles.askedRuns) &&
           !isOf(roles.runCandidates);
  }

  /// What samplers and fits number is no time: each of their rows is a run.
  bool standsAmongDraws(std::size_t column) const
  {
    for (std::size_t i = 0; i < text.columns.size(); ++i)
      if (i != column &&
          (isDrawName(name(i)) || isParameterName(name(i)) || name(i).compare(0, 2, "lp") == 0))
        return true;
    return false;
  }

  static bool risesThroughout(const std::vector<double>& values, std::size_t fewest)
  {
    for (std::size_t row = 1; row < values.size(); ++row)
      if (!(values[row] > values[row - 1]))
        return false;
    return values.size() >= fewest;
  }

  bool countsTimes(std::size_t column) const
  {
    const ColumnValues& counts = text.columns[column];
    if (counts.numbers != text.rows)
      return false;
    if (!countsInRunsOnly(name(column)) && risesThroughout(counts.values, fewestTimes))
      return true;
    return roles.runColumn >= 0
               ? risesInRuns(text.columns[static_cast<std::size_t>(roles.runColumn)].levels,
                             counts.values, true)
               : startsAgain(counts.values);
  }

  /// Whether the same numbers rise again and again.
  static bool startsAgain(const std::vector<double>& values)
  {
    std::size_t length = 1;
    while (length < values.size() && values[length] > values[length - 1])
      ++length;
    if (length < fewestTimes || length == values.size() || values.size() % length != 0)
      return false;
    for (std::size_t row = length; row < values.size(); ++row)
      if (values[row] != values[row - length])
        return false;
    return true;
  }

  /// Whether values rise from row to row of each name.
  static bool risesInRuns(const TextLevels& names, const std::vector<double>& values, bool strictly)
  {
    if (names.rows().size() != values.size())
      return false;
    std::vector<double> last(names.names().size(), -std::numeric_limits<double>::infinity());
    for (std::size_t row = 0; row < values.size(); ++row)
    {
      if (names.rows()[row] == TextLevels::none || std::isnan(values[row]))
        return false;
      double& before = last[static_cast<std::size_t>(names.rows()[row])];
      if (values[row] < before || (strictly && values[row] == before))
        return false;
      before = values[row];
    }
    return true;
  }

  bool partsRuns(std::size_t column) const
  {
    const ColumnValues& values = text.columns[column];
    const std::size_t names = values.levels.names().size();
    const bool fraction = values.numbers > 0 && values.firstFraction.line > 0;
    return names > 1 && 2 * names <= text.rows && !fraction &&
           risesInRuns(values.levels, times(), false);
  }

  void takeTime(std::size_t column)
  {
    roles.timeColumn = static_cast<int>(column);
    report.reasons.push_back(withValues(
        translated("OrderSearch", "the numbers of %1 rise from row to row, so they are the time"),
        {quotedForMessage(name(column))}));
  }

  void takeRuns(std::size_t column)
  {
    roles.runColumn = static_cast<int>(column);
    roles.runCandidates.push_back(roles.runColumn);
    report.reasons.push_back(
        withValues(translated("OrderSearch", "%1 parts the rows into runs over time"),
                   {quotedForMessage(name(column))}));
  }

  TableText& text;
  ColumnRoles& roles;
  const ImportRequest& request;
  ImportReport& report;
};

} // namespace

void findOrder(TableText& text, const ImportRequest& request, ImportReport& report)
{
  OrderSearch(text, request, report).search();
}

} // namespace Talmesh::app
