#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <vector>

#include "architecture/IncludeRules.h"
#include "architecture/PublicRules.h"

namespace
{

namespace fs = std::filesystem;

const std::vector<std::string>& layers()
{
  static const std::vector<std::string> names{"export", "external", "stats", "vtk",
                                              "plot",   "widgets",  "app"};
  return names;
}

bool isSource(const fs::path& file)
{
  return file.extension() == ".h" || file.extension() == ".cpp" || file.extension() == ".ui";
}

std::vector<std::string> sourcesIn(const std::vector<std::string>& folders)
{
  const fs::path root(TALMESH_SOURCE_DIR);
  std::vector<std::string> paths;
  for (const std::string& folder : folders)
  {
    if (!fs::is_directory(root / folder))
      continue;
    for (const auto& entry : fs::recursive_directory_iterator(root / folder))
    {
      if (entry.is_regular_file() && isSource(entry.path()))
        paths.push_back(fs::relative(entry.path(), root).generic_string());
    }
  }
  std::sort(paths.begin(), paths.end());
  return paths;
}

std::string textOf(const std::string& path)
{
  std::ifstream file(fs::path(TALMESH_SOURCE_DIR) / path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

template <typename Rule>
std::string violationsIn(const std::vector<std::string>& paths, Rule rule)
{
  std::string report;
  for (const std::string& path : paths)
  {
    for (const std::string& violation : rule(path, textOf(path)))
      report += violation + "\n";
  }
  return report;
}

Talmesh::architecture::Paths publicHeaders()
{
  return Talmesh::architecture::listedHeaders(textOf("cmake/TalmeshPublicHeaders.cmake"));
}

Talmesh::architecture::Paths viewersInternals()
{
  return Talmesh::architecture::listedHeaders(textOf("app/library-internals.txt"));
}

} // namespace

TEST(SourceTree, HasSourcesInEveryLayer)
{
  for (const std::string& layer : layers())
    EXPECT_FALSE(sourcesIn({layer}).empty()) << layer;
}

TEST(SourceTree, IncludesRunAlongTheArrows)
{
  EXPECT_EQ(violationsIn(sourcesIn(layers()), Talmesh::architecture::includeViolations), "");
}

TEST(SourceTree, PublicHeadersIncludeOnlyEachOther)
{
  const auto headers = publicHeaders();
  ASSERT_FALSE(headers.empty());
  EXPECT_EQ(
      violationsIn(sourcesIn(layers()), [&](const std::string& path, const std::string& text)
                   { return Talmesh::architecture::spellingViolations(path, text, headers); }),
      "");
}

TEST(SourceTree, ExportsWhatIsPublicOrListedForTheViewer)
{
  const auto headers = publicHeaders();
  const auto internals = Talmesh::architecture::withIncluded(viewersInternals(), textOf);
  EXPECT_EQ(violationsIn(sourcesIn(layers()),
                         [&](const std::string& path, const std::string& text) {
                           return Talmesh::architecture::exportViolations(path, text, headers,
                                                                          internals);
                         }),
            "");
}

TEST(SourceTree, ViewerIncludesWhatIsPublicOrListed)
{
  Talmesh::architecture::Files viewer;
  for (const std::string& path : sourcesIn({"app"}))
    viewer[path] = textOf(path);
  std::string report;
  for (const std::string& violation :
       Talmesh::architecture::viewerViolations(viewer, publicHeaders(), viewersInternals()))
    report += violation + "\n";
  EXPECT_EQ(report, "");
}

TEST(SourceTree, HighlightColourIsWrittenInOnePlace)
{
  const std::regex colour(R"(255, 50, 0\b|\b1\.0, 0\.2, 0\.0\b)");
  std::vector<std::string> places;
  for (const std::string& path : sourcesIn(layers()))
    if (std::regex_search(textOf(path), colour))
      places.push_back(path);
  EXPECT_EQ(places, std::vector<std::string>{"vtk/HighlightColor.h"});
}

TEST(SourceTree, GuardsAreNamedAfterTheirFile)
{
  EXPECT_EQ(violationsIn(sourcesIn({"export", "external", "stats", "vtk", "plot", "widgets", "app",
                                    "tests"}),
                         Talmesh::architecture::guardViolations),
            "");
}

TEST(SourceTree, FileNamesAreUnique)
{
  std::vector<std::string> everywhere = layers();
  everywhere.insert(everywhere.end(), {"tests", "examples", "bench"});
  std::string report;
  for (const std::string& duplicate : Talmesh::architecture::duplicateNames(sourcesIn(everywhere)))
    report += duplicate + "\n";
  EXPECT_EQ(report, "");
}
