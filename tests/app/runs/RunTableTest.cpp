#include "app/runs/RunTable.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "runs/SampleCourses.h"

using namespace Talmesh::app;

namespace
{

std::vector<RunColumn> someColumns()
{
  return {runColumn({}, 0, "alpha"), runColumn(RunFeature::Max, 1, "TetR"),
          runColumn(RunFeature::Mean, 2, "Molecule: cI"), runColumn(RunFeature::Final, 1, "TetR")};
}

} // namespace

TEST(RunTable, HasANumberForEachRunAndColumn)
{
  const SampleCourses runs;
  const RunTable table = runTable(runs, someColumns());
  EXPECT_EQ(table.numbers, (std::vector<double>{101, 102, 103, 104}));
  EXPECT_EQ(table.values[1], (std::vector<double>{10, 100, 50, 70}));
  const std::vector<double> means{5, 2, 2, 9};
  for (std::size_t run = 0; run < means.size(); ++run)
    EXPECT_DOUBLE_EQ(table.values[2][run], means[run]) << run;
  EXPECT_EQ(table.values[3], (std::vector<double>{0, 0, 50, 70}));
  EXPECT_TRUE(std::isnan(table.values[0][2]));
}

TEST(RunTable, NamesItsColumnsAsFiltersDoAndMeansTheSame)
{
  const SampleCourses runs;
  for (const RunFeature feature : runFeatures())
  {
    const RunColumn column = runColumn(feature, 1, "TetR");
    for (std::size_t run = 0; run < runs.numberOfRuns(); ++run)
    {
      const double value = numberOf(runs, run, column);
      const std::string words = std::isnan(value) ? "not " + column.words + " = " + column.words
                                                  : column.words + " = " + fullNumber(value);
      FilterFault fault;
      EXPECT_TRUE(RunFilter::read(words, runs, fault).selects(runs, run)) << words << fault.text;
    }
  }
}

TEST(RunTable, IsFilledAFewRunsAtATime)
{
  const SampleCourses runs;
  RunTableFilling filling(runs, someColumns());
  int times = 0;
  for (; !filling.isDone(); ++times)
    filling.goOn(0);
  EXPECT_EQ(times, 4) << "without time for more than a run";
  EXPECT_EQ(filling.take().values[1], runTable(runs, someColumns()).values[1]);
}

TEST(RunTable, IsWrittenWithThePlainNamesOfParametersAndTheDigitsThatItTakes)
{
  RunTable table;
  table.columns = {runColumn({}, 0, "a,b"), runColumn(RunFeature::Max, 1, "X")};
  table.numbers = {1, 2};
  table.values = {
      {0.1 + 0.2, 1e300},
      {std::numeric_limits<double>::quiet_NaN(), -std::numeric_limits<double>::infinity()}};
  addColumn(table, "group", {1, 2});
  addColumn(table, "of no runs", {});
  // 0.1 + 0.2 as Python's repr() has it, the shortest that is read as the same number.
  EXPECT_EQ(commaText(table), "run,\"a,b\",max(X),group\n"
                              "1,0.30000000000000004,,1\n"
                              "2,1e+300,-inf,2\n");
}

TEST(RunTable, HasTextsWhereItsNumbersStandForThem)
{
  class Drugs : public SampleCourses
  {
  public:
    std::vector<std::string> textsOf(int column) const override
    {
      using Texts = std::vector<std::string>;
      return column == 0 ? Texts{"none", "aspirin", "salt, sugar"} : Texts{};
    }
  };
  const Drugs runs;
  // Of a run's course there are numbers only.
  const RunTable table =
      runTable(runs, {runColumn({}, 0, "drug"), runColumn(RunFeature::Max, 0, "drug")});
  EXPECT_EQ(commaText(table),
            "run,drug,max(drug)\n101,aspirin,1\n102,\"salt, sugar\",2\n103,,\n104,40,40\n");
}
