#include "app/formats/ArrayLayout.h"

#include "app/formats/ArrayMeaning.h"
#include "app/formats/PartNames.h"
#include "app/formats/RunArrays.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <map>
#include <optional>

namespace Talmesh::app
{

namespace
{

using Content = Result<FileContent>;
using Kind = StoredArray::Kind;

const ArrayMeaning rowsAndColumns{{ArrayAxis::Time, ArrayAxis::Item}, true};

class ArrayArranger
{
public:
  ArrayArranger(ArraySource& source_, const FormatRequest& request, const ImportProgress& progress_)
      : source(source_)
      , arrays(source_.arrays())
      , part(request.part)
      , progress(progress_)
      , companions(findCompanions(arrays))
  {
  }

  Content arrange()
  {
    if (arrays.empty())
      return Content::failed(translated("ArrayLayout", "there is no array in it"));
    std::optional<std::size_t> wanted;
    if (!part.empty())
    {
      std::vector<std::string> names;
      for (const StoredArray& array : arrays)
        names.push_back(array.name);
      const Result<std::string> chosen = chosenPart(names, part);
      if (!chosen.hasValue())
        return Content::without(chosen);
      wanted = std::find(names.begin(), names.end(), chosen.value()) - names.begin();
    }
    return wanted ? arrangeOne(*wanted) : arrangeAll();
  }

private:
  bool holdsValues(std::size_t i, Kind kind, std::size_t axes) const
  {
    return arrays[i].kind == kind && arrays[i].shape.size() == axes && !companions.contains(i) &&
           numberOfValues(arrays[i].shape) > 0;
  }

  std::vector<std::size_t> valuesOf(Kind kind, std::size_t axes) const
  {
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < arrays.size(); ++i)
      if (holdsValues(i, kind, axes))
        found.push_back(i);
    return found;
  }

  Content arrangeOne(std::size_t array)
  {
    if (numberOfValues(arrays[array].shape) == 0)
      return Content::failed(translated("ArrayLayout", "the array holds no values"));
    if (arrays[array].kind == Kind::Records && arrays[array].shape.size() == 1)
      return records(array);
    if (arrays[array].kind == Kind::Numbers && arrays[array].shape.size() == 1)
      return columnsOfLength(arrays[array].shape.front());
    if (arrays[array].kind != Kind::Numbers || arrays[array].shape.size() < 2)
      return noTable();
    return arrays[array].shape.size() <= 3 ? runsOf({array}) : tooManyAxes(array);
  }

  Content arrangeAll()
  {
    const std::vector<std::size_t> tables = valuesOf(Kind::Records, 1);
    if (tables.size() > 1)
      return severalTables(tables);
    if (!tables.empty())
      return records(tables.front());
    const std::vector<std::size_t> blocks = withMeaning(valuesOf(Kind::Numbers, 3));
    if (blocks.size() > 1)
      return severalTables(blocks);
    if (!blocks.empty())
      return runsOf(blocks);
    const std::vector<std::size_t> planes = withMeaning(valuesOf(Kind::Numbers, 2));
    if (planes.size() > 1 && companions.time == noArray && !axesAreTold(planes))
      return Content::failed(withValues(
          translated("ArrayLayout", "nothing tells which axis of %1 is the time: add an array of "
                                    "the times, called \"time\", or name one array with --sheet"),
          {listOfParts(namesOf(planes))}));
    if (!planes.empty())
      return runsOf(planes);
    return lines();
  }

  std::vector<std::string> namesOf(const std::vector<std::size_t>& chosen) const
  {
    std::vector<std::string> names;
    for (const std::size_t array : chosen)
      names.push_back(arrays[array].name);
    return names;
  }

  std::vector<std::size_t> withMeaning(const std::vector<std::size_t>& candidates) const
  {
    std::vector<std::size_t> meant;
    for (const std::size_t array : candidates)
      if (!meaningOf(arrays[array], arrays, companions).axes.empty())
        meant.push_back(array);
    return meant;
  }

  bool axesAreTold(const std::vector<std::size_t>& planes) const
  {
    return std::any_of(planes.begin(), planes.end(),
                       [this](std::size_t array)
                       { return meaningOf(arrays[array], arrays, companions).told; });
  }

  Content severalTables(const std::vector<std::size_t>& tables) const
  {
    return Content::failed(
        withValues(translated("ArrayLayout", "it holds several tables (%1); name one with --sheet"),
                   {listOfParts(namesOf(tables))}));
  }

