#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "architecture/IncludeRules.h"
#include "architecture/SourceTree.h"

namespace
{

using namespace Talmesh::architecture;
using Words = std::set<std::string>;
using Cells = std::vector<std::string>;

Words matchesOf(const std::regex& pattern, const std::string& text, int group = 0)
{
  Words words;
  for (std::sregex_iterator match(text.begin(), text.end(), pattern), end; match != end; ++match)
    words.insert((*match)[static_cast<std::size_t>(group)]);
  return words;
}

/// The rows of the table under a heading, without its head.
std::vector<Cells> tableUnder(const std::string& heading, const std::string& document)
{
  std::vector<Cells> rows;
  const std::string::size_type from = document.find("\n## " + heading + "\n");
  if (from == std::string::npos)
    return rows;
  std::istringstream lines(document.substr(from + 1, document.find("\n## ", from + 1) - from));
  for (std::string line; std::getline(lines, line);)
  {
    if (line.rfind("| ", 0) != 0)
      continue;
    Cells cells;
    std::istringstream parts(line.substr(2));
    for (std::string cell; std::getline(parts, cell, '|');)
      cells.push_back(cell);
    rows.push_back(cells);
  }
  if (!rows.empty())
    rows.erase(rows.begin());
  return rows;
}

/// The files that a cell has the reader touch: those it names, and those to be made.
Words touchedFiles(const std::string& cell)
{
  static const std::regex named(R"(`(\w+/[\w/]+)\.(\w+)`( and `\.cpp`)?)");
  static const std::regex made(R"(header and (a )?source)");
  Words files;
  for (std::sregex_iterator match(cell.begin(), cell.end(), named), end; match != end; ++match)
  {
    files.insert((*match)[1].str() + "." + (*match)[2].str());
    if ((*match)[3].matched)
      files.insert((*match)[1].str() + ".cpp");
  }
  if (std::regex_search(cell, made))
    files.insert({"new header", "new source"});
  return files;
}

const std::vector<Cells>& changes()
{
  static const std::vector<Cells> rows =
      tableUnder("Eleven changes and what they touch", textOf("docs/architecture.md"));
  return rows;
}

} // namespace

TEST(TouchedFiles, AreThoseThatACellNamesAndThoseToBeMade)
{
  EXPECT_EQ(touchedFiles("a header and a source in `app/import/`, `app/session/Session.h` and "
                         "`.cpp`; `app/session/Session.cpp`, `cmake/A.cmake`, [guide](a.md)"),
            (Words{"app/session/Session.h", "app/session/Session.cpp", "cmake/A.cmake",
                   "new header", "new source"}));
}

TEST(Guide, TellsOfElevenChangesThatTouchAtMostFiveFilesEach)
{
  EXPECT_EQ(changes().size(), 11U);
  for (const Cells& row : changes())
  {
    ASSERT_GE(row.size(), 2U) << row[0];
    EXPECT_GE(touchedFiles(row[1]).size(), 1U) << row[0];
    EXPECT_LE(touchedFiles(row[1]).size(), 5U) << row[0];
  }
}

TEST(Guide, NamesOnlyFilesThatExistForTheElevenChanges)
{
  for (const Cells& row : changes())
    for (const std::string& file : touchedFiles(row[1]))
      EXPECT_TRUE(file.rfind("new ", 0) == 0 ||
                  std::filesystem::exists(std::filesystem::path(TALMESH_SOURCE_DIR) / file))
          << row[0] << file;
}

TEST(Guide, SaysWhichRoomsMayUseWhich)
{
  static const std::regex word("`([a-z]+)`");
  std::map<std::string, Words> told;
  for (const Cells& row : tableUnder("The viewer's rooms", textOf("docs/architecture.md")))
  {
    ASSERT_GE(row.size(), 3U) << row[0];
    const std::string room = row[0].substr(5, row[0].rfind('/') - 5);
    told[room] = matchesOf(word, row[2], 1);
    told[room].insert(room);
  }
  EXPECT_EQ(told, reachableRooms());
}

TEST(Guide, HasAChapterForEveryRoom)
{
  const std::regex heading("\n## [^\n]*");
  std::string headings;
  for (const std::string& found : matchesOf(heading, textOf("docs/viewer.md")))
    headings += found;
  for (const auto& room : reachableRooms())
    EXPECT_NE(headings.find("`app/" + room.first + "/`"), std::string::npos) << room.first;
}

TEST(Guide, NamesEveryHeaderOfTheViewer)
{
  const std::set<std::string> named = matchesOf(std::regex("\\w+"), documents());
  std::string unnamed;
  for (const std::string& path : sourcesIn({"app"}))
    if (std::filesystem::path(path).extension() == ".h" &&
        named.count(std::filesystem::path(path).stem().string()) == 0)
      unnamed += path + "\n";
  EXPECT_EQ(unnamed, "") << "name it in docs/viewer.md";
}

TEST(Guide, NamesFilesThatExist)
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
        !std::filesystem::exists(std::filesystem::path(TALMESH_SOURCE_DIR) / (*match)[1].str()))
      missing += (*match)[1].str() + "\n";
  EXPECT_EQ(missing, "");
}
