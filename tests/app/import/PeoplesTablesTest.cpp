#include "PeoplesTables.h"

namespace
{

/// Two observables under two conditions, measured `replicates` times at four times.
std::string measurements(int replicates)
{
  std::string text = "observableId\tsimulationConditionId\ttime\tmeasurement\tnoiseParameters\n";
  for (const char* observable : {"pERK_obs", "pAKT_obs"})
    for (const char* condition : {"wt", "ko"})
      for (const char* time : {"0", "2.5", "10", "60"})
        for (int i = 0; i < replicates; ++i)
          text += std::string(observable) + "\t" + condition + "\t" + time + "\t" +
                  number(i + 0.125) + "\t0." + std::to_string(i + 1) + "\n";
  return text;
}

QJsonObject measured(int runs, const QJsonValue& points)
{
  return {{"layout", "petab"},
          {"runs", runs},
          {"points", points},
          {"time", "time"},
          {"items", QJsonArray{"pERK_obs", "pAKT_obs"}},
          {"parameters", QJsonArray{}}};
}

} // namespace

TEST_F(PeoplesTables, MeasurementsAreRunsOfTheirConditions)
{
  expectInVariants("measurements.tsv", measurements(1), measured(2, 4));
}

TEST_F(PeoplesTables, ReplicatesOfMeasurementsAreRunsOfTheirOwn)
{
  expectInVariants("measurements.tsv", measurements(3), measured(6, 4));
}

TEST_F(PeoplesTables, AReplicateMayLackItsLastTime)
{
  const std::string text = rows(2,
                                [](int condition)
                                {
                                  const std::string start =
                                      "obs\tc" + std::to_string(condition) + "\t";
                                  return start + "0\t1\n" + start + "0\t2\n" + start + "5\t1\n" +
                                         start + "5\t2\n" + start + "9\t3";
                                });
  const QJsonObject json =
      describe(write("m.tsv", "observableId\tsimulationConditionId\ttime\tmeasurement\n" + text));
  EXPECT_EQ(json["runs"], QJsonValue(4));
  EXPECT_EQ(textOf(json["points"]), "[[2,3]]");
}

TEST_F(PeoplesTables, SteadyStatesAreSaidAndNoTimes)
{
  const QJsonObject json =
      describe(write("m.tsv", "observableId\tsimulationConditionId\tmeasurement\ttime\n" +
                                  rows(6,
                                       [](int i) {
                                         return "dimer\tdose_" + std::to_string(i) + "\t" +
                                                number(i * 3.25) + "\tinf";
                                       })));
  EXPECT_EQ(json["runs"], QJsonValue(6));
  EXPECT_EQ(json["points"], QJsonValue(1));
  EXPECT_TRUE(json["time"].isNull());
  EXPECT_EQ(json["warnings"].toArray().size(), 1);
}

TEST_F(PeoplesTables, ConditionsBesideAreParametersAndMayNameParameters)
{
  const QString table = write("measurements.tsv", measurements(1));
  write("conditions.tsv", "conditionId\tk_prod\tEGF\nwt\tk_prod_wt\t1\nko\tk_prod_ko\t5\n");
  EXPECT_EQ(textOf(describe(table)["parameters"]), "[[\"EGF\"]]");
  EXPECT_TRUE(describe(table)["categories"].toArray().contains(QJsonValue("k_prod")));
  write("parameters.tsv", "parameterId\tparameterScale\tnominalValue\testimate\n"
                          "k_prod_wt\tlog10\t2.5\t1\nk_prod_ko\tlog10\t0.1\t1\n");
  EXPECT_EQ(textOf(describe(table)["parameters"]), "[[\"k_prod\",\"EGF\"]]");
}

TEST_F(PeoplesTables, TidyTablesHaveTheirSpeciesAsItems)
{
  const auto cell = [](int i)
  {
    return std::to_string(i / 20 + 1) + "," + std::to_string(i / 10 % 2 + 1) + "," +
           std::to_string(i / 2 % 5 * 15) + "," + (i % 2 == 0 ? "TetR," : "LacI,") +
           number(i * 0.5);
  };
  expectAsExported("simulation,replicate,time,species,value\n" + rows(60, cell),
                   {{"layout", "tidy"},
                    {"runs", 6},
                    {"points", 5},
                    {"time", "time"},
                    {"items", QJsonArray{"TetR", "LacI"}}});
}

