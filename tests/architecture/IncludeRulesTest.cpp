#include "architecture/IncludeRules.h"

#include <gtest/gtest.h>

using Talmesh::architecture::duplicateNames;
using Talmesh::architecture::guardViolations;
using Talmesh::architecture::includeViolations;
using Talmesh::architecture::reachableRooms;
using Lines = std::vector<std::string>;

TEST(IncludeRules, AllowEveryIncludeAlongTheArrows)
{
  const std::string everyLayerBelow = "#include \"external/A.h\"\n#include \"stats/B.h\"\n"
                                      "#include \"vtk/C.h\"\n#include \"plot/D.h\"\n"
                                      "#include \"widgets/E.h\"\n#include \"app/F.h\"\n"
                                      "#include <vtkTable.h>\n#include <QWidget>\n";
  EXPECT_EQ(includeViolations("app/viewer.cpp", everyLayerBelow), Lines());
}

TEST(IncludeRules, NameTheLineOfAnIncludeAgainstTheArrows)
{
  EXPECT_EQ(includeViolations("vtk/vtkA.cpp", "#include \"vtk/vtkA.h\"\n\n#include \"plot/B.h\"\n"),
            Lines{"vtk/vtkA.cpp:3: vtk must not include plot (plot/B.h)"});
  EXPECT_EQ(includeViolations("plot/A.h", "  #  include <widgets/B.h> // why not\n"),
            Lines{"plot/A.h:1: plot must not include widgets (widgets/B.h)"});
  EXPECT_EQ(includeViolations("widgets/A.cpp", "#include \"app/B.h\""),
            Lines{"widgets/A.cpp:1: widgets must not include app (app/B.h)"});
  EXPECT_EQ(includeViolations("vtk/A.h", "#include \"../stats/B.h\"\n#include \"../plot/C.h\""),
            Lines{"vtk/A.h:2: vtk must not include plot (plot/C.h)"});
}

TEST(IncludeRules, LetTheViewersRoomsSeeEachOtherOneWay)
{
  EXPECT_EQ(includeViolations("app/window/A.cpp", "#include \"app/import/B.h\"\n"), Lines());
  EXPECT_EQ(includeViolations("app/import/A.cpp", "#include \"app/window/B.h\"\n"),
            Lines{"app/import/A.cpp:1: import must not include window (app/window/B.h)"});
  EXPECT_EQ(includeViolations("app/session/A.h", "#include \"app/CommandLine.h\"\n"),
            Lines{"app/session/A.h:1: session must not include app (app/CommandLine.h)"});
  EXPECT_EQ(includeViolations("app/main.cpp", "#include \"app/window/B.h\"\n"), Lines());
  EXPECT_EQ(includeViolations("app/attic/A.h", "#include \"app/import/B.h\"\n"),
            Lines{"app/attic/A.h:1: the viewer has no room attic"});
}

TEST(IncludeRules, HaveNoCircleOfRooms)
{
  for (const auto& [room, reached] : reachableRooms())
    for (const std::string& other : reached)
      EXPECT_TRUE(other == room || reachableRooms().at(other).count(room) == 0)
          << room << ' ' << other;
}

TEST(IncludeRules, KeepTheTwoLowestLayersApart)
{
  EXPECT_EQ(includeViolations("stats/A.h", "#include \"external/B.h\"\n"),
            Lines{"stats/A.h:1: stats must not include external (external/B.h)"});
  EXPECT_EQ(includeViolations("external/A.h", "#include \"stats/B.h\"\n"),
            Lines{"external/A.h:1: external must not include stats (stats/B.h)"});
}

TEST(IncludeRules, KeepQtAndVtkOutOfTheStatistics)
{
  EXPECT_EQ(includeViolations("stats/A.cpp",
                              "#include <vtkTable.h>\n#include <QString>\n"
                              "#include <QtCore/QObject>\n#include <QVTKOpenGLNativeWidget.h>\n"
                              "#include <vector>\n#include <Eigen/Core>\n#include <boost/any.hpp>\n"
                              "#include <queue>\n"),
            (Lines{"stats/A.cpp:1: stats must not include Qt or VTK (vtkTable.h)",
                   "stats/A.cpp:2: stats must not include Qt or VTK (QString)",
                   "stats/A.cpp:3: stats must not include Qt or VTK (QtCore/QObject)",
                   "stats/A.cpp:4: stats must not include Qt or VTK (QVTKOpenGLNativeWidget.h)"}));
  EXPECT_EQ(includeViolations("external/A.cpp", "#include <vtkTable.h>\n#include <QString>\n"),
            Lines());
}

TEST(IncludeRules, AskForTheLayerInEveryIncludeOfOurOwn)
{
  EXPECT_EQ(includeViolations("plot/A.cpp", "#include \"A.h\"\n#include \"../B.h\"\n"),
            (Lines{"plot/A.cpp:1: include \"A.h\" by its layer, as in \"plot/...\"",
                   "plot/A.cpp:2: include \"../B.h\" by its layer, as in \"plot/...\""}));
  EXPECT_EQ(includeViolations("widgets/A.cpp", "#include \"ui_A.h\"\n#include \"A.moc\"\n"),
            Lines());
}

TEST(IncludeRules, LeaveFilesOutsideTheLayersAlone)
{
  EXPECT_EQ(includeViolations("tests/stats/ATest.cpp", "#include \"app/B.h\"\n"), Lines());
  EXPECT_EQ(includeViolations("standalone.cpp", "#include \"app/B.h\"\n"), Lines());
}

TEST(IncludeRules, ReadOnlyTheDirectiveItself)
{
  EXPECT_EQ(
      includeViolations("vtk/A.cpp", "// #include \"plot/B.h\"\nauto s = \"#include plot/\";\n"),
      Lines());
}

TEST(IncludeRules, NameGuardsAfterTheirFile)
{
  EXPECT_EQ(guardViolations("plot/A.h", "#ifndef A_h\n#define A_h\n#endif\n"), Lines());
  EXPECT_EQ(guardViolations("plot/A.cpp", "int a;\n"), Lines());
  EXPECT_EQ(guardViolations("plot/A.h", "#pragma once\n"),
            Lines{"plot/A.h:1: the file must start with the include guard A_h"});
  EXPECT_EQ(guardViolations("plot/A.h", "#ifndef B_h\n#define B_h\n#endif\n"),
            Lines{"plot/A.h:1: the file must start with the include guard A_h"});
  EXPECT_EQ(guardViolations("plot/A.h", "#ifndef A_h\n#define AA_h\n#endif\n"),
            Lines{"plot/A.h:1: the file must start with the include guard A_h"});
}

TEST(IncludeRules, ReportFileNamesThatOccurTwice)
{
  EXPECT_EQ(duplicateNames({"plot/A.h", "plot/A.cpp", "vtk/B.h"}), Lines());
  EXPECT_EQ(duplicateNames({"vtk/A.h", "plot/A.h", "app/B.cpp"}), Lines{"A.h: plot/A.h vtk/A.h"});
}