  Content tooManyAxes(std::size_t array) const
  {
    return Content::failed(withValues(
        translated("ArrayLayout", "%1 has %2 axes; arrays of runs, times and items have three"),
        {quotedForMessage(arrays[array].name), std::to_string(arrays[array].shape.size())}));
  }

  Content noTable() const
  {
    for (std::size_t i = 0; i < arrays.size(); ++i)
      if (arrays[i].kind == Kind::Numbers && arrays[i].shape.size() > 3)
        return tooManyAxes(i);
    std::string all;
    for (std::size_t i = 0; i < std::min<std::size_t>(arrays.size(), 8); ++i)
      all += (i == 0 ? "" : ", ") + quotedForMessage(arrays[i].name) + " (" +
             shapeText(arrays[i].shape) + ")";
    return Content::failed(withValues(
        translated("ArrayLayout", "its arrays are no table: %1; columns need equal lengths, and "
                                  "arrays of runs, times and items as many times as \"time\" has"),
        {all}));
  }

  Content records(std::size_t array)
  {
    FileContent content;
    const std::string error = source.readRecords(array, content.columns, progress);
    if (!error.empty())
      return Content::failed(error);
    return content.columns.empty() ? Content::cancelled() : Content(std::move(content));
  }

  Content runsOf(const std::vector<std::size_t>& mains)
  {
    RunArrays columns(source, companions, progress);
    const std::size_t first = mains.front();
    ArrayMeaning meaning = meaningOf(arrays[first], arrays, companions);
    const bool plane = arrays[first].shape.size() == 2;
    const auto has = [&](ArrayAxis axis)
    { return std::find(meaning.axes.begin(), meaning.axes.end(), axis) != meaning.axes.end(); };
    if (meaning.axes.empty())
      return noTable();
    if (plane && (!has(ArrayAxis::Time) || (companions.time == noArray && !meaning.told)))
      return finished(columns, columns.makeTable(first, has(ArrayAxis::Time) ? rowsAndColumns
                                                                             : asRows(meaning)));
    std::string error = columns.make(first, meaning);
    for (std::size_t i = 1; i < mains.size() && error.empty() && !columns.isCancelled(); ++i)
      columns.add(mains[i], meaningOf(arrays[mains[i]], arrays, companions), error);
    if (error.empty() && !columns.isCancelled())
      error = columns.complete();
    return finished(columns, error);
  }

  /// A row per run is a row of a table like any other.
  static ArrayMeaning asRows(ArrayMeaning meaning)
  {
    std::replace(meaning.axes.begin(), meaning.axes.end(), ArrayAxis::Run, ArrayAxis::Time);
    return meaning;
  }

  Content finished(RunArrays& columns, const std::string& error)
  {
    if (columns.isCancelled())
      return Content::cancelled();
    if (!error.empty())
      return Content::failed(error);
    FileContent content;
    content.columns = columns.takeColumns();
    content.notes = columns.notes();
    return content;
  }

  /// Arrays of one axis are columns: those of the length that most have.
  Content lines()
  {
    std::map<std::size_t, std::size_t> frequency;
    for (const StoredArray& array : arrays)
      if (array.shape.size() == 1 && array.kind != Kind::Records && array.shape.front() > 0)
        ++frequency[array.shape.front()];
    if (frequency.empty())
      return noTable();
    const auto usual =
        std::max_element(frequency.begin(), frequency.end(),
                         [](const auto& a, const auto& b) { return a.second < b.second; });
    const auto equal =
        std::count_if(frequency.begin(), frequency.end(),
                      [&](const auto& length) { return length.second == usual->second; });
    return equal > 1 ? noTable() : columnsOfLength(usual->first);
  }

  Content columnsOfLength(std::size_t length);

  ArraySource& source;
  const std::vector<StoredArray>& arrays;
  const std::string& part;
  const ImportProgress& progress;
  ArrayCompanions companions;
};

Content ArrayArranger::columnsOfLength(std::size_t length)
{
  RunArrays columns(source, companions, progress);
  std::string error;
  bool any = false;
  for (std::size_t i = 0; i < arrays.size() && error.empty() && !columns.isCancelled(); ++i)
    if (arrays[i].shape == std::vector<std::size_t>{length} && arrays[i].kind != Kind::Records)
    {
      error = columns.addColumn(i);
      any = any || arrays[i].kind == Kind::Numbers;
    }
  columns.noteLeftOut();
  return any ? finished(columns, error) : noTable();
}

} // namespace

Result<FileContent> arrangeArrays(ArraySource& source, const FormatRequest& request,
                                  const ImportProgress& progress)
{
  return ArrayArranger(source, request, progress).arrange();
}

} // namespace Talmesh::app
