#include "app/import/PetabConditions.h"

#include "app/import/LayoutFacts.h"
#include "app/import/NumberText.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <map>
#include <utility>

namespace Talmesh::app
{

namespace
{

constexpr const char* conditionsFile = "conditions.tsv";
constexpr const char* parametersFile = "parameters.tsv";

/// The cells of a small table as texts.
struct SmallTable
{
  std::vector<std::string> names;
  /// By column.
  std::vector<std::vector<std::string>> cells;

  int column(const std::string& name) const
  {
    const auto found = std::find(names.begin(), names.end(), name);
    return found == names.end() ? -1 : static_cast<int>(found - names.begin());
  }
};

Result<SmallTable> readSmallTable(const std::string& bytes, const char* file)
{
  ImportReport unheard;
  ImportRequest request;
  request.separator = '\t';
  Result<TableText> read = readTableText(bytes, request, unheard);
  if (!read.hasValue())
    return Result<SmallTable>::failed(std::string(file) + ": " + read.error());
  SmallTable table;
  for (std::size_t i = 0; i < read.value().columns.size(); ++i)
  {
    ColumnValues& column = read.value().columns[i];
    column.completeTexts();
    table.names.push_back(read.value().roles.headers[i].name);
    std::vector<std::string> cells;
    for (const int level : column.levels.rows())
      cells.push_back(level == TextLevels::none
                          ? std::string()
                          : column.levels.names()[static_cast<std::size_t>(level)]);
    table.cells.push_back(std::move(cells));
  }
  return table;
}

/// The nominal values of parameters by their names.
Result<std::map<std::string, std::string>> nominalValues(const FileBeside& beside)
{
  using Values = std::map<std::string, std::string>;
  const auto bytes = beside(parametersFile);
  if (!bytes)
    return Values();
  const Result<SmallTable> table = readSmallTable(*bytes, parametersFile);
  if (!table.hasValue())
    return Result<Values>::without(table);
  const int name = table.value().column("parameterId");
  const int value = table.value().column("nominalValue");
  Values values;
  for (std::size_t row = 0; name >= 0 && value >= 0 && row < table.value().cells.front().size();
       ++row)
    values[table.value().cells[static_cast<std::size_t>(name)][row]] =
        table.value().cells[static_cast<std::size_t>(value)][row];
  return values;
}

class ConditionJoin
{
public:
  ConditionJoin(TableText& text_, const SmallTable& table_,
                const std::map<std::string, std::string>& nominal_, ImportReport& report_)
      : text(text_)
      , table(table_)
      , nominal(nominal_)
      , report(report_)
  {
  }

  void join(std::size_t condition)
  {
    const int key = table.column("conditionId");
    if (key < 0)
      return;
    std::map<std::string, std::size_t> rowOf;
    for (std::size_t row = 0; row < table.cells.front().size(); ++row)
      rowOf.emplace(table.cells[static_cast<std::size_t>(key)][row], row);
    tellUnknown(text.columns[condition].levels.names(), rowOf);
    for (std::size_t i = 0; i < table.names.size(); ++i)
      if (static_cast<int>(i) != key && table.names[i] != "conditionName")
        add(i, text.columns[condition].levels, rowOf);
  }

private:
  void tellUnknown(const std::vector<std::string>& conditions,
                   const std::map<std::string, std::size_t>& rowOf)
  {
    for (const std::string& name : conditions)
      if (!name.empty() && rowOf.count(name) == 0)
        report.warnings.push_back(
            withValues(translated("PetabConditions", "The condition %1 does not stand in %2, so "
                                                     "nothing more is known of it."),
                       {quotedForMessage(name), conditionsFile}));
  }

  /// A parameter's nominal value for its name.
  const std::string& resolved(const std::string& cell)
  {
    const auto found = nominal.find(cell);
    if (found == nominal.end() || found->second.empty())
      return cell;
    used = true;
    return found->second;
  }

  void add(std::size_t column, const TextLevels& conditions,
           const std::map<std::string, std::size_t>& rowOf)
  {
    used = false;
    std::vector<std::string> ofLevel;
    for (const std::string& name : conditions.names())
    {
      const auto row = rowOf.find(name);
      ofLevel.push_back(row == rowOf.end() ? std::string()
                                           : resolved(table.cells[column][row->second]));
    }
    std::vector<std::string> cells;
    for (const int level : conditions.rows())
      cells.push_back(level == TextLevels::none ? std::string()
                                                : ofLevel[static_cast<std::size_t>(level)]);
    ColumnValues values = columnOfTexts(cells);
    values.keepsTexts = false;
    // Some cells may be names of parameters that have no value.
    text.uses.push_back(values.texts > 0 ? ColumnUse::Condition : ColumnUse::Parameter);
    text.columns.push_back(std::move(values));
    ColumnHeader header;
    header.name = table.names[column];
    text.roles.headers.push_back(header);
    if (used)
      report.reasons.push_back(withValues(
          translated("PetabConditions", "names of parameters in %1 stand for their nominal values"),
          {quotedForMessage(table.names[column])}));
  }

  TableText& text;
  const SmallTable& table;
  const std::map<std::string, std::string>& nominal;
  ImportReport& report;
  bool used = false;
};

} // namespace

std::string joinConditions(TableText& text, std::size_t condition, const FileBeside& beside,
                           ImportReport& report)
{
  const auto bytes = beside ? beside(conditionsFile) : std::nullopt;
  if (!bytes)
  {
    report.reasons.push_back(withValues(
        translated("PetabConditions", "there is no %1 beside the table, so conditions are names "
                                      "only"),
        {conditionsFile}));
    return {};
  }
  const Result<SmallTable> table = readSmallTable(*bytes, conditionsFile);
  if (!table.hasValue())
    return table.error();
  const auto nominal = nominalValues(beside);
  if (!nominal.hasValue())
    return nominal.error();
  text.columns[condition].completeTexts();
  ConditionJoin(text, table.value(), nominal.value(), report).join(condition);
  report.reasons.push_back(
      withValues(translated("PetabConditions", "%1 beside the table says what the conditions are"),
                 {conditionsFile}));
  return {};
}

} // namespace Talmesh::app
