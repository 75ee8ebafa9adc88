#include "app/import/ColumnTable.h"

#include "app/import/ColumnWords.h"
#include "app/import/RoleChoice.h"

#include <QString>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Talmesh::app
{

namespace
{

std::string textOf(double number)
{
  return std::isnan(number) ? std::string() : QString::number(number, 'g', 17).toStdString();
}

/// The texts of a column, also those of numbers that are names.
ColumnValues namesOf(const NamedColumn& column)
{
  std::vector<std::string> texts;
  texts.reserve(column.rows());
  for (const int word : column.wordOfRow)
    texts.push_back(column.words[static_cast<std::size_t>(word)]);
  for (const double value : column.values)
    texts.push_back(textOf(value));
  return columnOfTexts(texts);
}

NamedColumn columnOf(ColumnValues& values, std::string name)
{
  NamedColumn column{std::move(name), {}, {}, {}};
  if (values.isNumeric() && !values.keepsTexts)
  {
    column.values = std::move(values.values);
    return column;
  }
  values.completeValues();
  ColumnWords words;
  for (std::size_t row = 0; row < values.values.size(); ++row)
  {
    const std::vector<int>& levels = values.levels.rows();
    const int level = row < levels.size() ? levels[row] : TextLevels::none;
    words.add(level == TextLevels::none ? textOf(values.values[row])
                                        : values.levels.names()[static_cast<std::size_t>(level)]);
  }
  return words.take(std::move(column));
}

} // namespace

TableText tableOf(std::vector<NamedColumn> columns, const ImportRequest& request)
{
  std::vector<std::string> headers;
  for (const NamedColumn& column : columns)
    headers.push_back(column.name);
  const std::vector<int> named = columnsOfNames(assignRoles(headers), request);
  std::vector<ColumnValues> values;
  for (NamedColumn& column : columns)
  {
    const auto index = static_cast<int>(values.size());
    const bool isName = std::find(named.begin(), named.end(), index) != named.end();
    values.push_back(column.isText() || isName ? namesOf(column)
                                               : columnOfNumbers(std::move(column.values)));
    column = NamedColumn();
  }
  return tableOfColumns(headers, std::move(values));
}

std::vector<NamedColumn> columnsOf(TableText table)
{
  std::vector<NamedColumn> columns;
  for (std::size_t i = 0; i < table.columns.size(); ++i)
  {
    const ColumnHeader& header = table.roles.headers[i];
    const std::string name =
        header.typed ? Talmesh::selectionPairToString({header.kind, header.name}) : header.name;
    columns.push_back(columnOf(table.columns[i], name));
  }
  return columns;
}

} // namespace Talmesh::app
