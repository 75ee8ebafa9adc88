#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "import/DescribedTable.h"

using namespace Talmesh::app;

namespace
{

constexpr double missing = std::numeric_limits<double>::quiet_NaN();

const std::string measurements =
    "observableId\tsimulationConditionId\ttime\tmeasurement\tnoiseParameters\n"
    "A\tc1\t0\t1\t0.1\nA\tc1\t5\t2\tsd_A\nB\tc1\t5\t3\t0.2\nA\tc2\t0\t4\t0.1\nA\tc2\t5\t5\t0.1\n";

} // namespace

TEST(PetabLayout, TakesConditionsForRunsAndObservablesForItems)
{
  const DescribedTable petab = described(measurements);
  expectDescribed(petab, "petab", 2, 2, {"A", "B"}, {}, {"simulationConditionId"});
  EXPECT_EQ(petab.report.ignored, Names{"noiseParameters"});
  EXPECT_EQ(petab.levels("Parameter: simulationConditionId"), (Names{"c1", "c2"}));
  expectValues(petab.table, "Molecule: A", {1, 2, 4, 5});
  // Nothing is known of B between or beyond its measurements.
  expectValues(petab.table, "Molecule: B", {missing, 3, missing, missing});
}

TEST(PetabLayout, TakesReplicatesForRunsOfTheirOwn)
{
  const std::string named = "observableId\tsimulationConditionId\treplicateId\ttime\tmeasurement\n"
                            "A\tc1\tr1\t0\t1\nA\tc1\tr2\t0\t2\nA\tc1\tr1\t5\t3\nA\tc1\tr2\t5\t4\n";
  const DescribedTable petab = described(named);
  expectDescribed(petab, "petab", 2, 2, {"A"}, {}, {"replicateId"});
  expectValues(petab.table, "Molecule: A", {1, 3, 2, 4});
  const std::string unnamed = "observableId\tsimulationConditionId\ttime\tmeasurement\n"
                              "A\tc1\t0\t1\nA\tc1\t0\t2\nA\tc1\t5\t3\nA\tc1\t5\t4\n";
  expectValues(described(unnamed).table, "Molecule: A", {1, 3, 2, 4});
}

TEST(PetabLayout, ShowsReplicatesOfDifferentTimesAtAllOfThem)
{
  const DescribedTable petab = described("observableId\tsimulationConditionId\ttime\tmeasurement\n"
                                         "A\tc1\t0\t1\nA\tc1\t5\t3\nA\tc1\t5\t4\n");
  EXPECT_EQ(petab.error, "");
  EXPECT_EQ(petab.report.runs, 2u);
  EXPECT_EQ(petab.report.fewestPoints, 1u);
  EXPECT_EQ(petab.report.mostPoints, 2u);
  expectValues(petab.table, "Molecule: A", {1, 3, missing, 4});
}

TEST(PetabLayout, KeepsSteadyStatesAsItems)
{
  const DescribedTable petab = described("observableId\tsimulationConditionId\ttime\tmeasurement\n"
                                         "A\tc1\t0\t1\nA\tc1\t5\t2\nA\tc1\tinf\t9\n"
                                         "A\tc2\t0\t3\nA\tc2\t5\t4\nA\tc2\tinf\t8\n");
  expectDescribed(petab, "petab", 2, 2, {"A", "A at steady state"}, {}, {"simulationConditionId"});
  expectValues(petab.table, "Molecule: A at steady state", {9, 9, 8, 8});
  expectValues(petab.table, ": time", {0, 5, 0, 5});
  EXPECT_TRUE(petab.warns("Line 4: the time is infinite"));
}

TEST(PetabLayout, ReadsATableOfSteadyStatesAlone)
{
  const DescribedTable petab = described("observableId\tsimulationConditionId\ttime\tsimulation\n"
                                         "A\tc1\tinf\t1\nA\tc2\tinf\t2\n");
  EXPECT_EQ(petab.error, "");
  EXPECT_EQ(petab.report.runs, 2u);
  EXPECT_EQ(petab.report.mostPoints, 1u);
  EXPECT_TRUE(petab.warns("steady states"));
}

TEST(PetabLayout, JoinsTheConditionsBesideIt)
{
  const Beside beside = {{"conditions.tsv", "conditionId\tconditionName\tdose\tinhibitor\tgene\n"
                                            "c1\tfirst\t1\tk_i\twild\nc2\tsecond\t10\t2\tmutant\n"},
                         {"parameters.tsv", "parameterId\tparameterScale\tnominalValue\n"
                                            "k_i\tlog10\t0.5\nk_x\tlog10\t7\n"}};
  const DescribedTable petab = described(measurements, {}, beside);
  expectDescribed(petab, "petab", 2, 2, {"A", "B"}, {"dose", "inhibitor"},
                  {"simulationConditionId", "gene"});
  expectValues(petab.table, "Parameter: dose", {1, 1, 10, 10});
  expectValues(petab.table, "Parameter: inhibitor", {0.5, 0.5, 2, 2});
  EXPECT_EQ(petab.levels("Parameter: gene"), (Names{"wild", "mutant"}));
}

TEST(PetabLayout, KeepsNamesOfParametersThatHaveNoValueAsACategory)
{
  const Beside beside = {{"conditions.tsv", "conditionId\tinhibitor\nc1\tk_i\nc2\t2\n"}};
  const DescribedTable petab = described(measurements, {}, beside);
  EXPECT_EQ(petab.report.categories, (Names{"simulationConditionId", "inhibitor"}));
  EXPECT_EQ(petab.levels("Parameter: inhibitor"), (Names{"k_i", "2"}));
}

TEST(PetabLayout, DrawsLinesBetweenSimulatedPointsOnly)
{
  const DescribedTable petab = described("observableId\tsimulationConditionId\ttime\tsimulation\n"
                                         "A\tc1\t0\t1\nA\tc1\t2\t3\nB\tc1\t1\t5\n");
  expectValues(petab.table, "Molecule: A", {1, 2, 3});
}

TEST(PetabLayout, KeepsSimulationsBesideMeasurements)
{
  const DescribedTable both =
      described("observableId\tsimulationConditionId\ttime\tmeasurement\tsimulation\n"
                "a\tc1\t0\t1\t1.5\na\tc1\t5\t2\t2.5\nb\tc1\t0\t3\t3.5\nb\tc1\t5\t4\t4.5\n");
  expectDescribed(both, "petab", 1, 2, {"a", "b", "a simulated", "b simulated"});
  expectValues(both.table, "Molecule: b simulated", {3.5, 4.5});
  expectValues(both.table, "Molecule: b", {3, 4});
}

TEST(PetabLayout, NamesConditionsThatNothingIsSaidOf)
{
  const Beside beside = {{"conditions.tsv", "conditionId\tdose\nc1\t1\n"}};
  const DescribedTable petab = described(measurements, {}, beside);
  EXPECT_TRUE(petab.warns("The condition \"c2\" does not stand in conditions.tsv"));
  EXPECT_FALSE(petab.warns("\"c1\""));
}

TEST(PetabLayout, LeavesAnEmptyPreequilibrationOut)
{
  const DescribedTable petab =
      described("observableId\tpreequilibrationConditionId\tsimulationConditionId\ttime\t"
                "measurement\nA\t\tc1\t0\t1\nA\t\tc1\t5\t2\n");
  EXPECT_EQ(petab.error, "");
  EXPECT_EQ(petab.report.items, Names{"A"});
}
