#include "app/formats/Hdf5Runs.h"

#include "app/formats/ArrayLayout.h"
#include "app/formats/ArrayMeaning.h"
#include "app/formats/Hdf5Frames.h"
#include "app/formats/Hdf5Source.h"
#include "app/import/ColumnRoles.h"
#include "app/import/RunCollector.h"
#include "app/import/SystemMemory.h"
#include "app/import/TableText.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"
#include "external/ColumnNames.h"
#include "external/TypedConcentrationName.h"

#include <algorithm>
#include <set>

namespace Talmesh::app
{

namespace
{

using Content = Result<FileContent>;

std::set<std::string> seriesOf(hid_t parent, const std::string& name, std::uint64_t fileBytes)
{
  std::set<std::string> names;
  const Hdf5Object group = openHdf5Group(parent, name);
  if (!group.isOpen() || isPandasFrame(group))
    return names;
  const Hdf5Source source(group, fileBytes);
  for (const StoredArray& array : source.arrays())
    if (!array.shape.empty() && array.kind != StoredArray::Kind::Texts)
      names.insert(array.name);
  return names;
}

bool hasTime(const std::vector<NamedColumn>& columns)
{
  return std::any_of(columns.begin(), columns.end(),
                     [](const NamedColumn& column)
                     { return isTimeName(readHeader(column.name).name); });
}

class RunGroupReader
{
public:
  RunGroupReader(hid_t parent_, std::uint64_t fileBytes_, const ImportProgress& progress_)
      : parent(parent_)
      , fileBytes(fileBytes_)
      , progress(progress_)
  {
    readCommonTimes();
  }

  Content read(const std::vector<std::string>& groups)
  {
    std::vector<std::string> notes;
    for (std::size_t i = 0; i < groups.size(); ++i)
    {
      const std::string error = readRun(groups[i]);
      if (!error.empty())
        notes.push_back(withValues(translated("Hdf5Runs", "The group %1 is left out: %2."),
                                   {quotedForMessage(groups[i]), error}));
      if (collector.numberOfColumns() > mostColumns ||
          !hasMemory(collector.numberOfRows() * collector.numberOfColumns() * sizeof(double)))
        return Content::failed(translated("Hdf5Runs", "the table does not fit into memory"));
      if (progress && !progress(static_cast<double>(i + 1) / static_cast<double>(groups.size())))
        return Content::cancelled();
    }
    if (collector.numberOfRuns() == 0)
      return Content::failed(notes.front());
    FileContent content;
    content.columns = collector.take(selectionPairToString({TimeOrValue, runIndexName}));
    content.notes = std::move(notes);
    return content;
  }

private:
  void readCommonTimes()
  {
    Hdf5Source source(parent, fileBytes);
    const ArrayCompanions companions = findCompanions(source.arrays());
    if (companions.time == noArray || source.arrays()[companions.time].shape.size() != 1)
      return;
    times.name = source.arrays()[companions.time].name;
    source.readNumbers(companions.time,
                       [this](const double* values, std::size_t count)
                       {
                         times.values.insert(times.values.end(), values, values + count);
                         return true;
                       });
  }

  std::string readRun(const std::string& name)
  {
    const Hdf5Object group = openHdf5Group(parent, name);
    if (!group.isOpen())
      return damagedHdf5();
    Hdf5Source source(group, fileBytes);
    Content run = arrangeArrays(source, FormatRequest(), {});
    if (!run.hasValue())
      return run.error();
    std::vector<NamedColumn>& columns = run.value().columns;
    const std::size_t points = columns.front().rows();
    if (!hasTime(columns) && times.values.size() == points)
      columns.push_back(times);
    takeNumbers(source, points, columns);
    takeAttributes(group, points, columns);
    const Hdf5Members members = hdf5MembersOf(group, mostColumns);
    for (const std::string& inside : members.groups)
      if (inside == "parameters" || inside == "params" || inside == "Parameters")
      {
        const Hdf5Object parameters = openHdf5Group(group, inside);
        Hdf5Source single(parameters, fileBytes);
        takeNumbers(single, points, columns);
        takeAttributes(parameters, points, columns);
      }
    collector.add(toUtf8(name), std::move(columns));
    return {};
  }

  static void addConstant(const std::string& name, double value, std::size_t points,
                          std::vector<NamedColumn>& columns)
  {
    columns.push_back({selectionPairToString({Parameter, toUtf8(name)}),
                       std::vector<double>(points, value),
                       {},
                       {}});
  }

  static void addText(const std::string& name, const std::vector<std::string>& texts,
                      std::size_t points, std::vector<NamedColumn>& columns)
  {
    if (texts.size() == 1)
      columns.push_back({toUtf8(name), {}, texts, std::vector<int>(points, 0)});
  }

  void takeNumbers(Hdf5Source& source, std::size_t points, std::vector<NamedColumn>& columns)
  {
    for (std::size_t i = 0; i < source.arrays().size(); ++i)
    {
      const StoredArray& array = source.arrays()[i];
      if (numberOfValues(array.shape) != 1 || (points == 1 && !array.shape.empty()))
        continue;
      std::vector<std::string> texts;
      if (array.kind == StoredArray::Kind::Texts && source.readTexts(i, texts).empty())
        addText(array.name, texts, points, columns);
      else if (array.kind == StoredArray::Kind::Numbers)
        source.readNumbers(i,
                           [&](const double* value, std::size_t)
                           {
                             addConstant(array.name, *value, points, columns);
                             return true;
                           });
    }
  }

  /// Names in capital letters are those of the libraries that write files.
  void takeAttributes(hid_t group, std::size_t points, std::vector<NamedColumn>& columns)
  {
    for (const std::string& name : hdf5Attributes(group))
    {
      if (name == "CLASS" || name == "VERSION" || name == "TITLE" ||
          name == "PYTABLES_FORMAT_VERSION")
        continue;
      if (const std::optional<double> number = hdf5Number(group, name.c_str()))
        addConstant(name, *number, points, columns);
      else
        addText(name, hdf5Texts(group, name.c_str()), points, columns);
    }
  }

  hid_t parent;
  std::uint64_t fileBytes;
  const ImportProgress& progress;
  RunCollector collector;
  NamedColumn times;
};

} // namespace

bool areRunGroups(hid_t parent, const std::vector<std::string>& groups, std::uint64_t fileBytes)
{
  if (groups.size() < 2)
    return false;
  const std::set<std::string> first = seriesOf(parent, groups[0], fileBytes);
  const std::set<std::string> second = seriesOf(parent, groups[1], fileBytes);
  return std::any_of(first.begin(), first.end(),
                     [&](const std::string& name) { return second.count(name) > 0; });
}

Result<FileContent> readRunGroups(hid_t parent, const std::vector<std::string>& groups,
                                  std::uint64_t fileBytes, const ImportProgress& progress)
{
  return RunGroupReader(parent, fileBytes, progress).read(groups);
}

} // namespace Talmesh::app
