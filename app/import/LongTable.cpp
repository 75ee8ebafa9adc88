#include "app/import/LongTable.h"

#include "app/import/RoleNames.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <unordered_map>
#include <utility>

namespace Talmesh::app
{

namespace
{

constexpr double missing = std::numeric_limits<double>::quiet_NaN();
/// A table of more items than any run has values would grow beyond reason.
constexpr std::size_t mostGrowth = 8;
constexpr std::size_t alwaysCells = 10000000;

/// A point of a run, or one of its values.
struct Place
{
  int run = 0;
  int item = 0;
  double time = 0.0;

  bool operator==(const Place& other) const
  {
    return run == other.run && item == other.item && time == other.time;
  }
};

struct PlaceHash
{
  std::size_t operator()(const Place& place) const
  {
    constexpr std::uint64_t golden = 0x9E3779B97F4A7C15ULL;
    std::uint64_t bits = 0;
    std::memcpy(&bits, &place.time, sizeof bits);
    bits ^= (static_cast<std::uint64_t>(place.run) << 32U) + static_cast<std::uint64_t>(place.item);
    bits *= golden;
    return static_cast<std::size_t>(bits ^ (bits >> 29U));
  }
};

class Pivot
{
public:
  Pivot(TableText& text_, const LongColumns& columns_, ImportReport& report_)
      : text(text_)
      , columns(columns_)
      , report(report_)
      , item(text.columns[columns.item])
      , value(text.columns[columns.value])
  {
  }

  Result<TableText> pivot()
  {
    item.completeTexts();
    if (text.runOfRow.empty())
    {
      text.runOfRow.assign(text.rows, 0);
      text.runNames = {"0"};
    }
    findRows();
    if (error.empty())
      findPoints();
    if (error.empty())
      fill();
    return error.empty() ? Result<TableText>(std::move(wide)) : Result<TableText>::failed(error);
  }

private:
  double timeOf(std::size_t row) const
  {
    if (text.roles.timeColumn < 0)
      return 0.0;
    // All that are equal have the same bits but for the sign of 0.
    return text.columns[static_cast<std::size_t>(text.roles.timeColumn)].values[row] + 0.0;
  }

  int itemOf(std::size_t row) const { return item.levels.rows()[row]; }

  /// Rows with an item and a time; further replicates become runs.
  void findRows();
  /// The point of each row, and the first row of each point.
  void findPoints();
  void fill();
  void addItems();
  void addAttributes();
  bool differsWithinPoints(const ColumnValues& column) const;
  std::string itemName(std::size_t level) const { return item.levels.names()[level]; }

