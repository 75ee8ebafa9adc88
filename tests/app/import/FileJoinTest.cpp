#include "app/import/FileJoin.h"

#include "app/import/NameParts.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Talmesh::app;

namespace
{

using Names = std::vector<std::string>;
using Numbers = std::vector<double>;
using Columns = std::vector<NamedColumn>;

NamedColumn numbers(const std::string& name, const Numbers& values)
{
  return {name, values, {}, {}};
}

JoinedFile series(const std::string& name, double first)
{
  return {name, {numbers("time", {0, 1}), numbers("A", {first, first + 1})}};
}

Result<Columns> join(std::vector<JoinedFile> files, ImportReport& report,
                     const ImportRequest& request = {})
{
  return joinFiles(std::move(files), std::nullopt, request, report);
}

const NamedColumn& column(const Result<Columns>& joined, const std::string& name)
{
  static const NamedColumn none;
  EXPECT_EQ(joined.error(), "");
  if (joined.hasValue())
    for (const NamedColumn& candidate : joined.value())
      if (candidate.name == name)
        return candidate;
  ADD_FAILURE() << "no column " << name;
  return none;
}

Names textsOf(const NamedColumn& column)
{
  Names texts;
  for (const int word : column.wordOfRow)
    texts.push_back(column.words[static_cast<std::size_t>(word)]);
  return texts;
}

} // namespace

TEST(FileJoin, TakesFilesOfTheSameColumnsForRuns)
{
  ImportReport report;
  const auto joined = join({series("run_01.csv", 5), series("run_10.csv", 7)}, report);
  EXPECT_EQ(textsOf(column(joined, "run")), (Names{"01", "01", "10", "10"}));
  EXPECT_EQ(column(joined, "A").values, (Numbers{5, 6, 7, 8}));
  EXPECT_EQ(report.reasons, (Names{"each of the 2 files holds a run"}));
}

TEST(FileJoin, TakesFilesOfNumberedColumnsForItems)
{
  const auto wide = [](const std::string& name, double first)
  {
    return JoinedFile{name,
                      {numbers("time", {0, 1}), numbers("run 1", {first, first + 1}),
                       numbers("run 2", {first + 2, first + 3})}};
  };
  ImportReport report;
  const auto joined = join({wide("GFP.csv", 0), wide("RFP.csv", 10)}, report);
  EXPECT_EQ(textsOf(column(joined, "run")), (Names{"1", "1", "2", "2"}));
  EXPECT_EQ(column(joined, "time").values, (Numbers{0, 1, 0, 1}));
  EXPECT_EQ(column(joined, "GFP").values, (Numbers{0, 1, 2, 3}));
  EXPECT_EQ(column(joined, "RFP").values, (Numbers{10, 11, 12, 13}));
}

TEST(FileJoin, AsksWhereFilesAndColumnsAreNumbered)
{
  const auto wide = [](const std::string& name) {
    return JoinedFile{name, {numbers("time", {0}), numbers("X1", {0}), numbers("X2", {0})}};
  };
  ImportReport report;
  EXPECT_EQ(join({wide("a1.csv"), wide("a2.csv")}, report).error(),
            "files and columns are numbered, so that either may be runs: say --files runs or "
            "--files items");
  ASSERT_EQ(report.candidates.size(), 2U);
  EXPECT_EQ(report.candidates[0].option, "--files runs");
  ImportRequest request;
  request.files = "items";
  EXPECT_EQ(column(join({wide("a1.csv"), wide("a2.csv")}, report, request), "a2").rows(), 2U);
}

TEST(FileJoin, DoesNotJoinByTheOrderOfRowsUnlessToldTo)
{
  const auto wide = [](const std::string& name) {
    return JoinedFile{name, {numbers("1", {0, 1}), numbers("2", {2, 3})}};
  };
  ImportReport report;
  EXPECT_EQ(join({wide("GFP.csv"), wide("RFP.csv")}, report).error(),
            "the files have no times, so that only the order of their rows could join them: say "
            "--files items to do so, or --files runs where each is a run");
  EXPECT_EQ(report.candidates.size(), 2U);
  ImportRequest request;
  request.files = "items";
  EXPECT_EQ(column(join({wide("GFP.csv"), wide("RFP.csv")}, report, request), "GFP").values,
            (Numbers{0, 1, 2, 3}));
}

