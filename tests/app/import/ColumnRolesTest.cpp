#include "app/import/ColumnRoles.h"

#include "external/ColumnNames.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace Talmesh::app;

namespace
{

void expectHeader(const std::string& text, Talmesh::DataType kind, const std::string& name,
                  bool typed)
{
  const ColumnHeader header = readHeader(text);
  EXPECT_EQ(header.kind, kind) << text;
  EXPECT_EQ(header.name, name) << text;
  EXPECT_EQ(header.typed, typed) << text;
}

} // namespace

TEST(ColumnRoles, TakesTypedHeadersAsWritten)
{
  expectHeader("Complex: X", Talmesh::Complex, "X", true);
  expectHeader("Molecule: TetR", Talmesh::Molecule, "TetR", true);
  expectHeader("Complex With Molecule: A: B", Talmesh::ComplexWithMolecule, "A: B", true);
  expectHeader("Pattern: P", Talmesh::Pattern, "P", true);
  expectHeader(": Time [s]", Talmesh::TimeOrValue, "Time [s]", true);
  expectHeader("Parameter: k1", Talmesh::Parameter, "k1", true);
  expectHeader("Undefined Type: u", Talmesh::UndefinedType, "u", true);
}

TEST(ColumnRoles, TakesEveryOtherHeaderAsPlain)
{
  expectHeader("k1", Talmesh::UndefinedType, "k1", false);
  expectHeader("  k1 ", Talmesh::UndefinedType, "k1", false);
  expectHeader("Parameter:k1", Talmesh::UndefinedType, "Parameter:k1", false);
  expectHeader("parameter: k1", Talmesh::UndefinedType, "parameter: k1", false);
  expectHeader("Parameter: ", Talmesh::UndefinedType, "Parameter:", false);
}

TEST(ColumnRoles, KnowsTheNamesOfTime)
{
  for (const char* name : {"time",
                           "Time",
                           "TIME",
                           "t",
                           "Time [s]",
                           "time (min)",
                           "t [h]",
                           "time_s",
                           "Time/s",
                           "time.ms",
                           "time s",
                           "timepoint",
                           "Time Point",
                           "t/min",
                           "Time / s",
                           "t / h",
                           "Time, s",
                           "t,min",
                           "simulation_time",
                           "Simulation Time [s]",
                           "sim time",
                           "T [s]",
                           "T (h)",
                           "Zeit",
                           "Zeit [s]",
                           "Zeit / s",
                           "Zeitpunkt",
                           "temps [s]",
                           "tiempo",
                           "Time\u00A0[s]"})
    EXPECT_TRUE(isTimeName(name)) << name;
  for (const char* name :
       {"", "T", "T [K]", "timer", "temperature", "half-time", "x", "tetR", "time constant", "[s]",
        "s", "T [m2]", "T_m", "T / s", "T s", "x / s", "Zeitkonstante", "simulation"})
    EXPECT_FALSE(isTimeName(name)) << name;
}

TEST(ColumnRoles, KnowsTheNamesOfRuns)
{
  for (const char* name :
       {"run", "Run", "run_id", "RunID", "Run Index", "run-no", "trajectory", "trajectory_id",
        "replicate", "rep", "sim", "Simulation ID", "subject", "Lauf", "Replikat Nr"})
    EXPECT_TRUE(isRunName(name)) << name;
  for (const char* name : {"", "id", "index", "runoff", "repressor", "running", "simX", "time"})
    EXPECT_FALSE(isRunName(name)) << name;
}

TEST(ColumnRoles, FindsTimeAndRunAmongPlainHeaders)
{
  const ColumnRoles roles = assignRoles({"k", "t", "time", "run", "replicate"});
  EXPECT_EQ(roles.timeColumn, 1);
  EXPECT_EQ(roles.runColumn, 3);
  EXPECT_FALSE(roles.anyTyped);
  EXPECT_TRUE(roles.describeRuns());
}

TEST(ColumnRoles, PrefersTypedTimeAndRun)
{
  const ColumnRoles roles = assignRoles({"time", "run", ": Run Index", ": Time [s]"});
  EXPECT_EQ(roles.timeColumn, 3);
  EXPECT_EQ(roles.runColumn, 2);
}

