#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

#include "architecture/PublicRules.h"
#include "exports/ExportedNames.h"

using namespace Talmesh::exports;
using Talmesh::architecture::listedHeaders;
using Talmesh::architecture::Paths;

namespace
{

namespace fs = std::filesystem;

std::string textOf(const std::string& path)
{
  std::ifstream file(fs::path(TALMESH_SOURCE_DIR) / path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string outputOf(const std::string& command)
{
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), &pclose);
  std::string output;
  std::array<char, 4096> part{};
  while (pipe && std::fgets(part.data(), part.size(), pipe.get()))
    output += part.data();
  return output;
}

void addNames(Names& names, const Paths& headers, const std::string& macro)
{
  for (const std::string& header : headers)
    names.merge(exportedNames(textOf(header), macro));
}

/// Classes bear the names of their files.
Names ownNames()
{
  Names names{"Talmesh"};
  for (const char* layer : {"external", "stats", "vtk", "plot", "widgets"})
    for (const auto& entry : fs::directory_iterator(fs::path(TALMESH_SOURCE_DIR) / layer))
      names.insert(entry.path().stem().string());
  return names;
}

std::string listing()
{
  return outputOf(TALMESH_NM " -D --defined-only -C '" TALMESH_LIBRARY "'");
}

} // namespace

TEST(LibrarySymbols, AreOfPublicClassesAndOfWhatTheViewerCalls)
{
  Names shown;
  addNames(shown, listedHeaders(textOf("cmake/TalmeshPublicHeaders.cmake")), "TALMESHPLOT_EXPORT");
  ASSERT_EQ(shown.count("PlotContainer"), 1U);
  addNames(shown,
           Talmesh::architecture::withIncluded(listedHeaders(textOf("app/library-internals.txt")),
                                               textOf),
           "TALMESHPLOT_VIEWER_EXPORT");
  std::string report;
  for (const std::string& symbol : unexpectedSymbols(listing(), shown, ownNames()))
    report += symbol + "\n";
  EXPECT_EQ(report, "");
}

TEST(LibrarySymbols, ShowEveryPublicClassAndFunction)
{
  Names shown;
  addNames(shown, listedHeaders(textOf("cmake/TalmeshPublicHeaders.cmake")), "TALMESHPLOT_EXPORT");
  // Whoever uses the generator has the inline variable, which the library does not.
  shown.erase("Talmesh::MersenneTwister");
  const std::string symbols = listing();
  for (const std::string& name : shown)
    EXPECT_NE(symbols.find(name), std::string::npos) << name;
}
