#include "app/import/TextRuns.h"

#include "app/import/CommonGrid.h"
#include "app/import/RunGrouping.h"
#include "app/import/RunTableBuilder.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <set>
#include <string>

namespace Talmesh::app
{

namespace
{

using Imported = Result<ImportedTable>;

/// The stacked runs, or what keeps the rows from being such.
class RunsOfText
{
public:
  RunsOfText(TableText& text_, const ImportRequest& request_, const ImportProgress& progress_,
             ImportReport& report_)
      : text(text_)
      , request(request_)
      , progress(progress_)
      , report(report_)
  {
  }

  Imported build(const std::vector<ColumnLevels>& levels)
  {
    Result<RunGrouping> grouped = text.rowsAreRuns ? everyRow() : grouping();
    if (!grouped.hasValue())
      return Imported::without(grouped);
    if (progress && !progress(1.0))
      return Imported::cancelled();
    RunGrouping& runs = grouped.value();
    ImportedTable imported;
    const std::string error = layOnGrid(runs, imported);
    if (!error.empty())
      return Imported::failed(error);
    noteOnMissingTime(runs.pointsPerRun);
    const BuiltRuns built = buildRunTable(text, runs, progress);
    if (!built.runs)
      return Imported::cancelled();
    imported.runs = built.runs;
    for (const std::string& parameter : built.unvariedParameters)
      report.warnings.push_back(withValues(
          translated("RunTableImport", "The parameter %1 is the same in all runs and is left out."),
          {quotedForMessage(parameter)}));
    for (const ColumnLevels& category : levels)
      if (const auto label = built.labels.find(category.column); label != built.labels.end())
        imported.categories.push_back({label->second, category.levels});
    describe(*built.runs);
    return imported;
  }

private:
  Result<RunGrouping> grouping() const
  {
    RunColumns columns;
    columns.rows = text.rows;
    columns.lines = &text.lines;
    if (text.roles.timeColumn >= 0)
      columns.time = &text.columns[static_cast<std::size_t>(text.roles.timeColumn)].values;
    if (!text.runNames.empty())
    {
      columns.run = &text.runOfRow;
      columns.names = &text.runNames;
    }
    return groupRuns(columns);
  }

  Result<RunGrouping> everyRow() const
  {
    if (text.runNames.size() == text.rows)
      return grouping();
    RunGrouping rows;
    rows.numberOfRuns = text.rows;
    rows.pointsPerRun = 1;
    rows.indices.resize(text.rows);
    std::iota(rows.indices.begin(), rows.indices.end(), 0.0);
    rows.starts.resize(text.rows + 1);
    std::iota(rows.starts.begin(), rows.starts.end(), std::size_t{0});
    return rows;
  }

  bool hasInfiniteTime() const
  {
    if (text.roles.timeColumn < 0)
      return false;
    const auto& time = text.columns[static_cast<std::size_t>(text.roles.timeColumn)].values;
    return std::any_of(time.begin(), time.end(), [](double value) { return std::isinf(value); });
  }

  /// A point without a time has no place in its run.
  /// @return why there are no runs then, in one line; empty on success
  std::string leaveOutTimeless(RunGrouping& runs)
  {
    if (text.roles.timeColumn < 0 || text.rowsAreRuns)
      return {};
    const std::vector<double>& time = times();
    const auto isMissing = [](double value) { return std::isnan(value); };
    const auto count = std::count_if(time.begin(), time.end(), isMissing);
    if (count == 0)
      return {};
    if (static_cast<std::size_t>(count) == time.size())
      return translated("TextRuns", "no row has a time");
    const auto first = std::find_if(time.begin(), time.end(), isMissing) - time.begin();
    report.warnings.push_back(withValues(
        translated("TextRuns", "Line %1: the time is missing. Points without a time are left out "
                               "(%2 in all)."),
        {std::to_string(text.lineOf(static_cast<std::size_t>(first))), std::to_string(count)}));
    stackRows(text, runs);
    std::vector<bool> kept;
    for (const double value : times())
      kept.push_back(!std::isnan(value));
    keepRows(text, runs, kept);
    return {};
  }

