#include "app/formats/ArrayScatter.h"
#include "app/formats/RunArrays.h"
#include "app/import/ColumnRoles.h"
#include "app/import/ColumnWords.h"
#include "app/import/SystemMemory.h"
#include "app/import/TableText.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"
#include "external/ColumnNames.h"

#include <numeric>

/// What stands beside the values of runs: times, names of runs, parameters.
namespace Talmesh::app
{

namespace
{

std::string lastPart(const std::string& name)
{
  return name.substr(name.rfind('/') + 1);
}

} // namespace

void RunArrays::addRepeated(const std::string& name, const std::vector<double>& ofRun)
{
  NamedColumn column{name, {}, {}, {}};
  column.values.reserve(runs * times);
  for (const double value : ofRun)
    column.values.insert(column.values.end(), times, value);
  columns.push_back(std::move(column));
}

std::string RunArrays::addTimes()
{
  const std::size_t time = companions.time;
  if (time == noArray)
  {
    said.push_back(translated("RunArrays", "Nothing tells the times; the points are counted."));
    NamedColumn column{
        selectionPairToString({TimeOrValue, "Time"}), std::vector<double>(runs * times), {}, {}};
    for (std::size_t row = 0; row < column.values.size(); ++row)
      column.values[row] = static_cast<double>(row % times);
    columns.push_back(std::move(column));
    return {};
  }
  const std::string name =
      selectionPairToString({TimeOrValue, plottedTimeName(lastPart(arrays[time].name))});
  const std::vector<std::size_t>& shape = arrays[time].shape;
  if (shape.size() == 2)
  {
    columns.push_back({name, std::vector<double>(runs * times), {}, {}});
    if (shape != std::vector<std::size_t>{runs, times})
      return withValues(
          translated("RunArrays", "%1 has times for %2 runs and points, the data "
                                  "for %3"),
          {quotedForMessage(arrays[time].name), shapeText(shape), shapeText({runs, times})});
    ArrayScatter scatter(arrays[time], {{ArrayAxis::Run, ArrayAxis::Time}, true},
                         {columns.back().values.data()});
    used[time] = true;
    return source.readNumbers(time, counting(
                                        [&](const double* values, std::size_t count)
                                        {
                                          scatter.add(values, count);
                                          return true;
                                        }));
  }
  std::vector<double> values;
  const std::string error = readLine(time, values);
  if (!error.empty() || cancelled)
    return error;
  NamedColumn column{name, {}, {}, {}};
  column.values.reserve(runs * times);
  for (std::size_t run = 0; run < runs; ++run)
    column.values.insert(column.values.end(), values.begin(), values.end());
  columns.push_back(std::move(column));
  return {};
}

std::string RunArrays::addRuns()
{
  const std::string name = selectionPairToString({TimeOrValue, runIndexName});
  const std::size_t named = companions.runs;
  if (named != noArray && arrays[named].shape.front() == runs)
  {
    if (arrays[named].kind == StoredArray::Kind::Texts)
    {
      const std::size_t before = columns.size();
      std::string error = addPerRun(named);
      if (columns.size() > before)
        columns.back().name = name;
      return error;
    }
    std::vector<double> numbers;
    std::string error = readLine(named, numbers);
    if (error.empty() && !cancelled)
      addRepeated(name, numbers);
    return error;
  }
  std::vector<double> numbers(runs);
  std::iota(numbers.begin(), numbers.end(), 0.0);
  addRepeated(name, numbers);
  return {};
}

std::string RunArrays::addPerRun(std::size_t array)
{
  const std::string name = lastPart(arrays[array].name);
  if (arrays[array].kind == StoredArray::Kind::Numbers)
  {
    std::vector<double> values;
    std::string error = readLine(array, values);
    if (error.empty() && !cancelled)
      addRepeated(selectionPairToString({Parameter, name}), values);
    return error;
  }
  std::vector<std::string> texts;
  used[array] = true;
  std::string error = source.readTexts(array, texts);
  ColumnWords words;
  for (const std::string& text : texts)
    words.add(text, times);
  columns.push_back(words.take({name, {}, {}, {}}));
  return error;
}

std::string RunArrays::addParametersOfMatrix()
{
  const std::size_t matrix = companions.parameters;
  if (matrix == noArray || arrays[matrix].shape.front() != runs)
    return {};
  const std::size_t count = arrays[matrix].shape.back();
  if (count == 0 || count + columns.size() > mostColumns)
    return {};
  std::vector<std::string> names = arrays[matrix].labels;
  const std::size_t named = companions.parameterNames;
  if (names.empty() && named != noArray)
  {
    used[named] = true;
    const std::string error = source.readTexts(named, names);
    if (!error.empty())
      return error;
  }
  for (std::size_t i = names.size(); i < count; ++i)
    names.push_back(withValues(translated("RunArrays", "Parameter %1"), {std::to_string(i + 1)}));
  std::vector<std::vector<double>> values(count, std::vector<double>(runs));
  std::vector<double*> places;
  for (std::vector<double>& column : values)
    places.push_back(column.data());
  used[matrix] = true;
  ArrayScatter scatter(arrays[matrix], {{ArrayAxis::Run, ArrayAxis::Item}, true}, places);
  // Without an axis of times a run is one row of the scatter.
  const std::string error =
      source.readNumbers(matrix, counting(
                                     [&](const double* part, std::size_t length)
                                     {
                                       scatter.add(part, length);
                                       return true;
                                     }));
  for (std::size_t i = 0; i < count && error.empty() && !cancelled; ++i)
    addRepeated(selectionPairToString({Parameter, names[i]}), values[i]);
  return error;
}

std::string RunArrays::addParameters()
{
  std::string error = addParametersOfMatrix();
  for (std::size_t i = 0; i < arrays.size() && error.empty() && !cancelled; ++i)
  {
    const bool perRun = arrays[i].shape.size() == 1 && arrays[i].shape.front() == runs &&
                        arrays[i].kind != StoredArray::Kind::Records;
    if (perRun && !used[i] && !companions.contains(i) && columns.size() < mostColumns)
      error = addPerRun(i);
  }
  return error;
}

std::string RunArrays::complete()
{
  if (columns.size() + arrays.size() > mostColumns ||
      !hasMemory((columns.size() + arrays.size()) * runs * times))
    return translated("RunArrays", "the table does not fit into memory");
  std::string error = addTimes();
  if (error.empty() && !cancelled && runs > 1)
    error = addRuns();
  if (error.empty() && !cancelled && runs > 1)
    error = addParameters();
  noteLeftOut();
  return error;
}

} // namespace Talmesh::app
