#include "app/import/LayoutFacts.h"
#include "app/import/LayoutUnits.h"
#include "app/import/RoleChoice.h"
#include "app/import/RoleNames.h"
#include "app/import/TranslatedText.h"

#include <algorithm>

/// A row per run: parameter scans, fits from many starts, draws of a sampler.
namespace Talmesh::app
{

namespace
{

template <typename IsName>
std::size_t countNames(const TableText& text, IsName isName)
{
  const std::vector<std::size_t> columns = freeColumns(text);
  return static_cast<std::size_t>(
      std::count_if(columns.begin(), columns.end(),
                    [&](std::size_t column) { return isName(text.roles.headers[column].name); }));
}

LayoutFit recognise(const TableText& text, const ImportRequest& request)
{
  if (text.roles.timeColumn >= 0 || text.roles.anyTyped || text.rows < 2)
    return {};
  if (everyRowIsNamed(text))
    return {0.9,
            translated("RowsLayout", "every row names a run of its own, and there is no time")};
  if (!request.run.empty() || !text.roles.runCandidates.empty())
    return {};
  if (text.isScan && request.parameters.empty() && !numberColumns(text).empty())
    return {0.9, translated("RowsLayout", "a file of this kind holds a scan of its first column")};
  if (!request.parameters.empty())
    return {0.9, translated("RowsLayout", "there are parameters and no time")};
  const std::size_t draws = countNames(text, isDrawName);
  const std::size_t results = countNames(text, isResultName);
  const std::size_t columns = freeColumns(text).size();
  if (columns > 1 && draws + results > 0)
    return {0.85, translated("RowsLayout", "columns are called as samplers and fits call them, "
                                           "and there is no time")};
  const std::size_t parameters = countNames(text, isParameterName);
  if (parameters > 1 && 2 * parameters >= columns)
    return {0.8, translated("RowsLayout", "most columns are called as parameters are, and there "
                                          "is no time")};
  if (parameters > 0)
    return {0.55, translated("RowsLayout", "a column is called as parameters are, and there is no "
                                           "time: a row may be a run")};
  return {};
}

/// Whether a column of a run's numbers is a parameter. Samplers and fits name what is not; else
/// those that are called as parameters are, or all where none is.
bool isParameter(const std::string& name, bool namesResults, bool namesParameters)
{
  // Chains part the draws; their numbers only count them.
  const bool counts = isDrawName(name) && name.find("hain") == std::string::npos;
  if (counts || isResultName(name))
    return false;
  return namesResults || !namesParameters || isParameterName(name);
}

Result<TableText> arrange(TableText text, const LayoutTask& task)
{
  text.rowsAreRuns = true;
  const bool asked = !task.request.parameters.empty();
  if (const std::vector<std::size_t> numbers = numberColumns(text);
      text.isScan && !asked && !numbers.empty())
    for (const std::size_t column : numbers)
      text.uses[column] = column == numbers.front() ? ColumnUse::Parameter : ColumnUse::Item;
  const bool namesResults = countNames(text, isDrawName) + countNames(text, isResultName) > 0;
  const bool namesParameters = countNames(text, isParameterName) > 0;
  for (const std::size_t column : freeColumns(text))
  {
    ColumnUse& use = text.uses[column];
    const std::string& name = text.roles.headers[column].name;
    if (use != ColumnUse::Open)
      continue;
    const bool ofRun = text.columns[column].isText() ||
                       (!asked && isParameter(name, namesResults, namesParameters));
    use = ofRun ? ColumnUse::Parameter : ColumnUse::Item;
  }
  return Result<TableText>(std::move(text));
}

} // namespace

const Layout rowsLayout = {"rows", recognise, arrange};

} // namespace Talmesh::app