  /// Several points of a run at one time are mostly of several runs or items.
  /// @return what to say of them, in one line; empty where they may be meant
  std::string doubtedRepeats(const RunGrouping& runs)
  {
    if (text.roles.timeColumn < 0 || text.rowsAreRuns || text.rows == 0)
      return {};
    const auto rowAt = [&runs](std::size_t place)
    { return runs.order.empty() ? place : runs.order[place]; };
    std::size_t repeats = 0;
    std::size_t first = 0;
    for (std::size_t run = 0; run < runs.numberOfRuns; ++run)
      for (std::size_t place = runs.starts[run] + 1; place < runs.starts[run + 1]; ++place)
        if (times()[rowAt(place)] == times()[rowAt(place - 1)] && ++repeats == 1)
          first = rowAt(place);
    if (repeats == 0)
      return {};
    const std::string line = std::to_string(text.lineOf(first));
    if (2 * repeats < text.rows || !request.layout.empty() || !request.run.empty())
    {
      report.warnings.push_back(
          withValues(translated("TextRuns", "Line %1: a run has a second point at the same time "
                                            "(%2 such points in all)."),
                     {line, std::to_string(repeats)}));
      return {};
    }
    report.candidates = {
        {"--layout stacked", "stacked", 0.5,
         translated("TextRuns", "a run has several points at the same time")},
        {"--layout table", "table", 0.5, translated("RunTableImport", "the rows have no order")}};
    return withValues(translated("TextRuns",
                                 "line %1: a second point of a run at the same time. If a column "
                                 "names the runs, say --run and its name; if one names the items, "
                                 "--item; if the points are of one run, --layout stacked; if the "
                                 "rows have no order, --layout table"),
                      {line});
  }

  const std::vector<double>& times() const
  {
    return text.columns[static_cast<std::size_t>(text.roles.timeColumn)].values;
  }

  std::string layOnGrid(RunGrouping& runs, ImportedTable& imported)
  {
    std::string problem = leaveOutTimeless(runs);
    if (problem.empty() && !hasInfiniteTime())
      problem = doubtedRepeats(runs);
    if (!problem.empty())
      return problem;
    if (text.runNames.empty() && !runs.order.empty())
      report.warnings.push_back(translated("TextRuns", "The time falls from row to row, so the "
                                                       "rows are read from the last to the "
                                                       "first."));
    if (hasInfiniteTime())
    {
      stackRows(text, runs);
      takeSteadyStates(text, runs, report);
    }
    tellLengths(runs);
    if (!runs.unequal.empty())
    {
      if (text.runNames.empty() && !request.unequal && request.layout.empty())
        return doubtedRestarts(runs);
      stackRows(text, runs);
      const std::string error =
          putOnCommonGrid(text, runs, request.unequal, report, imported.measured);
      if (!error.empty())
        return error;
    }
    if (text.hasGaps && !text.isMeasured && request.unequal != UnequalRuns::Union)
    {
      stackRows(text, runs);
      bridgeGaps(text, runs, report);
    }
    return {};
  }

  void tellLengths(const RunGrouping& runs)
  {
    report.runs = runs.numberOfRuns;
    report.fewestPoints = runs.pointsPerRun;
    report.mostPoints = runs.pointsPerRun;
    for (std::size_t run = 0; run < runs.numberOfRuns; ++run)
    {
      const std::size_t points = runs.starts[run + 1] - runs.starts[run];
      report.fewestPoints = std::min(report.fewestPoints, points);
      report.mostPoints = std::max(report.mostPoints, points);
    }
  }

  /// Where time falls back now here, now there, it may not be that a run starts.
  std::string doubtedRestarts(const RunGrouping& runs)
  {
    report.candidates = {
        {"--layout stacked", "stacked", 0.5,
         translated("RunTableImport", "a run starts wherever time falls back, and runs differ in "
                                      "length")},
        {"--layout table", "table", 0.5, translated("RunTableImport", "the rows have no order")}};
    return withValues(translated("RunTableImport",
                                 "%1. If a run starts wherever time falls back, say --layout "
                                 "stacked; if a column names the runs, --run and its name; if "
                                 "there are none, --layout table"),
                      {runs.unequal});
  }

  /// In which order points are when there is no time.
  void noteOnMissingTime(std::size_t pointsPerRun)
  {
    if (text.roles.timeColumn < 0 && pointsPerRun > 1)
      report.warnings.push_back(translated("RunTableImport",
                                           "There is no time column, so the points of a run are "
                                           "in the order of the file."));
  }

  void describe(const LinePlotTable& runs)
  {
    if (text.roles.timeColumn >= 0)
      report.time = text.roles.headers[static_cast<std::size_t>(text.roles.timeColumn)].name;
    const std::set<std::string> categories(report.categories.begin(), report.categories.end());
    for (const auto& [kind, name] : runs.items)
      if (categories.count(name) > 0)
        continue;
      else if (kind == Parameter)
        report.parameters.push_back(name);
      else if (kind != TimeOrValue)
        report.items.push_back(name);
  }

  TableText& text;
  const ImportRequest& request;
  const ImportProgress& progress;
  ImportReport& report;
};

} // namespace

Result<ImportedTable> buildRuns(TableText& text, const std::vector<ColumnLevels>& levels,
                                const ImportRequest& request, const ImportProgress& progress,
                                ImportReport& report)
{
  return RunsOfText(text, request, progress, report).build(levels);
}

} // namespace Talmesh::app
