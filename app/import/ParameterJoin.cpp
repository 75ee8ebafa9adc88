#include "app/import/ParameterJoin.h"

#include "app/import/ColumnRoles.h"
#include "app/import/ColumnWords.h"
#include "app/import/NameParts.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <QString>

#include <unordered_map>

namespace Talmesh::app
{

namespace
{

std::string cellOf(const NamedColumn& column, std::size_t row)
{
  return column.isText() ? column.words[static_cast<std::size_t>(column.wordOfRow[row])]
                         : QString::number(column.values[row], 'g', 17).toStdString();
}

/// A whole number without zeros in front; other names as they are.
std::string withoutZeros(const std::string& name)
{
  const std::size_t digit = name.find_first_not_of('0');
  const bool number = name.find_first_not_of("0123456789") == std::string::npos;
  return !number ? name : digit == std::string::npos ? "0" : name.substr(digit);
}

using Rows = std::vector<std::size_t>;

/// The row of each run, or as many as there are.
Rows rowsBy(const NamedColumn& key, const std::vector<RunKey>& runs)
{
  std::unordered_map<std::string, std::size_t> places;
  for (std::size_t row = 0; row < key.rows(); ++row)
    places.emplace(withoutZeros(cellOf(key, row)), row);
  Rows rows;
  for (const RunKey& run : runs)
  {
    auto place = places.end();
    for (const std::string& name : {run.source, stemOf(run.source), run.name})
      if (place == places.end())
        place = places.find(withoutZeros(name));
    if (place != places.end())
      rows.push_back(place->second);
  }
  return rows;
}

NamedColumn spread(const NamedColumn& column, const Rows& rows, const std::vector<RunKey>& runs)
{
  NamedColumn made{column.name, {}, {}, {}};
  ColumnWords words;
  for (std::size_t run = 0; run < runs.size(); ++run)
  {
    if (column.isText())
      words.add(cellOf(column, rows[run]), runs[run].rows);
    else
      made.values.insert(made.values.end(), runs[run].rows, column.values[rows[run]]);
  }
  return words.take(std::move(made));
}

std::string noKey(const JoinedFile& table, const std::vector<RunKey>& runs,
                  const std::string& missing, ImportReport& report)
{
  if (!missing.empty())
    return withValues(translated("ParameterJoin", "the table of parameters %1 has no row for %2"),
                      {quotedForMessage(table.name), quotedForMessage(missing)});
  if (table.columns.front().rows() == runs.size())
    report.candidates = {
        {"--join order", "", 0.5,
         translated("ParameterJoin", "the rows of the table stand in the order of the files")},
        {"--join name", "", 0.4,
         translated("ParameterJoin", "a column names the files, and is still to be added")}};
  return withValues(translated("ParameterJoin",
                               "no column of the table of parameters %1 names the files or runs "
                               "(such as %2): add one for --join name, or say --join order to "
                               "join by the order of rows"),
                    {quotedForMessage(table.name), quotedForMessage(runs.front().source)});
}

} // namespace

std::string joinParameters(const JoinedFile& table, const std::vector<RunKey>& runs,
                           const ImportRequest& request, std::vector<NamedColumn>& columns,
                           ImportReport& report)
{
  Rows rows;
  std::string missing;
  std::size_t key = table.columns.size();
  for (std::size_t i = 0; i < table.columns.size() && key == table.columns.size(); ++i)
  {
    rows = rowsBy(table.columns[i], runs);
    if (rows.size() == runs.size())
      key = i;
    else if (isRunName(table.columns[i].name) && !rows.empty())
      missing = runs[rows.size()].source;
  }
  const bool byOrder = request.join == "order" && table.columns.front().rows() == runs.size();
  if (key == table.columns.size() && !byOrder)
    return noKey(table, runs, missing, report);
  if (byOrder)
  {
    rows.clear();
    for (std::size_t run = 0; run < runs.size(); ++run)
      rows.push_back(run);
  }
  else
    report.reasons.push_back(
        withValues(translated("ParameterJoin", "the column %1 of %2 names the runs"),
                   {quotedForMessage(table.columns[key].name), quotedForMessage(table.name)}));
  for (std::size_t i = 0; i < table.columns.size(); ++i)
    if (i != key || byOrder)
      columns.push_back(spread(table.columns[i], rows, runs));
  return {};
}

} // namespace Talmesh::app
