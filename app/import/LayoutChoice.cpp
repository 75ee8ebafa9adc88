#include "app/import/LayoutChoice.h"

#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>

namespace Talmesh::app
{

namespace
{

/// A layout whose score is this part of the best one could be meant as well.
constexpr double closeScores = 0.8;

std::string allNames()
{
  std::string names;
  for (const Layout& layout : layouts())
    names += (names.empty() ? "" : ", ") + std::string(layout.name);
  return names;
}

std::string optionsOf(const std::vector<ImportCandidate>& candidates)
{
  std::string options;
  for (const ImportCandidate& candidate : candidates)
    options += (options.empty() ? "" : "; ") + candidate.option + " (" + candidate.reason + ')';
  return options;
}

} // namespace

Result<const Layout*> chooseLayout(const TableText& text, const ImportRequest& request,
                                   ImportReport& report)
{
  using Chosen = Result<const Layout*>;
  if (!request.layout.empty())
  {
    const Layout* named = findLayout(request.layout);
    if (!named)
      return Chosen::failed(
          withValues(translated("LayoutChoice", "there is no layout %1; the layouts are %2"),
                     {quotedForMessage(request.layout), allNames()}));
    report.reasons.push_back(withValues(
        translated("LayoutChoice", "the layout is %1, as was asked for"), {request.layout}));
    return named;
  }
  std::vector<ImportCandidate> candidates = candidatesFor(text, request);
  const double close = closeScores * candidates.front().score;
  candidates.erase(std::remove_if(candidates.begin(), candidates.end(),
                                  [close](const ImportCandidate& candidate)
                                  { return candidate.score < close; }),
                   candidates.end());
  if (candidates.size() == 1)
  {
    report.reasons.push_back(withValues(translated("LayoutChoice", "the layout is %1: %2"),
                                        {candidates.front().layout, candidates.front().reason}));
    return findLayout(candidates.front().layout);
  }
  report.candidates = candidates;
  return Chosen::failed(
      withValues(translated("LayoutChoice", "it is not clear how the table is laid out. Say %1"),
                 {optionsOf(candidates)}));
}

bool takeCandidate(const ImportCandidate& candidate, ImportRequest& request)
{
  if (!candidate.layout.empty())
    request.layout = candidate.layout;
  else if (candidate.option == "--decimal ,")
    request.decimalMark = ',';
  else if (candidate.option == "--files runs" || candidate.option == "--files items")
    request.files = candidate.option.substr(candidate.option.rfind(' ') + 1);
  else if (candidate.option == "--join order")
    request.join = "order";
  else
    return false;
  return true;
}

} // namespace Talmesh::app
