#include "app/import/RunCollector.h"

#include "app/import/MissingValue.h"

#include <QString>

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

} // namespace

RunCollector::Column& RunCollector::columnOf(const std::string& name)
{
  const auto [entry, added] = places.emplace(name, collected.size());
  if (added)
  {
    collected.emplace_back();
    collected.back().name = name;
  }
  return collected[entry->second];
}

void RunCollector::makeText(Column& column)
{
  column.isText = true;
  for (const double value : column.values)
    column.words.add(textOf(value));
  std::vector<double>().swap(column.values);
}

void RunCollector::append(Column& column, const NamedColumn& added)
{
  if (added.isText() && !column.isText)
    makeText(column);
  if (!column.isText)
  {
    column.values.resize(rows, missing);
    column.values.insert(column.values.end(), added.values.begin(), added.values.end());
    return;
  }
  if (column.words.size() < rows)
    column.words.add({}, rows - column.words.size());
  for (const int word : added.wordOfRow)
    column.words.add(added.words[static_cast<std::size_t>(word)]);
  for (const double value : added.values)
    column.words.add(textOf(value));
}

void RunCollector::add(const std::string& run, std::vector<NamedColumn> columns)
{
  const std::size_t added = columns.front().rows();
  for (NamedColumn& column : columns)
  {
    Column& place = columnOf(column.name);
    const bool isNew = (place.isText ? place.words.size() : place.values.size()) <= rows;
    if (isNew)
      append(place, column);
    column = NamedColumn();
  }
  names.add(run, added);
  rows += added;
  ++runs;
}

std::vector<NamedColumn> RunCollector::take(const std::string& runColumn)
{
  std::vector<NamedColumn> taken;
  taken.push_back(names.take({runColumn, {}, {}, {}}));
  for (Column& column : collected)
  {
    append(column, NamedColumn());
    taken.push_back(column.words.take({column.name, std::move(column.values), {}, {}}));
  }
  return taken;
}

} // namespace Talmesh::app
