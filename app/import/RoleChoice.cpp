#include "app/import/RoleChoice.h"

#include "app/import/AsciiText.h"
#include "app/import/DateText.h"
#include "app/import/RoleNames.h"
#include "app/import/TranslatedText.h"
#include "app/import/UnitText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>

namespace Talmesh::app
{

namespace
{

bool sameLetters(std::string_view a, std::string_view b)
{
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char one, char other) { return toLower(one) == toLower(other); });
}

/// The column of a name, else of that name in other letters; -1 without one.
int columnNamed(const ColumnRoles& roles, const std::string& name)
{
  const auto find = [&](auto&& matches)
  {
    const auto found =
        std::find_if(roles.headers.begin(), roles.headers.end(),
                     [&](const ColumnHeader& header) { return matches(header.name); });
    return found == roles.headers.end() ? -1 : static_cast<int>(found - roles.headers.begin());
  };
  const int exact = find([&](const std::string& header) { return header == name; });
  return exact >= 0 ? exact
                    : find([&](const std::string& header) { return sameLetters(header, name); });
}

/// Looks the names of a request up.
class RequestedRoles
{
public:
  explicit RequestedRoles(TableText& text_)
      : text(text_)
  {
  }

  int column(const std::string& name)
  {
    if (name.empty())
      return -1;
    const int found = columnNamed(text.roles, name);
    if (found < 0 && error.empty())
      error = withValues(translated("RoleChoice", "there is no column %1; the columns are %2"),
                         {quotedForMessage(name), allNames()});
    return found;
  }

  void use(const std::vector<std::string>& names, ColumnUse use)
  {
    for (const std::string& name : names)
      if (const int found = column(name); found >= 0)
        text.uses[static_cast<std::size_t>(found)] = use;
  }

  std::string error;

private:
  std::string allNames() const
  {
    constexpr std::size_t most = 12;
    std::string names;
    for (std::size_t i = 0; i < text.roles.headers.size() && i < most; ++i)
      names += (i > 0 ? ", " : "") + text.roles.headers[i].name;
    return text.roles.headers.size() > most ? names + ", ..." : names;
  }

  TableText& text;
};

/// How to write a number or date of a kind that is not read.
std::string adviceOnWriting(const std::string& text)
{
  if (isLocalDate(text))
    return translated("RoleChoice", "line %1: %2 in the column %3 is a date whose day and month "
                                    "could be taken for each other; write it as 2024-03-31");
  if (isPercentage(text))
    return translated("RoleChoice", "line %1: %2 in the column %3 has a percent sign; write the "
                                    "numbers without it");
  const std::size_t mark = text.find_first_not_of("+-0123456789");
  return mark != std::string::npos && text[mark] == ','
             ? translated("RoleChoice", "line %1: %2 in the column %3 has commas between "
                                        "thousands; write the numbers without them")
             : translated("RoleChoice", "line %1: %2 in the column %3 has marks or blanks between "
                                        "thousands; write the numbers without them");
}

bool timeNamesRuns(const ColumnRoles& roles)
{
  const std::vector<int>& runs = roles.askedRuns;
  return roles.timeColumn >= 0 &&
         std::find(runs.begin(), runs.end(), roles.timeColumn) != runs.end();
}

/// A column that shall be something else is no time, though it is called so; nor does it name runs
/// if it is left out or measured.
void forgetRecognised(TableText& text, const ImportRequest& request)
{
  ColumnRoles& roles = text.roles;
  const auto use = [&text](int column)
  { return column < 0 ? ColumnUse::Open : text.uses[static_cast<std::size_t>(column)]; };
  if (request.time.empty() && (use(roles.timeColumn) != ColumnUse::Open || timeNamesRuns(roles)))
    roles.timeColumn = -1;
  if (!request.run.empty())
    return;
  std::vector<int>& runs = roles.runCandidates;
  runs.erase(std::remove_if(runs.begin(), runs.end(),
                            [&](int column) {
                              return use(column) == ColumnUse::Ignored ||
                                     use(column) == ColumnUse::Item;
                            }),
             runs.end());
  roles.runColumn = runs.empty() ? -1 : runs.front();
}

} // namespace