  TableText& text;
  const LongColumns& columns;
  ImportReport& report;
  ColumnValues& item;
  ColumnValues& value;
  std::vector<std::size_t> rows;
  std::vector<std::size_t> pointOfRow;
  std::vector<std::size_t> firstRows;
  TableText wide;
  std::string error;
};

void Pivot::findRows()
{
  std::unordered_map<Place, int, PlaceHash> seen;
  std::unordered_map<Place, int, PlaceHash> replicates;
  seen.reserve(text.rows);
  std::size_t withoutTime = 0;
  for (std::size_t row = 0; row < text.rows; ++row)
  {
    if (std::isnan(timeOf(row)) || itemOf(row) == TextLevels::none ||
        item.levels.names()[static_cast<std::size_t>(itemOf(row))].empty())
    {
      ++withoutTime;
      continue;
    }
    int& run = text.runOfRow[row];
    const int repeat = seen[{run, itemOf(row), timeOf(row)}]++;
    if (repeat > 0 && !columns.repeatsAreReplicates)
    {
      error = withValues(translated("LongTable",
                                    "line %1: a second value of %2 at the same time. Name the "
                                    "columns that tell the runs apart (--run)"),
                         {std::to_string(text.lineOf(row)),
                          quotedForMessage(itemName(static_cast<std::size_t>(itemOf(row))))});
      return;
    }
    if (repeat > 0)
    {
      const auto [entry, added] =
          replicates.emplace(Place{run, repeat, 0.0}, static_cast<int>(text.runNames.size()));
      if (added)
        text.runNames.push_back(text.runNames[static_cast<std::size_t>(run)] + ", replicate " +
                                std::to_string(repeat + 1));
      run = entry->second;
    }
    rows.push_back(row);
  }
  if (withoutTime > 0)
    report.warnings.push_back(
        withValues(translated("LongTable", "%1 rows without an item or a time are left out."),
                   {std::to_string(withoutTime)}));
  if (rows.empty())
    error = translated("LongTable", "no row has an item and a time");
}

void Pivot::findPoints()
{
  std::unordered_map<Place, std::size_t, PlaceHash> points;
  points.reserve(rows.size());
  pointOfRow.reserve(rows.size());
  for (const std::size_t row : rows)
  {
    const auto [entry, added] =
        points.emplace(Place{text.runOfRow[row], 0, timeOf(row)}, firstRows.size());
    if (added)
      firstRows.push_back(row);
    pointOfRow.push_back(entry->second);
  }
  const std::size_t cells = firstRows.size() * item.levels.names().size();
  if (cells > std::max(mostGrowth * rows.size(), alwaysCells))
    error =
        withValues(translated("LongTable", "%1 items at %2 points, most of them without a "
                                           "value, are too many; name the item column "
                                           "(--item) if it is another one"),
                   {std::to_string(item.levels.names().size()), std::to_string(firstRows.size())});
}

void Pivot::addItems()
{
  const std::size_t items = item.levels.names().size();
  std::vector<std::vector<double>> values(items, std::vector<double>(firstRows.size(), missing));
  for (std::size_t i = 0; i < rows.size(); ++i)
    values[static_cast<std::size_t>(itemOf(rows[i]))][pointOfRow[i]] = value.values[rows[i]];
  wide.hasGaps = rows.size() < items * firstRows.size();
  for (std::size_t level = 0; level < items; ++level)
  {
    if (itemName(level).empty())
      continue;
    wide.columns.push_back(columnOfNumbers(std::move(values[level])));
    wide.uses.push_back(ColumnUse::Item);
    ColumnHeader header;
    header.name = itemName(level);
    wide.roles.headers.push_back(header);
  }
}

/// Whether the rows of a point do not all say the same.
bool Pivot::differsWithinPoints(const ColumnValues& column) const
{
  for (std::size_t i = 0; i < rows.size(); ++i)
  {
    const std::size_t first = firstRows[pointOfRow[i]];
    const double one = column.values[rows[i]];
    const double other = column.values[first];
    const bool same = one == other || (std::isnan(one) && std::isnan(other));
    const std::vector<int>& levels = column.levels.rows();
    if (!same || (!levels.empty() && levels[rows[i]] != levels[first]))
      return true;
  }
  return false;
}

void Pivot::addAttributes()
{
  for (std::size_t i = 0; i < text.columns.size(); ++i)
  {
    const bool taken = i == columns.item || i == columns.value ||
                       static_cast<int>(i) == text.roles.timeColumn ||
                       text.uses[i] == ColumnUse::Ignored || text.uses[i] == ColumnUse::RunName ||
                       static_cast<int>(i) == text.roles.runColumn;
    if (taken)
      continue;
    const std::string& name = text.roles.headers[i].name;
    const bool isError = isErrorName(name);
    if (isError || differsWithinPoints(text.columns[i]))
    {
      report.ignored.push_back(name);
      const std::string why =
          isError
              ? translated("LongTable", "the column %1 tells how exact the values are, which is "
                                        "not shown")
              : translated("LongTable", "the column %1 differs between the items of a point and "
                                        "is left out");
      report.reasons.push_back(withValues(why, {quotedForMessage(name)}));
      continue;
    }
    wide.columns.push_back(gatheredColumn(text.columns[i], firstRows));
    wide.uses.push_back(text.uses[i]);
    wide.roles.headers.push_back(text.roles.headers[i]);
  }
}

void Pivot::fill()
{
  addItems();
  if (text.roles.timeColumn >= 0)
  {
    const auto time = static_cast<std::size_t>(text.roles.timeColumn);
    wide.roles.timeColumn = static_cast<int>(wide.columns.size());
    wide.columns.push_back(gatheredColumn(text.columns[time], firstRows));
    wide.uses.push_back(ColumnUse::Open);
    wide.roles.headers.push_back(text.roles.headers[time]);
  }
  addAttributes();
  wide.rows = firstRows.size();
  for (const std::size_t row : firstRows)
  {
    wide.lines.push_back(text.lineOf(row));
    wide.runOfRow.push_back(text.runOfRow[row]);
  }
  wide.runNames = text.runNames;
  forgetEmptyRuns(wide);
}

} // namespace

ColumnValues gatheredColumn(const ColumnValues& column, const std::vector<std::size_t>& rows)
{
  ColumnValues gathered;
  gathered.numbers = column.numbers;
  gathered.texts = column.texts;
  gathered.dates = column.dates;
  gathered.keepsTexts = column.keepsTexts;
  gathered.hasTooManyTexts = column.hasTooManyTexts;
  gathered.firstText = column.firstText;
  gathered.values.reserve(rows.size());
  for (const std::size_t row : rows)
  {
    gathered.values.push_back(column.values[row]);
    if (column.levels.rows().empty())
      continue;
    const int level = column.levels.rows()[row];
    if (level == TextLevels::none)
      gathered.levels.addNone();
    else
      gathered.levels.add(column.levels.names()[static_cast<std::size_t>(level)]);
  }
  return gathered;
}

Result<TableText> pivotLong(TableText text, const LongColumns& columns, ImportReport& report)
{
  return Pivot(text, columns, report).pivot();
}

} // namespace Talmesh::app
