#include "app/import/FileJoin.h"

#include "app/import/ColumnRoles.h"
#include "app/import/NameParts.h"
#include "app/import/ParameterJoin.h"
#include "app/import/RunCollector.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <map>
#include <set>

namespace Talmesh::app
{

namespace
{

using Columns = std::vector<NamedColumn>;
using Joined = Result<Columns>;

std::set<std::string> headersOf(const JoinedFile& file)
{
  std::set<std::string> headers;
  for (const NamedColumn& column : file.columns)
    headers.insert(column.name);
  return headers;
}

const NamedColumn* timeOf(const JoinedFile& file, const ImportRequest& request)
{
  for (const NamedColumn& column : file.columns)
    if (request.time.empty() ? isTimeName(readHeader(column.name).name)
                             : column.name == request.time)
      return &column;
  return nullptr;
}

bool sameTimes(const NamedColumn* a, const NamedColumn* b)
{
  return a && b && a->values == b->values && a->rows() == b->rows();
}

class FileJoiner
{
public:
  FileJoiner(std::vector<JoinedFile> files_, std::optional<JoinedFile> parameters_,
             const ImportRequest& request_, ImportReport& report_)
      : files(std::move(files_))
      , parameters(std::move(parameters_))
      , request(request_)
      , report(report_)
  {
  }

  Joined join()
  {
    if (!parameters)
      findParameters();
    std::string error = objectionToHeaders();
    if (!error.empty())
      return Joined::failed(error);
    std::vector<std::string> names;
    for (const JoinedFile& file : files)
      names.push_back(file.name);
    parts = distinctParts(names);
    const bool items = request.files.empty() ? filesAreItems(error) : request.files == "items";
    if (error.empty() && items)
      error = objectionToItems();
    if (!error.empty())
      return Joined::failed(error);
    report.reasons.push_back(withValues(
        items ? translated("FileJoin", "each of the %1 files holds an item, whose columns are runs")
              : translated("FileJoin", "each of the %1 files holds a run"),
        {std::to_string(files.size())}));
    Columns columns = items ? joinItems() : joinRuns();
    if (parameters)
      error = joinParameters(*parameters, keys, request, columns, report);
    return error.empty() ? Joined(std::move(columns)) : Joined::failed(error);
  }

private:
  /// One file with other columns than all others, and without a time, is a table of parameters.
  void findParameters()
  {
    if (files.size() < 3)
      return;
    std::map<std::set<std::string>, std::vector<std::size_t>> kinds;
    for (std::size_t i = 0; i < files.size(); ++i)
      kinds[headersOf(files[i])].push_back(i);
    if (kinds.size() != 2)
      return;
    for (const auto& [headers, those] : kinds)
      if (those.size() == 1 && !timeOf(files[those.front()], request))
      {
        const auto place = files.begin() + static_cast<std::ptrdiff_t>(those.front());
        parameters = std::move(*place);
        files.erase(place);
        return;
      }
  }

  std::string objectionToHeaders() const
  {
    const std::set<std::string> first = headersOf(files.front());
    for (const JoinedFile& file : files)
    {
      const std::set<std::string> headers = headersOf(file);
      if (headers == first)
        continue;
      std::vector<std::string> different;
      std::set_symmetric_difference(first.begin(), first.end(), headers.begin(), headers.end(),
                                    std::back_inserter(different));
      return withValues(translated("FileJoin",
                                   "%1 and %2 have different columns (%3 is only in one of them); "
                                   "files that are opened together need the same"),
                        {quotedForMessage(files.front().name), quotedForMessage(file.name),
                         quotedForMessage(different.front())});
    }
    return {};
  }

  std::vector<std::string> valueHeaders() const
  {
    const NamedColumn* time = timeOf(files.front(), request);
    std::vector<std::string> headers;
    for (const NamedColumn& column : files.front().columns)
      if (&column != time)
        headers.push_back(column.name);
    return headers;
  }

  bool filesAreItems(std::string& error)
  {
    const std::vector<std::string> headers = valueHeaders();
    if (headers.size() < 2 || !areNumbered(headers))
      return false;
    if (!areNumbered(parts))
      return true;
    report.candidates = {
        {"--files runs", "", 0.5, translated("FileJoin", "each file is a run")},
        {"--files items", "", 0.5,
         translated("FileJoin", "each file is an item, and its columns are runs")}};
    error =
        translated("FileJoin", "files and columns are numbered, so that either may be runs: say "
                               "--files runs or --files items");
    return false;
  }

  std::string objectionToItems()
  {
    const NamedColumn* time = timeOf(files.front(), request);
    for (const JoinedFile& file : files)
    {
      if (time && !sameTimes(time, timeOf(file, request)))
        return withValues(translated("FileJoin", "%1 and %2 have different times; files of one "
                                                 "item each need the same. If each file is a run, "
                                                 "say --files runs"),
                          {quotedForMessage(files.front().name), quotedForMessage(file.name)});
      if (file.columns.front().rows() != files.front().columns.front().rows())
        return withValues(translated("FileJoin", "%1 and %2 have different numbers of rows; files "
                                                 "of one item each need the same. If each file is "
                                                 "a run, say --files runs"),
                          {quotedForMessage(files.front().name), quotedForMessage(file.name)});
    }
    if (time || !request.files.empty())
      return {};
    report.candidates = {
        {"--files items", "", 0.5,
         translated("FileJoin", "each file is an item; rows of the same number are one time")},
        {"--files runs", "", 0.4, translated("FileJoin", "each file is a run")}};
    return translated("FileJoin", "the files have no times, so that only the order of their rows "
                                  "could join them: say --files items to do so, or --files runs "
                                  "where each is a run");
  }

  Columns joinRuns()
  {
    RunCollector collector;
    bool named = false;
    for (const NamedColumn& column : files.front().columns)
      named = named || isRunName(readHeader(column.name).name);
    for (std::size_t i = 0; i < files.size(); ++i)
    {
      keys.push_back({parts[i], files[i].name, files[i].columns.front().rows()});
      collector.add(parts[i], std::move(files[i].columns));
    }
    // A file of several runs names them by itself; both names together are the run then.
    return collector.take(named ? "file" : "run");
  }

  Columns joinItems()
  {
    const std::vector<std::string> headers = valueHeaders();
    const NamedColumn* first = timeOf(files.front(), request);
    const NamedColumn time = first ? *first : NamedColumn();
    const std::vector<std::string> runs = distinctParts(headers);
    RunCollector collector;
    for (std::size_t run = 0; run < headers.size(); ++run)
    {
      Columns columns;
      if (first)
        columns.push_back(time);
      for (std::size_t i = 0; i < files.size(); ++i)
        for (NamedColumn& column : files[i].columns)
          if (column.name == headers[run])
          {
            columns.push_back(std::move(column));
            column = NamedColumn();
            columns.back().name = stemOf(files[i].name);
            break;
          }
      keys.push_back({runs[run], headers[run], columns.front().rows()});
      collector.add(runs[run], std::move(columns));
    }
    return collector.take("run");
  }

  std::vector<JoinedFile> files;
  std::optional<JoinedFile> parameters;
  const ImportRequest& request;
  ImportReport& report;
  std::vector<std::string> parts;
  std::vector<RunKey> keys;
};

} // namespace

Result<std::vector<NamedColumn>> joinFiles(std::vector<JoinedFile> files,
                                           std::optional<JoinedFile> parameters,
                                           const ImportRequest& request, ImportReport& report)
{
  return FileJoiner(std::move(files), std::move(parameters), request, report).join();
}

} // namespace Talmesh::app
