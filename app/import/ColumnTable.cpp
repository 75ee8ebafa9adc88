#include "app/import/ColumnTable.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

namespace Talmesh::app
{

namespace
{

ColumnValues valuesOf(NamedColumn& column)
{
  ColumnValues values;
  const std::size_t rows = column.rows();
  values.values = std::move(column.values);
  values.numbers = static_cast<std::size_t>(std::count_if(
      values.values.begin(), values.values.end(), [](double value) { return !std::isnan(value); }));
  values.values.resize(rows, std::numeric_limits<double>::quiet_NaN());
  if (column.isText())
  {
    values.texts = rows;
    values.firstText = {1, column.words.front()};
  }
  return values;
}

} // namespace

TableText tableOf(std::vector<NamedColumn> columns)
{
  TableText table;
  std::vector<std::string> headers;
  for (const NamedColumn& column : columns)
    headers.push_back(column.name);
  table.roles = assignRoles(headers);
  table.rows = columns.front().rows();
  table.lines.resize(table.rows);
  std::iota(table.lines.begin(), table.lines.end(), std::size_t{1});
  for (NamedColumn& column : columns)
  {
    const auto index = static_cast<int>(table.columns.size());
    if (index == table.roles.runColumn && column.isText())
    {
      table.runOfRow = std::move(column.wordOfRow);
      table.runNames = std::move(column.words);
      table.columns.emplace_back();
    }
    else
      table.columns.push_back(valuesOf(column));
  }
  return table;
}

} // namespace Talmesh::app
