#ifndef SourceTree_h
#define SourceTree_h

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <vector>

/// The files of the tree that is tested. Paths are relative to its root, with forward slashes.
namespace Talmesh::architecture
{

inline const std::vector<std::string>& layers()
{
  static const std::vector<std::string> names{"export", "external", "stats", "vtk",
                                              "plot",   "widgets",  "app"};
  return names;
}

inline bool isSource(const std::filesystem::path& file)
{
  return file.extension() == ".h" || file.extension() == ".cpp" || file.extension() == ".ui";
}

inline std::vector<std::string> sourcesIn(const std::vector<std::string>& folders)
{
  const std::filesystem::path root(TALMESH_SOURCE_DIR);
  std::vector<std::string> paths;
  for (const std::string& folder : folders)
  {
    if (!std::filesystem::is_directory(root / folder))
      continue;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root / folder))
    {
      if (entry.is_regular_file() && isSource(entry.path()))
        paths.push_back(std::filesystem::relative(entry.path(), root).generic_string());
    }
  }
  std::sort(paths.begin(), paths.end());
  return paths;
}

inline std::string textOf(const std::string& path)
{
  std::ifstream file(std::filesystem::path(TALMESH_SOURCE_DIR) / path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// A source without its comments.
inline std::string codeOf(const std::string& path)
{
  static const std::regex comment(R"(//[^\n]*)");
  return std::regex_replace(textOf(path), comment, "");
}

/// The texts of all documents, one behind the other.
inline std::string documents()
{
  const std::filesystem::path root(TALMESH_SOURCE_DIR);
  std::string text = textOf("README.md");
  for (const auto& entry : std::filesystem::directory_iterator(root / "docs"))
    if (entry.path().extension() == ".md")
      text += textOf(std::filesystem::relative(entry.path(), root).generic_string());
  return text;
}

} // namespace Talmesh::architecture

#endif
