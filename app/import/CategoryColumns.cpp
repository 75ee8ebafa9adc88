#include "app/import/CategoryColumns.h"

#include "app/import/MissingValue.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Talmesh::app
{

namespace
{

bool isCategory(const TableText& text, std::size_t column)
{
  const ColumnUse use = text.uses[column];
  const int index = static_cast<int>(column);
  if (use == ColumnUse::Ignored || use == ColumnUse::RunName || index == text.roles.runColumn ||
      index == text.roles.timeColumn)
    return false;
  return use == ColumnUse::Condition || text.columns[column].isText();
}

/// The numbers of a column's texts in place of what they were read as.
void numberTexts(ColumnValues& column)
{
  const std::vector<int>& ofRow = column.levels.rows();
  for (std::size_t row = 0; row < column.values.size(); ++row)
    column.values[row] = ofRow[row] == TextLevels::none ? missing : ofRow[row];
  column.numbers = column.values.size();
  column.texts = 0;
  column.dates = 0;
}

/// An empty cell that keeps its text is no level.
std::vector<std::string> takeLevels(ColumnValues& column)
{
  column.completeTexts();
  const std::vector<std::string>& names = column.levels.names();
  const auto empty = std::find(names.begin(), names.end(), std::string());
  if (empty != names.end())
  {
    TextLevels filled;
    for (const int level : column.levels.rows())
      if (level == TextLevels::none || names[static_cast<std::size_t>(level)].empty())
        filled.addNone();
      else
        filled.add(names[static_cast<std::size_t>(level)]);
    column.levels = std::move(filled);
  }
  numberTexts(column);
  std::vector<std::string> levels = column.levels.names();
  column.levels.clear();
  return levels;
}

std::string listed(const std::vector<std::string>& levels)
{
  constexpr std::size_t most = 5;
  std::string list;
  for (std::size_t i = 0; i < levels.size() && i < most; ++i)
    list += (i > 0 ? ", " : "") + quotedForMessage(levels[i]);
  return levels.size() > most ? list + ", ..." : list;
}

} // namespace

std::vector<ColumnLevels> makeCategories(TableText& text, ImportReport& report)
{
  std::vector<ColumnLevels> categories;
  for (std::size_t i = 0; i < text.columns.size(); ++i)
  {
    if (!isCategory(text, i))
      continue;
    const std::string name = text.roles.headers[i].name;
    std::vector<std::string> levels = takeLevels(text.columns[i]);
    if (levels.size() < 2)
    {
      const std::vector<double>& values = text.columns[i].values;
      const bool everywhere = std::none_of(values.begin(), values.end(),
                                           [](double value) { return std::isnan(value); });
      text.uses[i] = ColumnUse::Ignored;
      report.ignored.push_back(name);
      report.warnings.push_back(withValues(
          everywhere
              ? translated("CategoryColumns",
                           "The column %1 holds the same text in all rows, %2, and is left out.")
              : translated("CategoryColumns", "The column %1 holds no other text than %2, and is "
                                              "left out."),
          {quotedForMessage(name), listed(levels)}));
      continue;
    }
    report.categories.push_back(name);
    report.reasons.push_back(
        withValues(translated("CategoryColumns", "the column %1 holds %2 different texts: %3"),
                   {quotedForMessage(name), std::to_string(levels.size()), listed(levels)}));
    categories.push_back({i, std::move(levels)});
  }
  return categories;
}

} // namespace Talmesh::app