TEST(ColumnRoles, PrefersANameOfTimeAmongTypedColumnsOfItsKind)
{
  EXPECT_EQ(assignRoles({": Value", ": Time [s]"}).timeColumn, 1);
  EXPECT_EQ(assignRoles({": Period", ": Lap Time", ": t"}).timeColumn, 2);
  EXPECT_EQ(assignRoles({": Period", ": Lap Time"}).timeColumn, 1);
  EXPECT_EQ(assignRoles({": t", ": Time [s]"}).timeColumn, 1);
  EXPECT_EQ(assignRoles({": Value", "time"}).timeColumn, 0);
}

TEST(ColumnRoles, ListsAllColumnsThatMayNameTheRuns)
{
  EXPECT_EQ(assignRoles({"Rep", "run", "x", ": Run Index"}).runCandidates,
            (std::vector<int>{3, 0, 1}));
}

TEST(ColumnRoles, DropsTheMarkOfACommentBeforeTheFirstHeader)
{
  EXPECT_EQ(assignRoles({"# time", "# X"}).headers[0].name, "time");
  EXPECT_EQ(assignRoles({"# time", "# X"}).headers[1].name, "# X");
  EXPECT_EQ(assignRoles({"#time", "X"}).timeColumn, 0);
  EXPECT_EQ(assignRoles({"# cells", "X"}).headers[0].name, "cells");
  EXPECT_EQ(assignRoles({"#cells", "X"}).headers[0].name, "#cells");
  EXPECT_EQ(assignRoles({"#", "X"}).headers[0].name, "#");
}

TEST(ColumnRoles, GivesTimeANameThatThePlotsKnow)
{
  EXPECT_EQ(plottedTimeName("time"), "Time");
  EXPECT_EQ(plottedTimeName("TIME"), "Time");
  EXPECT_EQ(plottedTimeName("t [s]"), "Time [s]");
  EXPECT_EQ(plottedTimeName("T (h)"), "Time (h)");
  EXPECT_EQ(plottedTimeName("time_s"), "Time_s");
  EXPECT_EQ(plottedTimeName("timepoint"), "Time (timepoint)");
  EXPECT_EQ(plottedTimeName("Zeit [s]"), "Time (Zeit [s])");
  EXPECT_EQ(plottedTimeName("Sim Time"), "Sim Time");
  for (const char* name : {"time", "t [s]", "T (h)", "time_s", "timepoint", "Zeit [s]", "sim time"})
  {
    EXPECT_TRUE(Talmesh::labelsTime(plottedTimeName(name))) << name;
    EXPECT_TRUE(isTimeName(plottedTimeName(name))) << name;
  }
}

TEST(ColumnRoles, DoesNotTakeAnItemOfAnotherKindForTimeOrRun)
{
  const ColumnRoles roles = assignRoles({"Molecule: time", "Parameter: run"});
  EXPECT_EQ(roles.timeColumn, -1);
  EXPECT_EQ(roles.runColumn, -1);
  EXPECT_TRUE(roles.describeRuns());
}

TEST(ColumnRoles, LeavesATableWithoutAnyOrderAlone)
{
  EXPECT_FALSE(assignRoles({"x", "y"}).describeRuns());
}

TEST(ColumnRoles, NamesColumnsWithoutANameByPosition)
{
  const ColumnRoles roles = assignRoles({"", "a", " "});
  EXPECT_EQ(roles.headers[0].name, "Column 1");
  EXPECT_EQ(roles.headers[2].name, "Column 3");
  EXPECT_TRUE(roles.headers[0].unnamed);
  EXPECT_FALSE(roles.headers[1].unnamed);
}

TEST(ColumnRoles, DoesNotNumberAPlainNameThatATypedHeaderHas)
{
  const ColumnRoles roles = assignRoles({"a", "Undefined Type: a", "Molecule: a"});
  for (const ColumnHeader& header : roles.headers)
    EXPECT_EQ(header.name, "a");
}

TEST(ColumnRoles, NumbersColumnsOfTheSameLabel)
{
  const ColumnRoles roles = assignRoles({"a", "a", "a (2)", "a", "Parameter: a"});
  std::vector<std::string> names;
  for (const ColumnHeader& header : roles.headers)
    names.push_back(header.name);
  EXPECT_EQ(names, (std::vector<std::string>{"a", "a (3)", "a (2)", "a (4)", "a"}));
}
