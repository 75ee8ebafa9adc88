#include "app/document/ListedRuns.h"
#include "app/document/SelectionController.h"
#include "app/session/RunSelectionFile.h"
#include "external/ParameterSelection.h"
#include "plot/PlotContainer.h"

#include <set>

/// Selected runs in files of their own, and what sessions keep of the steps.
namespace Talmesh::app
{

std::string SelectionController::save(const QString& path) const
{
  return hasRuns() ? saveSelectedRuns(path, *container) : noRuns();
}

std::string SelectionController::load(const QString& path)
{
  const Result<ParameterSelection> loaded = loadRunSelection(path);
  if (!loaded.hasValue())
    return loaded.error();
  if (!hasRuns())
    return noRuns();
  const TableRuns table(*container);
  const std::set<int>& wanted = loaded.value().runs;
  const ListedRuns listed = findListed(wanted, table);
  // A file may well say that nothing is selected.
  if (wanted.empty() || listed.missing.size() < wanted.size())
    selectRuns(listed.runs, table.words(listed.runs), RunCombination::Replace);
  return noteOnMissing(path, listed.missing, wanted.size());
}

SessionSteps SelectionController::earlierSteps() const
{
  return container == followed ? earlier : SessionSteps();
}

SessionSteps SelectionController::followedSteps() const
{
  SessionSteps steps = earlier;
  if (const int lost = history.forgotten(); lost > 0)
    steps = {{}, earlier.forgotten + static_cast<int>(earlier.texts.size()) + lost};
  for (int step = 0; step < stack.index(); ++step)
    steps.texts.push_back(stack.text(step).toStdString());
  return steps;
}

} // namespace Talmesh::app
