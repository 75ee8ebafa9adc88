#include "architecture/PublicRules.h"

#include <gtest/gtest.h>

using namespace Talmesh::architecture;
using Lines = std::vector<std::string>;

namespace
{
const Paths publicHeaders{"plot/Facade.h", "vtk/Item.h"};
const Paths internals{"plot/Columns.h"};
} // namespace

TEST(PublicRules, ReadTheHeadersOfAList)
{
  EXPECT_EQ(listedHeaders("# plot/No.h\nset(HEADERS\n  plot/A.h\n  widgets/designer/B.h)\n"),
            (Paths{"plot/A.h", "widgets/designer/B.h"}));
}

TEST(PublicRules, HavePublicHeadersIncludeEachOtherWhereverTheyLie)
{
  EXPECT_EQ(spellingViolations("plot/Facade.h", "#include \"../vtk/Item.h\"\n#include <vector>\n",
                               publicHeaders),
            Lines());
  EXPECT_EQ(spellingViolations("plot/Facade.h", "\n#include \"vtk/Item.h\"\n", publicHeaders),
            Lines{"plot/Facade.h:2: write \"../vtk/Item.h\""});
  EXPECT_EQ(spellingViolations("plot/Columns.h", "#include \"../vtk/Item.h\"\n", publicHeaders),
            Lines{"plot/Columns.h:1: write \"vtk/Item.h\""});
}

TEST(PublicRules, KeepPublicHeadersFromIncludingTheInside)
{
  EXPECT_EQ(spellingViolations("vtk/Item.h", "#include \"../vtk/Cache.h\"\n", publicHeaders),
            Lines{"vtk/Item.h:1: vtk/Cache.h is no public header"});
}

TEST(PublicRules, LetOnlyListedHeadersExport)
{
  const std::string open = "class TALMESHPLOT_EXPORT A;\n";
  const std::string half = "TALMESHPLOT_VIEWER_EXPORT int a();\n";
  EXPECT_EQ(exportViolations("plot/Facade.h", open, publicHeaders, internals), Lines());
  EXPECT_EQ(exportViolations("plot/Columns.h", half, publicHeaders, internals), Lines());
  EXPECT_EQ(exportViolations("plot/Columns.h", open, publicHeaders, internals),
            Lines{"plot/Columns.h: exports what is in no public header"});
  EXPECT_EQ(exportViolations("vtk/Cache.h", half, publicHeaders, internals),
            Lines{"vtk/Cache.h: exports for the viewer what it does not reach"});
}

TEST(PublicRules, FollowIncludesOfHeaders)
{
  const Files files{{"plot/A.h", "#include \"plot/B.h\"\n#include <vtkTable.h>\n"},
                    {"plot/B.h", "#include \"vtk/C.h\"\n#include \"plot/A.h\"\n"},
                    {"vtk/C.h", ""}};
  EXPECT_EQ(withIncluded({"plot/A.h"}, [&](const std::string& path) { return files.at(path); }),
            (Paths{"plot/A.h", "plot/B.h", "vtk/C.h"}));
}

TEST(PublicRules, LetTheViewerIncludeWhatIsPublicOrListed)
{
  const Files sound{{"app/A.cpp", "#include \"plot/Columns.h\"\n#include \"plot/Facade.h\"\n"
                                  "#include \"app/B.h\"\n"}};
  EXPECT_EQ(viewerViolations(sound, publicHeaders, internals), Lines());
  const Files nosy{{"app/A.cpp", "#include \"plot/Columns.h\"\n#include \"vtk/Cache.h\"\n"}};
  EXPECT_EQ(viewerViolations(nosy, publicHeaders, internals),
            Lines{"app/A.cpp:2: vtk/Cache.h is no public header"});
}

TEST(PublicRules, DropListedHeadersThatTheViewerNoLongerIncludes)
{
  EXPECT_EQ(
      viewerViolations({{"app/A.cpp", "#include \"vtk/Item.h\"\n"}}, publicHeaders, internals),
      Lines{"plot/Columns.h is listed, but the viewer does not include it"});
}
