#include "architecture/IncludeRules.h"

#include <filesystem>
#include <regex>
#include <sstream>

namespace Talmesh::architecture
{

const Reach& reachableRooms()
{
  static const Reach rooms{
      {"import", {"import"}},
      {"formats", {"formats", "import"}},
      {"styles", {"styles"}},
      {"panels", {"panels"}},
      {"memory", {"memory", "styles", "import"}},
      {"comparison", {"comparison", "styles", "panels", "import"}},
      {"runs", {"runs", "import"}},
      {"session", {"session", "formats", "styles", "import"}},
      {"tasks", {"tasks", "import"}},
      {"document", {"document", "session", "runs", "comparison", "memory", "styles", "import"}},
      {"export", {"export", "tasks", "memory", "import"}},
      {"examples", {"examples", "export", "document", "session", "comparison", "styles", "import"}},
      {"window",
       {"window", "examples", "export", "document", "tasks", "session", "formats", "runs",
        "comparison", "styles", "panels", "import"}},
  };
  return rooms;
}

namespace
{

const Reach& reachableLayers()
{
  static const Reach layers{
      {"export", {"export"}},
      {"external", {"external", "export"}},
      {"stats", {"stats", "export"}},
      {"vtk", {"vtk", "external", "stats", "export"}},
      {"plot", {"plot", "vtk", "external", "stats", "export"}},
      {"widgets", {"widgets", "plot", "vtk", "external", "stats", "export"}},
      {"app", {"app", "widgets", "plot", "vtk", "external", "stats"}},
  };
  return layers;
}

std::string firstFolder(const std::string& path)
{
  const auto slash = path.find('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

/// Empty outside the viewer and for what lies in no room.
std::string roomOf(const std::string& path)
{
  return firstFolder(path) == "app" ? firstFolder(path.substr(path.find('/') + 1)) : std::string();
}

bool isGeneratedByQt(const std::string& included)
{
  static const std::regex generated(R"((moc_|ui_|qrc_)\w+\.(cpp|h)|\w+\.moc)");
  return std::regex_match(included, generated);
}

bool isToolkitHeader(const std::string& included)
{
  static const std::regex toolkit(R"(Qt\w*/.*|Q[A-Z]\w*|QVTK\w+\.h|vtk\w+\.h|q[a-z]\w*\.h)");
  return std::regex_match(included, toolkit);
}

/// Why a file of a room must not include `included`, or nothing.
std::string objectionOfRoom(const std::string& room, const std::string& included)
{
  const std::string other = roomOf(included);
  const auto reach = reachableRooms().find(room);
  if (room.empty() || firstFolder(included) != "app")
    return {};
  if (reach == reachableRooms().end())
    return "the viewer has no room " + room;
  if (reach->second.count(other) != 0)
    return {};
  return room + " must not include " + (other.empty() ? "app" : other) + " (" + included + ")";
}

/// Why `layer` must not include `included`, or nothing.
std::string objection(const std::string& layer, std::string included, bool quoted)
{
  // How public headers write it; architecture/PublicRules.h says which those are.
  if (quoted && included.rfind("../", 0) == 0 &&
      reachableLayers().count(firstFolder(included.substr(3))))
    included.erase(0, 3);
  const std::string folder = firstFolder(included);
  if (reachableLayers().count(folder) != 0)
  {
    return reachableLayers().at(layer).count(folder) != 0
               ? std::string()
               : layer + " must not include " + folder + " (" + included + ")";
  }
  if (quoted && !isGeneratedByQt(included))
    return "include \"" + included + "\" by its layer, as in \"" + layer + "/...\"";
  if (layer == "stats" && isToolkitHeader(included))
    return "stats must not include Qt or VTK (" + included + ")";
  return {};
}

} // namespace

std::vector<std::string> includeViolations(const std::string& path, const std::string& text)
{
  std::vector<std::string> violations;
  const std::string layer = firstFolder(path);
  if (reachableLayers().count(layer) == 0)
    return violations;

  static const std::regex include(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"].*)");
  std::istringstream lines(text);
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number)
  {
    std::smatch match;
    if (!std::regex_match(line, match, include))
      continue;
    std::string reason = objection(layer, match[2], match[1] == "\"");
    if (reason.empty())
      reason = objectionOfRoom(roomOf(path), match[2]);
    if (!reason.empty())
      violations.push_back(path + ":" + std::to_string(number) + ": " + reason);
  }
  return violations;
}

std::vector<std::string> guardViolations(const std::string& path, const std::string& text)
{
  const std::filesystem::path file(path);
  if (file.extension() != ".h")
    return {};
  const std::string guard = file.stem().string() + "_h";
  std::istringstream words(text);
  std::string first, second, third, fourth;
  words >> first >> second >> third >> fourth;
  if (first == "#ifndef" && second == guard && third == "#define" && fourth == guard)
    return {};
  return {path + ":1: the file must start with the include guard " + guard};
}

std::vector<std::string> duplicateNames(const std::vector<std::string>& paths)
{
  std::map<std::string, std::set<std::string>> byName;
  for (const std::string& path : paths)
    byName[std::filesystem::path(path).filename().string()].insert(path);

  std::vector<std::string> duplicates;
  for (const auto& [name, places] : byName)
  {
    if (places.size() < 2)
      continue;
    std::string line = name + ":";
    for (const std::string& place : places)
      line += " " + place;
    duplicates.push_back(line);
  }
  return duplicates;
}

} // namespace Talmesh::architecture
