#include "app/import/LayoutFacts.h"
#include "app/import/LayoutUnits.h"
#include "app/import/TranslatedText.h"

namespace Talmesh::app
{

namespace
{

LayoutFit recognise(const TableText& text, const ImportRequest& request)
{
  if (!asksForRuns(request) && !text.roles.describeRuns())
    return {};
  if (text.roles.timeColumn < 0 && !text.roles.anyTyped && everyRowIsNamed(text))
    return {0.3, translated("StackedLayout", "a row per run")};
  // Two points of a run at one time can stand in a table of runs, but mostly do not.
  if (pointsRepeat(text) && !textColumns(text).empty())
    return {0.4, translated("StackedLayout", "a row per run and time, some of them at the same "
                                             "time")};
  return {0.7, translated("StackedLayout", "a row per run and time")};
}

Result<TableText> arrange(TableText text, const LayoutTask&)
{
  return Result<TableText>(std::move(text));
}

} // namespace

const Layout stackedLayout = {"stacked", recognise, arrange};

} // namespace Talmesh::app