bool isStrangeNumber(const ColumnValues& column)
{
  const std::string& text = column.firstText.text;
  // A few percentages may be what tells conditions apart.
  const std::size_t different = column.levels.names().size();
  const bool manyPercentages = isPercentage(text) && 2 * different > column.rows();
  return column.texts > 0 && (looksLikeThousands(text) || isLocalDate(text) || manyPercentages);
}

std::vector<int> columnsOfNames(const ColumnRoles& roles, const ImportRequest& request)
{
  std::vector<int> columns = roles.runCandidates;
  std::vector<std::string> asked = request.run;
  asked.insert(asked.end(), request.conditions.begin(), request.conditions.end());
  asked.push_back(request.item);
  for (const std::string& name : asked)
    if (const int found = columnNamed(roles, name); found >= 0)
      columns.push_back(found);
  for (std::size_t i = 0; i < roles.headers.size(); ++i)
    if (!roles.headers[i].typed &&
        (isKeyName(roles.headers[i].name) || isMemberName(roles.headers[i].name)))
      columns.push_back(static_cast<int>(i));
  return columns;
}

void completeQuantities(TableText& text)
{
  const ColumnRoles& roles = text.roles;
  const std::vector<int>& runs = roles.runCandidates;
  for (std::size_t i = 0; i < text.columns.size(); ++i)
  {
    const auto index = static_cast<int>(i);
    const bool isName = std::find(runs.begin(), runs.end(), index) != runs.end() ||
                        isItemName(roles.headers[i].name);
    if (!isName || index == roles.timeColumn || text.columns[i].dates > 0)
      text.columns[i].completeValues();
  }
}

std::string applyRequest(TableText& text, const ImportRequest& request)
{
  RequestedRoles asked(text);
  ColumnRoles& roles = text.roles;
  if (!request.time.empty())
    roles.timeColumn = asked.column(request.time);
  for (const std::string& name : request.run)
    roles.askedRuns.push_back(asked.column(name));
  if (!roles.askedRuns.empty())
    roles.runColumn = roles.askedRuns.front();
  roles.itemColumn = asked.column(request.item);
  roles.valueColumn = asked.column(request.value);
  asked.use(request.measured, ColumnUse::Item);
  for (const int column : {roles.timeColumn, roles.valueColumn})
    if (column >= 0)
      text.columns[static_cast<std::size_t>(column)].completeValues();
  asked.use(request.parameters, ColumnUse::Parameter);
  asked.use(request.conditions, ColumnUse::Condition);
  asked.use(request.errors, ColumnUse::Ignored);
  asked.use(request.ignored, ColumnUse::Ignored);
  forgetRecognised(text, request);
  if (asked.error.empty() && timeNamesRuns(roles))
    return withValues(
        translated("RoleChoice", "the column %1 cannot be the time and name the runs"),
        {quotedForMessage(request.time)});
  return asked.error;
}

std::string mistypedCell(const TableText& text, std::size_t index)
{
  const ColumnValues& column = text.columns[index];
  const bool needed = static_cast<int>(index) == text.roles.timeColumn;
  const bool strange = isStrangeNumber(column);
  if (column.texts == 0 || (!needed && !strange && (column.isText() || column.numbers == 0)))
    return {};
  const std::string line = std::to_string(column.firstText.line);
  const std::string cell = quotedForMessage(column.firstText.text);
  const std::string name = quotedForMessage(text.roles.headers[index].name);
  if (strange)
    return withValues(adviceOnWriting(column.firstText.text), {line, cell, name});
  return withValues(translated("RunTableImport", "line %1: %2 in the column %3 is not a number"),
                    {line, cell, name});
}

} // namespace Talmesh::app
