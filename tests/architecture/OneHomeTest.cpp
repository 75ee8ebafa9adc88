#include <gtest/gtest.h>

#include <regex>
#include <string>
#include <vector>

#include "architecture/SourceTree.h"

/// What is decided in one place stays there.
namespace
{

using namespace Talmesh::architecture;
using Paths = std::vector<std::string>;

Paths filesWith(const std::string& pattern, const std::vector<std::string>& folders = layers())
{
  const std::regex wanted(pattern);
  Paths found;
  for (const std::string& path : sourcesIn(folders))
    if (std::regex_search(codeOf(path), wanted))
      found.push_back(path);
  return found;
}

/// The names of all plot styles, as alternatives of a pattern.
std::string stylesAsPattern()
{
  const std::string header = codeOf("external/PlotStyles.h");
  const std::string list = header.substr(header.find('{'));
  const std::regex name("\\b[a-z]\\w+");
  std::string names;
  for (std::sregex_iterator match(list.begin(), list.end(), name), end; match != end; ++match)
    names += (names.empty() ? "" : "|") + match->str();
  return "(" + names + ")\\b";
}

} // namespace

TEST(OneHome, HasTheHighlightColour)
{
  EXPECT_EQ(filesWith(R"(\b255, (?:50|0), 0\b|\b1\.0, 0\.2, 0\.0\b)"),
            Paths{"vtk/HighlightColor.h"});
}

TEST(OneHome, HasTheNamesOfTheColumnsThatOrderRuns)
{
  EXPECT_EQ(filesWith(R"re("(Run Index|Time \[s\])")re"), Paths{"external/ColumnNames.h"});
  EXPECT_EQ(filesWith("\"Parameter: \""), Paths()) << "told by selectionPairToString()";
}

TEST(OneHome, HasTheCasesOfAPlotStyle)
{
  const std::string styles = stylesAsPattern();
  EXPECT_NE(styles.find("|parallelCoordinates"), std::string::npos) << styles;
  EXPECT_EQ(filesWith("[=!]= *" + styles + "|case " + styles),
            Paths{"app/comparison/ComparisonSettings.cpp"})
      << "whose two pages are styles; others ask plot/StyleTable.h or app/styles/ViewerStyles.h";
}

TEST(OneHome, HasWhatBecomesOfSomethingThatMayFail)
{
  EXPECT_EQ(filesWith(R"(struct \w+\s*\{[^}]*\b(std::string|QString) error;)", {"app"}), Paths())
      << "return a Result<T>, see app/import/Result.h";
}

TEST(OneHome, HasTheWidgetsOfTheViewerThatOthersReach)
{
  EXPECT_EQ(filesWith(R"(findChild(ren)?\s*(<[^>]*>)?\s*\(\s*[^)\s])", {"app"}), Paths())
      << "docks and their parts are members, not found by name";
}

TEST(OneHome, HasWhatDiffersBetweenVersionsOfVtk)
{
  EXPECT_EQ(filesWith(R"(\bVTK_\w*VERSION)"), Paths{"vtk/VtkCompat.h"});
}

TEST(OneHome, HidesTheStateOfAContainerFromClients)
{
  EXPECT_EQ(codeOf("plot/PlotContainer.h").find("state("), std::string::npos)
      << "the library's own code has stateOf(), see plot/ContainerAccess.h";
}