TEST(FileJoin, RefusesItemsOfDifferentTimes)
{
  const auto wide = [](const std::string& name, double end) {
    return JoinedFile{name, {numbers("t", {0, end}), numbers("1", {0, 1}), numbers("2", {2, 3})}};
  };
  ImportReport report;
  EXPECT_EQ(join({wide("GFP.csv", 1), wide("RFP.csv", 2)}, report).error(),
            "\"GFP.csv\" and \"RFP.csv\" have different times; files of one item each need the "
            "same. If each file is a run, say --files runs");
}

TEST(FileJoin, TellsWhichColumnIsMissing)
{
  JoinedFile other = series("b.csv", 1);
  other.columns.back().name = "B";
  ImportReport report;
  EXPECT_EQ(join({series("a.csv", 1), other}, report).error(),
            "\"a.csv\" and \"b.csv\" have different columns (\"A\" is only in one of them); files "
            "that are opened together need the same");
}

TEST(FileJoin, JoinsParametersByTheNamesOfFilesOrRuns)
{
  const JoinedFile byFile{"parameters.csv",
                          {{"file", {}, {"run_2.csv", "run_1"}, {0, 1}}, numbers("k", {20, 10})}};
  const JoinedFile byNumber{"parameters.csv", {numbers("run", {2, 1}), numbers("k", {20, 10})}};
  for (const JoinedFile& table : {byFile, byNumber})
  {
    ImportReport report;
    const auto joined = join({table, series("run_1.csv", 1), series("run_2.csv", 2)}, report);
    EXPECT_EQ(column(joined, "k").values, (Numbers{10, 10, 20, 20}));
    EXPECT_EQ(joined.value().size(), 4U);
  }
}

TEST(FileJoin, DoesNotJoinParametersByTheOrderOfRowsUnlessToldTo)
{
  const JoinedFile table{"p.csv", {numbers("k", {0.5, 0.25})}};
  ImportReport report;
  EXPECT_EQ(join({series("x1.csv", 1), series("x2.csv", 2), table}, report).error(),
            "no column of the table of parameters \"p.csv\" names the files or runs (such as "
            "\"x1.csv\"): add one for --join name, or say --join order to join by the order of "
            "rows");
  EXPECT_EQ(report.candidates.size(), 2U);
  ImportRequest request;
  request.join = "order";
  EXPECT_EQ(
      column(join({series("x1.csv", 1), series("x2.csv", 2), table}, report, request), "k").values,
      (Numbers{0.5, 0.5, 0.25, 0.25}));
}

TEST(FileJoin, TellsWhichRunHasNoParameters)
{
  const JoinedFile table{"p.csv", {numbers("run", {1, 3}), numbers("k", {0.5, 0.25})}};
  ImportReport report;
  EXPECT_EQ(join({series("x1.csv", 1), series("x2.csv", 2), table}, report).error(),
            "the table of parameters \"p.csv\" has no row for \"x2.csv\"");
}

TEST(NameParts, AreWhereNamesDiffer)
{
  EXPECT_EQ(distinctParts({"run_09.csv", "run_10.csv"}), (Names{"09", "10"}));
  EXPECT_EQ(distinctParts({"low dose.csv", "high dose.csv"}), (Names{"low", "high"}));
  EXPECT_EQ(distinctParts({"a.csv", "ab.csv"}), (Names{"a.csv", "ab.csv"}));
  EXPECT_EQ(distinctParts({"only.csv.gz"}), (Names{"only"}));
  EXPECT_EQ(distinctParts({"a1", "a2", "a12"}), (Names{"1", "2", "12"}));
}

TEST(NameParts, CountNumbersAsNumbers)
{
  EXPECT_TRUE(comesBeforeInNumbers("run2", "run10"));
  EXPECT_FALSE(comesBeforeInNumbers("run10", "run2"));
  EXPECT_TRUE(comesBeforeInNumbers("run", "run1"));
  EXPECT_TRUE(comesBeforeInNumbers("a", "b"));
  EXPECT_TRUE(areNumbered({"run 1", "run 22"}));
  EXPECT_FALSE(areNumbered({"A", "B"}));
}
