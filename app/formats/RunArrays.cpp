#include "app/formats/RunArrays.h"

#include "app/formats/ArrayScatter.h"
#include "app/formats/PartNames.h"
#include "app/import/ColumnWords.h"
#include "app/import/SystemMemory.h"
#include "app/import/TableText.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>

namespace Talmesh::app
{

namespace
{

std::string lastPart(const std::string& name)
{
  return name.substr(name.rfind('/') + 1);
}

} // namespace

RunArrays::RunArrays(ArraySource& source_, const ArrayCompanions& companions_,
                     const ImportProgress& progress_)
    : source(source_)
    , arrays(source_.arrays())
    , companions(companions_)
    , progress(progress_)
    , used(source_.arrays().size(), false)
{
}

NumberSink RunArrays::counting(const NumberSink& sink)
{
  return [this, sink](const double* values, std::size_t count)
  {
    valuesRead += count;
    const double part = static_cast<double>(valuesRead) / static_cast<double>(valuesInAll);
    cancelled = progress && !progress(std::min(part, 1.0));
    return !cancelled && sink(values, count);
  };
}

std::string RunArrays::itemNames(std::size_t array, std::size_t items,
                                 std::vector<std::string>& names)
{
  names = arrays[array].labels;
  if (names.empty() && companions.items != noArray && arrays[companions.items].shape[0] == items)
  {
    used[companions.items] = true;
    const std::string error = source.readTexts(companions.items, names);
    if (!error.empty())
      return error;
  }
  for (std::size_t i = names.size(); i < items; ++i)
    names.push_back(withValues(translated("RunArrays", "Column %1"), {std::to_string(i + 1)}));
  names.resize(items);
  return {};
}

std::string RunArrays::readItems(std::size_t array, const ArrayMeaning& meaning, DataType kind)
{
  const StoredArray& stored = arrays[array];
  const std::size_t items = extentOf(stored, meaning, ArrayAxis::Item);
  if (items + columns.size() > mostColumns)
    return withValues(
        translated("RunArrays", "%1 has %2 columns; at most %3 can be read"),
        {quotedForMessage(stored.name), std::to_string(items), std::to_string(mostColumns)});
  const std::string refused = source.objectionTo(array);
  if (!refused.empty())
    return refused;
  const std::size_t rows = numberOfValues(stored.shape) / items;
  if (!hasMemory(rows * items * sizeof(double)))
    return translated("RunArrays", "the table does not fit into memory");
  std::vector<std::string> names{lastPart(stored.name)};
  const bool hasItems =
      std::find(meaning.axes.begin(), meaning.axes.end(), ArrayAxis::Item) != meaning.axes.end();
  const std::string error = hasItems ? itemNames(array, items, names) : std::string();
  if (!error.empty())
    return error;
  const std::size_t first = columns.size();
  std::vector<double*> places;
  for (const std::string& name : names)
    columns.push_back({kind == UndefinedType ? name : selectionPairToString({kind, name}),
                       std::vector<double>(rows),
                       {},
                       {}});
  for (std::size_t i = first; i < columns.size(); ++i)
    places.push_back(columns[i].values.data());
  ArrayScatter scatter(stored, meaning, places);
  used[array] = true;
  return source.readNumbers(array, counting(
                                       [&](const double* values, std::size_t count)
                                       {
                                         scatter.add(values, count);
                                         return true;
                                       }));
}

std::string RunArrays::make(std::size_t main, const ArrayMeaning& meaning)
{
  runs = extentOf(arrays[main], meaning, ArrayAxis::Run);
  times = extentOf(arrays[main], meaning, ArrayAxis::Time);
  valuesInAll = 0;
  for (const StoredArray& array : arrays)
    if (array.shape.size() == arrays[main].shape.size())
      valuesInAll += numberOfValues(array.shape);
  if (!meaning.told && meaning.axes.size() == 3)
    said.push_back(withValues(
        translated("RunArrays",
                   "Nothing names the axes of %1; they are taken for runs, times and items."),
        {quotedForMessage(arrays[main].name)}));
  return readItems(main, meaning, Molecule);
}

bool RunArrays::add(std::size_t array, const ArrayMeaning& meaning, std::string& error)
{
  const bool fits = extentOf(arrays[array], meaning, ArrayAxis::Run) == runs &&
                    extentOf(arrays[array], meaning, ArrayAxis::Time) == times;
  if (fits)
    error = readItems(array, meaning, Molecule);
  return fits;
}

std::string RunArrays::makeTable(std::size_t array, const ArrayMeaning& meaning)
{
  valuesInAll = numberOfValues(arrays[array].shape);
  const std::string error = readItems(array, meaning, UndefinedType);
  if (error.empty())
    noteLeftOut();
  return error;
}

std::string RunArrays::addColumn(std::size_t array)
{
  if (columns.size() >= mostColumns)
    return withValues(translated("RunArrays", "it holds more than %1 columns"),
                      {std::to_string(mostColumns)});
  NamedColumn column{lastPart(arrays[array].name), {}, {}, {}};
  std::string error;
  if (arrays[array].kind == StoredArray::Kind::Numbers)
    error = readLine(array, column.values);
  else
  {
    std::vector<std::string> texts;
    used[array] = true;
    error = source.readTexts(array, texts);
    ColumnWords words;
    for (const std::string& text : texts)
      words.add(text);
    column = words.take(std::move(column));
  }
  columns.push_back(std::move(column));
  return error;
}

std::string RunArrays::readLine(std::size_t array, std::vector<double>& values)
{
  used[array] = true;
  return source.readNumbers(array, counting(
                                       [&](const double* part, std::size_t count)
                                       {
                                         values.insert(values.end(), part, part + count);
                                         return true;
                                       }));
}

void RunArrays::noteLeftOut()
{
  std::vector<std::string> names;
  for (std::size_t i = 0; i < arrays.size(); ++i)
    if (!used[i])
      names.push_back(arrays[i].name);
  if (!names.empty())
    said.push_back(withValues(
        translated("RunArrays",
                   "What does not fit the table is left out: %1; --sheet chooses another one."),
        {listOfParts(names)}));
}

} // namespace Talmesh::app
