#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
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

/// The texts of all documents, one behind the other.
std::string documents()
{
  const fs::path root(TALMESH_SOURCE_DIR);
  std::string text = textOf("README.md");
  for (const auto& entry : fs::directory_iterator(root / "docs"))
    if (entry.path().extension() == ".md")
      text += textOf(fs::relative(entry.path(), root).generic_string());
  return text;
}

std::set<std::string> wordsOf(const std::string& text)
{
  const std::regex word("[A-Za-z0-9_]+");
  std::set<std::string> words;
  for (std::sregex_iterator match(text.begin(), text.end(), word), end; match != end; ++match)
    words.insert(match->str());
  return words;
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
  const std::regex colour(R"(\b255, (?:50|0), 0\b|\b1\.0, 0\.2, 0\.0\b)");
  std::vector<std::string> places;
  for (const std::string& path : sourcesIn(layers()))
    if (std::regex_search(textOf(path), colour))
      places.push_back(path);
  EXPECT_EQ(places, std::vector<std::string>{"vtk/HighlightColor.h"});
}

TEST(SourceTree, DocumentsNameEveryHeaderOfTheViewer)
{
  const std::set<std::string> named = wordsOf(documents());
  std::string unnamed;
  for (const std::string& path : sourcesIn({"app"}))
    if (fs::path(path).extension() == ".h" && named.count(fs::path(path).stem().string()) == 0)
      unnamed += path + "\n";
  EXPECT_EQ(unnamed, "") << "name it in docs/viewer.md";
}

TEST(SourceTree, DocumentsNameFilesThatExist)
{
  const std::string text = documents();
  const std::regex file("`((?:export|external|stats|vtk|plot|widgets|app|cmake|tests|fuzz)/"
                        "[A-Za-z0-9_/-]+\\.(?:cpp|h|ui|cmake|txt|sh))`");
  // What adding-a-plot-style.md has the reader make.
  const std::set<std::string> imagined = {"plot/SpectrumChart.h",
                                          "tests/plot/SpectrumChartTest.cpp"};
  std::string missing;
  for (std::sregex_iterator match(text.begin(), text.end(), file), end; match != end; ++match)
    if (imagined.count((*match)[1]) == 0 &&
        !fs::exists(fs::path(TALMESH_SOURCE_DIR) / (*match)[1].str()))
      missing += (*match)[1].str() + "\n";
  EXPECT_EQ(missing, "");
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

TEST(SourceTree, KeepsTheFilesOfTheViewerShort)
{
  constexpr std::ptrdiff_t mostLines = 300;
  for (const std::string& path : sourcesIn({"app"}))
  {
    const std::string text = textOf(path);
    EXPECT_LE(std::count(text.begin(), text.end(), '\n'), mostLines) << path;
  }
}
