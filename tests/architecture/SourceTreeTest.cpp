#include "architecture/SourceTree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include "architecture/IncludeRules.h"
#include "architecture/PublicRules.h"

namespace
{

using namespace Talmesh::architecture;

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

Paths publicHeaders()
{
  return listedHeaders(textOf("cmake/TalmeshPublicHeaders.cmake"));
}

Paths viewersInternals()
{
  return listedHeaders(textOf("app/library-internals.txt"));
}

} // namespace

TEST(SourceTree, HasSourcesInEveryLayer)
{
  for (const std::string& layer : layers())
    EXPECT_FALSE(sourcesIn({layer}).empty()) << layer;
}

TEST(SourceTree, IncludesRunAlongTheArrows)
{
  EXPECT_EQ(violationsIn(sourcesIn(layers()), includeViolations), "");
}

TEST(SourceTree, PublicHeadersIncludeOnlyEachOther)
{
  const auto headers = publicHeaders();
  ASSERT_FALSE(headers.empty());
  EXPECT_EQ(violationsIn(sourcesIn(layers()), [&](const std::string& path, const std::string& text)
                         { return spellingViolations(path, text, headers); }),
            "");
}

TEST(SourceTree, ExportsWhatIsPublicOrListedForTheViewer)
{
  const auto headers = publicHeaders();
  const auto internals = withIncluded(viewersInternals(), textOf);
  EXPECT_EQ(violationsIn(sourcesIn(layers()), [&](const std::string& path, const std::string& text)
                         { return exportViolations(path, text, headers, internals); }),
            "");
}

TEST(SourceTree, ViewerIncludesWhatIsPublicOrListed)
{
  Files viewer;
  for (const std::string& path : sourcesIn({"app"}))
    viewer[path] = textOf(path);
  std::string report;
  for (const std::string& violation : viewerViolations(viewer, publicHeaders(), viewersInternals()))
    report += violation + "\n";
  EXPECT_EQ(report, "");
}

TEST(SourceTree, GuardsAreNamedAfterTheirFile)
{
  EXPECT_EQ(violationsIn(sourcesIn({"export", "external", "stats", "vtk", "plot", "widgets", "app",
                                    "tests"}),
                         guardViolations),
            "");
}

TEST(SourceTree, FileNamesAreUnique)
{
  std::vector<std::string> everywhere = layers();
  everywhere.insert(everywhere.end(), {"tests", "examples", "bench"});
  std::string report;
  for (const std::string& duplicate : duplicateNames(sourcesIn(everywhere)))
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
