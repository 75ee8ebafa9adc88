#include "app/import/Layouts.h"

#include "app/import/LayoutUnits.h"

#include <algorithm>

namespace Talmesh::app
{

const std::vector<Layout>& layouts()
{
  static const std::vector<Layout> all = {petabLayout, stackedLayout, tidyLayout,
                                          wideLayout,  rowsLayout,    plainLayout};
  return all;
}

const Layout* findLayout(const std::string& name)
{
  const auto found = std::find_if(layouts().begin(), layouts().end(),
                                  [&](const Layout& layout) { return name == layout.name; });
  return found == layouts().end() ? nullptr : &*found;
}

std::vector<ImportCandidate> candidatesFor(const TableText& text, const ImportRequest& request)
{
  std::vector<ImportCandidate> candidates;
  for (const Layout& layout : layouts())
  {
    const LayoutFit fit = layout.recognise(text, request);
    if (fit.score > 0.0)
      candidates.push_back(
          {std::string("--layout ") + layout.name, layout.name, fit.score, fit.reason});
  }
  std::stable_sort(candidates.begin(), candidates.end(),
                   [](const ImportCandidate& a, const ImportCandidate& b)
                   { return a.score > b.score; });
  return candidates;
}

} // namespace Talmesh::app
