#include "app/import/LayoutFacts.h"
#include "app/import/LayoutUnits.h"
#include "app/import/TranslatedText.h"

namespace Talmesh::app
{

namespace
{

LayoutFit recognise(const TableText& text, const ImportRequest& request)
{
  if (asksForRuns(request) || text.roles.describeRuns())
    return {};
  return {0.6, translated("PlainLayout", "there is neither a time nor a run")};
}

Result<TableText> arrange(TableText text, const LayoutTask&)
{
  text.hasRuns = false;
  return Result<TableText>(std::move(text));
}

} // namespace

const Layout plainLayout = {"table", recognise, arrange};

} // namespace Talmesh::app
