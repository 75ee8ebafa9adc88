#include "app/import/LayoutFacts.h"
#include "app/import/LayoutUnits.h"
#include "app/import/LongTable.h"
#include "app/import/PetabConditions.h"
#include "app/import/RoleChoice.h"
#include "app/import/TranslatedText.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

/// Tables of measurements and simulations of parameter estimation problems in the PEtab format: a
/// row per value, with the observable and the condition that it was simulated or measured under.
namespace Talmesh::app
{

namespace
{

constexpr const char* conditionColumn = "simulationConditionId";
constexpr const char* itemColumn = "observableId";
/// Behind the name of the observable, in every language.
constexpr const char* simulatedName = " simulated";
/// Columns that name runs together.
constexpr std::array<const char*, 3> runColumns = {conditionColumn, "preequilibrationConditionId",
                                                   "replicateId"};
/// What the estimation needs and a plot does not.
constexpr std::array<const char*, 6> otherColumns = {
    "noiseParameters", "observableParameters",     "noiseDistribution",
    "datasetId",       "observableTransformation", "noiseFormula"};

int valueColumn(const TableText& text)
{
  const int measured = columnCalled(text, "measurement");
  return measured >= 0 ? measured : columnCalled(text, "simulation");
}

/// Gives simulations that stand beside the measurements rows, and so items, of their own.
void stackSimulations(TableText& text, const LongColumns& columns, std::size_t simulation)
{
  const std::size_t measured = text.rows;
  std::vector<std::size_t> twice(2 * measured);
  for (std::size_t row = 0; row < twice.size(); ++row)
    twice[row] = row % measured;
  text.columns[columns.item].completeTexts();
  for (ColumnValues& column : text.columns)
    column = gatheredColumn(column, twice);
  LineNumbers lines;
  for (const std::size_t row : twice)
    lines.push_back(text.lineOf(row));
  text.lines = std::move(lines);
  text.rows = twice.size();
  ColumnValues& item = text.columns[columns.item];
  const std::vector<std::string> names = item.levels.names();
  for (std::size_t row = measured; row < text.rows; ++row)
    if (const int level = item.levels.rows()[row]; level != TextLevels::none)
      item.levels.set(row, names[static_cast<std::size_t>(level)] + simulatedName);
  const std::vector<double>& simulated = text.columns[simulation].values;
  std::copy(simulated.begin(), simulated.begin() + static_cast<std::ptrdiff_t>(measured),
            text.columns[columns.value].values.begin() + static_cast<std::ptrdiff_t>(measured));
  text.uses[simulation] = ColumnUse::Ignored;
}

LayoutFit recognise(const TableText& text, const ImportRequest&)
{
  const bool all = columnCalled(text, itemColumn) >= 0 &&
                   columnCalled(text, conditionColumn) >= 0 && valueColumn(text) >= 0 &&
                   text.roles.timeColumn >= 0;
  return {all ? 1.0 : 0.0,
          translated("PetabLayout", "the columns are those of a PEtab table of measurements or "
                                    "simulations")};
}

void ignoreOthers(TableText& text, ImportReport& report)
{
  for (const char* name : otherColumns)
    if (const int column = columnCalled(text, name);
        column >= 0 && text.uses[static_cast<std::size_t>(column)] != ColumnUse::Ignored)
    {
      text.uses[static_cast<std::size_t>(column)] = ColumnUse::Ignored;
      report.ignored.push_back(text.roles.headers[static_cast<std::size_t>(column)].name);
    }
}

/// Names the runs by conditions and replicates, whose columns say more than that.
std::string nameConditions(TableText& text, ImportReport& report)
{
  std::vector<int> columns;
  for (const char* name : runColumns)
    if (const int column = columnCalled(text, name); column >= 0)
    {
      ColumnValues& values = text.columns[static_cast<std::size_t>(column)];
      if (values.numbers + values.texts + values.dates == 0)
      {
        text.uses[static_cast<std::size_t>(column)] = ColumnUse::Ignored;
        report.ignored.push_back(name);
        continue;
      }
      values.completeTexts();
      // Cells may be empty where there was no equilibration before.
      values.firstEmpty = {};
      for (std::size_t row = 0; row < text.rows; ++row)
        if (values.levels.rows()[row] == TextLevels::none)
          values.levels.set(row, {});
      columns.push_back(column);
    }
  return nameRunsBy(text, std::move(columns));
}

Result<TableText> arrange(TableText text, const LayoutTask& task)
{
  using Arranged = Result<TableText>;
  LongColumns columns;
  const int condition = columnCalled(text, conditionColumn);
  const int item = columnCalled(text, itemColumn);
  const int value = valueColumn(text);
  if (condition < 0 || item < 0 || value < 0)
    return Arranged::failed(
        translated("PetabLayout", "a PEtab table has the columns observableId, "
                                  "simulationConditionId, time, and measurement or simulation"));
  const bool measured = columnCalled(text, "measurement") >= 0;
  columns.item = static_cast<std::size_t>(item);
  columns.value = static_cast<std::size_t>(value);
  columns.repeatsAreReplicates = true;
  ignoreOthers(text, task.report);
  std::string error = mistypedCell(text, columns.value);
  if (const int simulation = columnCalled(text, "simulation");
      error.empty() && measured && simulation >= 0)
  {
    error = mistypedCell(text, static_cast<std::size_t>(simulation));
    if (error.empty())
      stackSimulations(text, columns, static_cast<std::size_t>(simulation));
  }
  if (error.empty())
    error = nameConditions(text, task.report);
  // Names of conditions are texts, also where they are numbers.
  text.uses[static_cast<std::size_t>(condition)] = ColumnUse::Condition;
  if (error.empty())
    error = joinConditions(text, static_cast<std::size_t>(condition), task.beside, task.report);
  if (!error.empty())
    return Arranged::failed(error);
  if (measured)
    task.report.reasons.push_back(
        translated("PetabLayout", "the values are measurements: nothing is drawn between them"));
  Result<TableText> wide = pivotLong(std::move(text), columns, task.progress, task.report);
  if (wide.hasValue())
    wide.value().isMeasured = measured;
  return wide;
}

} // namespace

const Layout petabLayout = {"petab", recognise, arrange};

} // namespace Talmesh::app