TEST_F(PeoplesTables, ThreeHundredNumberedColumnsAreRuns)
{
  for (const std::string name : {"run_", "sim", ""})
  {
    std::string text = "time" + rows(300, [&](int i) { return "," + name + std::to_string(i); });
    text = replaced(text, '\n', "") + "\n" +
           rows(9,
                [](int t)
                {
                  return std::to_string(t) +
                         replaced(rows(300, [t](int i) { return "," + number(t + i * 0.5); }), '\n',
                                  "");
                });
    const QJsonObject json = describe(write("wide.csv", text));
    EXPECT_EQ(json["layout"], QJsonValue("wide")) << name;
    EXPECT_EQ(json["runs"], QJsonValue(300)) << name;
    EXPECT_EQ(json["points"], QJsonValue(9)) << name;
    EXPECT_EQ(json["items"].toArray().size(), 1) << name;
  }
}

TEST_F(PeoplesTables, StatesOfAModelAreNoRuns)
{
  expectUnderstood(write("ode.csv", course("time,x1,x2")),
                   {{"layout", "stacked"}, {"runs", 1}, {"items", QJsonArray{"x1", "x2"}}});
}

TEST_F(PeoplesTables, ParameterSetsAreARunEach)
{
  const auto set = [](int i)
  { return number(0.1 + i % 7) + "," + number(1e-3 * (i % 11 + 1)) + "," + number(3.5 + i % 5); };
  expectAsExported("k_on,k_off,k_cat\n" + rows(500, set),
                   {{"layout", "rows"},
                    {"runs", 500},
                    {"points", 1},
                    {"time", QJsonValue()},
                    {"parameters", QJsonArray{"k_on", "k_off", "k_cat"}}});
}

TEST_F(PeoplesTables, AGridOfParametersIsNoTimeThatStartsAgain)
{
  const auto point = [](int i)
  { return number(0.1 * (i / 5 + 1)) + "," + std::to_string(i % 5) + "," + number(i * 0.75); };
  expectUnderstood(write("scan.csv", "k1,k2,X_ss\n" + rows(50, point)),
                   {{"layout", "rows"},
                    {"runs", 50},
                    {"time", QJsonValue()},
                    {"parameters", QJsonArray{"k1", "k2"}}});
}

TEST_F(PeoplesTables, AScannedParameterThatRisesIsNotTakenForTime)
{
  const auto point = [](int i) { return number(0.1 * (i + 1)) + "," + number(50 - i * 0.5); };
  EXPECT_EQ(askedOptions(write("scan.csv", "k_cat,A_final\n" + rows(40, point))),
            (QStringList{"--layout table", "--layout rows"}));
}

TEST_F(PeoplesTables, RunsMayDifferInLengthAndTimes)
{
  std::string text = "traj,t,mRNA\n";
  for (int run = 1; run <= 4; ++run)
    for (int i = 0; i < 5 + run; ++i)
      text +=
          std::to_string(run) + "," + number(i * (1 + 0.375 * run)) + "," + number(i + 0.5) + "\n";
  expectAsExported(text, {{"layout", "stacked"},
                          {"runs", 4},
                          {"points", QJsonArray{6, 9}},
                          {"time", "t"},
                          {"items", QJsonArray{"mRNA"}}});
}

TEST_F(PeoplesTables, TextNamesConditionsAndRuns)
{
  std::string text = "genotype,dose,time,GFP\n";
  for (const char* genotype : {"WT", "KO"})
    for (int i = 0; i < 18; ++i)
      text += std::string(genotype) + "," + number(i / 6 * 12.5) + "," + std::to_string(i % 6) +
              "," + number(i * 0.5) + "\n";
  expectAsExported(text, {{"layout", "stacked"},
                          {"runs", 6},
                          {"points", 6},
                          {"items", QJsonArray{"GFP"}},
                          {"parameters", QJsonArray{"dose"}},
                          {"categories", QJsonArray{"genotype"}}});
}

TEST_F(PeoplesTables, TablesWithoutTimeAreNoRuns)
{
  const auto flower = [](int i)
  {
    return number(4.9 + i % 7 * 0.25) + "," + number(3 + i % 4 * 0.5) +
           (i < 15 ? ",setosa" : ",virginica");
  };
  expectAsExported("Sepal Length,Sepal Width,Species\n" + rows(30, flower),
                   {{"layout", "table"},
                    {"runs", 0},
                    {"points", 30},
                    {"time", QJsonValue()},
                    {"items", QJsonArray{"Sepal Length", "Sepal Width"}},
                    {"categories", QJsonArray{"Species"}}});
}

TEST_F(PeoplesTables, TimesThatFallBackIrregularlyAreAsked)
{
  std::string text = "time,A\n";
  for (const char* time : {"0", "5", "10", "15", "20", "10", "15", "20", "3", "8", "0", "5"})
    text += std::string(time) + ",1.5\n";
  EXPECT_EQ(askedOptions(write("restarts.csv", text)),
            (QStringList{"--layout stacked", "--layout table"}));
}
