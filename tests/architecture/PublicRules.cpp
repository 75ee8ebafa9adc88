#include "architecture/PublicRules.h"

#include <regex>
#include <sstream>

namespace Talmesh::architecture
{
namespace
{

using Lines = std::vector<std::string>;

const std::regex ownHeader(R"((\.\./)?((export|external|stats|vtk|plot|widgets)/\w+\.h))");

/// Calls `report` with the line number and the path of every include between quotes.
void forEachInclude(const std::string& text,
                    const std::function<void(int, const std::string&)>& report)
{
  static const std::regex include(R"re(^\s*#\s*include\s*"([^"]+)".*)re");
  std::istringstream lines(text);
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number)
  {
    std::smatch match;
    if (std::regex_match(line, match, include))
      report(number, match[1]);
  }
}

bool names(const std::string& text, const std::string& macro)
{
  return text.find(macro + " ") != std::string::npos ||
         text.find(macro + "\n") != std::string::npos;
}

} // namespace

Paths listedHeaders(const std::string& list)
{
  static const std::regex entry(R"(^\s*(\w+/[\w/]+\.h)\)?\s*$)");
  Paths headers;
  std::istringstream lines(list);
  std::string line;
  while (std::getline(lines, line))
  {
    std::smatch match;
    if (std::regex_match(line, match, entry))
      headers.insert(match[1]);
  }
  return headers;
}

Lines spellingViolations(const std::string& path, const std::string& text,
                         const Paths& publicHeaders)
{
  const bool isPublic = publicHeaders.count(path) != 0;
  Lines violations;
  forEachInclude(text,
                 [&](int number, const std::string& included)
                 {
                   std::smatch match;
                   if (!std::regex_match(included, match, ownHeader))
                     return;
                   const std::string header = match[2];
                   const std::string place = path + ":" + std::to_string(number) + ": ";
                   if (match[1].matched != isPublic)
                     violations.push_back(place + "write \"" + (isPublic ? "../" : "") + header +
                                          "\"");
                   if (isPublic && publicHeaders.count(header) == 0)
                     violations.push_back(place + header + " is no public header");
                 });
  return violations;
}

Paths withIncluded(Paths headers, const std::function<std::string(const std::string&)>& textOf)
{
  std::vector<std::string> unread(headers.begin(), headers.end());
  while (!unread.empty())
  {
    const std::string header = unread.back();
    unread.pop_back();
    forEachInclude(textOf(header),
                   [&](int, const std::string& included)
                   {
                     if (std::regex_match(included, ownHeader) && headers.insert(included).second)
                       unread.push_back(included);
                   });
  }
  return headers;
}

Lines exportViolations(const std::string& path, const std::string& text, const Paths& publicHeaders,
                       const Paths& internals)
{
  Lines violations;
  if (path.rfind("export/", 0) == 0)
    return violations;
  if (names(text, "TALMESHPLOT_EXPORT") && publicHeaders.count(path) == 0)
    violations.push_back(path + ": exports what is in no public header");
  if (names(text, "TALMESHPLOT_VIEWER_EXPORT") && internals.count(path) == 0)
    violations.push_back(path + ": exports for the viewer what it does not reach");
  return violations;
}

Lines viewerViolations(const Files& viewer, const Paths& publicHeaders, const Paths& internals)
{
  Lines violations;
  Paths unused = internals;
  for (const auto& [path, text] : viewer)
  {
    forEachInclude(text,
                   [&, &path = path](int number, const std::string& included)
                   {
                     if (!std::regex_match(included, ownHeader) || publicHeaders.count(included))
                       return;
                     unused.erase(included);
                     if (internals.count(included) == 0)
                       violations.push_back(path + ":" + std::to_string(number) + ": " + included +
                                            " is no public header");
                   });
  }
  for (const std::string& header : unused)
    violations.push_back(header + " is listed, but the viewer does not include it");
  return violations;
}

} // namespace Talmesh::architecture
