#include "app/import/LongTable.h"

#include "app/import/LongPoints.h"
#include "app/import/MissingValue.h"
#include "app/import/RoleNames.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <cmath>
#include <string>
#include <utility>

namespace Talmesh::app
{

namespace
{

constexpr int leftOut = LongPoints::leftOut;

class Pivot
{
public:
  Pivot(TableText& text_, const LongColumns& columns_, const ImportProgress& progress_,
        ImportReport& report_)
      : text(text_)
      , columns(columns_)
      , progress(progress_)
      , report(report_)
      , item(text.columns[columns.item])
      , value(text.columns[columns.value])
      , points(text, columns, progress)
  {
  }

  Result<TableText> pivot()
  {
    item.completeTexts();
    value.completeValues();
    if (text.roles.timeColumn >= 0)
      text.columns[static_cast<std::size_t>(text.roles.timeColumn)].completeValues();
    if (text.runOfRow.empty())
    {
      text.runOfRow.assign(text.rows, 0);
      text.runNames = {"0"};
    }
    const std::string error = points.find();
    if (!error.empty())
      return Result<TableText>::failed(error);
    if (!points.isCancelled())
      fill();
    return cancelled || points.isCancelled() ? Result<TableText>::cancelled()
                                             : Result<TableText>(std::move(wide));
  }

private:
  int itemOf(std::size_t row) const { return item.levels.rows()[row]; }
  /// The point of a row, once these are found; `leftOut` of none.
  int pointOf(std::size_t row) const { return text.runOfRow[row]; }

  /// Whether to go on; asks now and then.
  bool goesOn(std::size_t row)
  {
    if (row % rowsBetweenQuestions == 0 && progress && !progress(1.0))
      cancelled = true;
    return !cancelled;
  }

  void fill();
  void addItems();
  void addAttributes();
  bool isAttribute(std::size_t column) const;
  bool differsWithinPoints(const ColumnValues& column);
  std::string itemName(std::size_t level) const { return item.levels.names()[level]; }

  TableText& text;
  const LongColumns& columns;
  const ImportProgress& progress;
  ImportReport& report;
  ColumnValues& item;
  ColumnValues& value;
  LongPoints points;
  TableText wide;
  bool cancelled = false;
};

void Pivot::addItems()
{
  const std::vector<std::size_t>& firstRows = points.firstRows();
  const std::size_t items = item.levels.names().size();
  std::vector<std::vector<double>> values(items, std::vector<double>(firstRows.size(), missing));
  for (std::size_t row = 0; row < text.rows && goesOn(row); ++row)
    if (const int point = pointOf(row); point != leftOut)
      values[static_cast<std::size_t>(itemOf(row))][static_cast<std::size_t>(point)] =
          value.values[row];
  wide.hasGaps = points.rows() < items * firstRows.size();
  std::vector<double>().swap(value.values);
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
bool Pivot::differsWithinPoints(const ColumnValues& column)
{
  const std::vector<int>& levels = column.levels.rows();
  for (std::size_t row = 0; row < text.rows && goesOn(row); ++row)
  {
    if (pointOf(row) == leftOut)
      continue;
    const std::size_t first = points.firstRows()[static_cast<std::size_t>(pointOf(row))];
    const double one = column.valueAt(row);
    const double other = column.valueAt(first);
    const bool same = one == other || (std::isnan(one) && std::isnan(other));
    if (!same || (!levels.empty() && levels[row] != levels[first]))
      return true;
  }
  return false;
}

bool Pivot::isAttribute(std::size_t column) const
{
  const auto index = static_cast<int>(column);
  return column != columns.item && column != columns.value && index != text.roles.timeColumn &&
         index != text.roles.runColumn && text.uses[column] != ColumnUse::Ignored &&
         text.uses[column] != ColumnUse::RunName;
}

void Pivot::addAttributes()
{
  for (std::size_t i = 0; i < text.columns.size(); ++i)
  {
    if (!isAttribute(i))
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
    wide.columns.push_back(gatheredColumn(text.columns[i], points.firstRows()));
    wide.uses.push_back(text.uses[i]);
    wide.roles.headers.push_back(text.roles.headers[i]);
  }
}

void Pivot::fill()
{
  const std::vector<std::size_t>& firstRows = points.firstRows();
  if (points.rows() < text.rows)
    report.warnings.push_back(
        withValues(translated("LongTable", "%1 rows without an item or a time are left out."),
                   {std::to_string(text.rows - points.rows())}));
  ColumnValues times;
  const int time = text.roles.timeColumn;
  if (time >= 0)
  {
    ColumnValues& ofRows = text.columns[static_cast<std::size_t>(time)];
    times = gatheredColumn(ofRows, firstRows);
    ofRows = ColumnValues();
  }
  addItems();
  if (time >= 0)
  {
    wide.roles.timeColumn = static_cast<int>(wide.columns.size());
    wide.columns.push_back(std::move(times));
    wide.uses.push_back(ColumnUse::Open);
    wide.roles.headers.push_back(text.roles.headers[static_cast<std::size_t>(time)]);
  }
  addAttributes();
  wide.rows = firstRows.size();
  for (const std::size_t row : firstRows)
    wide.lines.push_back(text.lineOf(row));
  wide.runOfRow = points.runOfPoint();
  wide.runNames = text.runNames;
  forgetEmptyRuns(wide);
}

} // namespace

Result<TableText> pivotLong(TableText text, const LongColumns& columns,
                            const ImportProgress& progress, ImportReport& report)
{
  return Pivot(text, columns, progress, report).pivot();
}

} // namespace Talmesh::app
