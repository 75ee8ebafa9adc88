#include "app/import/LayoutUnits.h"
#include "app/import/TranslatedText.h"

namespace Talmesh::app
{

namespace
{

LayoutFit recognise(const TableText& text, const ImportRequest& request)
{
  if (!request.time.empty() || !request.run.empty() || text.roles.describeRuns())
    return {0.7, translated("StackedLayout", "a row per run and time")};
  return {};
}

Result<TableText> arrange(TableText text, const LayoutTask&)
{
  return Result<TableText>(std::move(text));
}

} // namespace

const Layout stackedLayout = {"stacked", recognise, arrange};

} // namespace Talmesh::app
