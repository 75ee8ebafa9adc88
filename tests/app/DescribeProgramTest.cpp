#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "RunningProgram.h"

namespace
{

class DescribeProgram : public RunningProgram
{
protected:
  QJsonObject describe(const QStringList& arguments, int status = 0)
  {
    // Neither a display nor a program for one is needed.
    environment.remove(QStringLiteral("DISPLAY"));
    const Ended ended = run(QStringList{"--describe"} + arguments);
    EXPECT_FALSE(ended.crashed);
    EXPECT_EQ(ended.status, status) << ended.errors.toStdString();
    EXPECT_EQ(ended.errors.isEmpty(), status == 0) << ended.errors.toStdString();
    return QJsonDocument::fromJson(ended.output).object();
  }

  QString tidy()
  {
    return write("tidy.csv", "sim,rep,t,species,conc,k\n"
                             "1,1,0,A,1,5\n1,1,1,A,2,5\n1,2,0,A,3,6\n1,2,1,A,4,6\n"
                             "1,1,0,B,1,5\n1,1,1,B,2,5\n1,2,0,B,3,6\n1,2,1,B,4,6\n");
  }
};

QJsonArray list(std::initializer_list<QJsonValue> values)
{
  return values;
}

} // namespace

TEST_F(DescribeProgram, PrintsWhatWasUnderstood)
{
  const QJsonObject json = describe({write("runs.csv", "run,time,k,X\n0,0,1,1\n0,1,1,2\n"
                                                       "1,0,2,3\n1,1,2,4\n1,2,2,5\n")});
  EXPECT_EQ(json["layout"], QJsonValue("stacked"));
  EXPECT_EQ(json["runs"], QJsonValue(2));
  EXPECT_EQ(json["points"], QJsonValue(list({2, 3})));
  EXPECT_EQ(json["time"], QJsonValue("time"));
  EXPECT_EQ(json["items"], QJsonValue(list({"X"})));
  EXPECT_EQ(json["parameters"], QJsonValue(list({"k"})));
}

TEST_F(DescribeProgram, ReadsTheTableAsItIsTold)
{
  const QJsonObject json = describe({tidy(), "--layout", "tidy", "--time", "t", "--run", "sim,rep",
                                     "--item", "species", "--value", "conc", "--parameter", "k"});
  EXPECT_EQ(json["layout"], QJsonValue("tidy"));
  EXPECT_EQ(json["runs"], QJsonValue(2));
  EXPECT_EQ(json["points"], QJsonValue(2));
  EXPECT_EQ(json["items"], QJsonValue(list({"A", "B"})));
  EXPECT_EQ(json["parameters"], QJsonValue(list({"k"})));
}

TEST_F(DescribeProgram, JoinsWhatLiesBesideAPetabTable)
{
  write("conditions.tsv", "conditionId\tdose\nc1\t1\nc2\tk_d\n");
  write("parameters.tsv", "parameterId\tnominalValue\nk_d\t5\n");
  const QJsonObject json =
      describe({write("measurements.tsv", "observableId\tsimulationConditionId\ttime\t"
                                          "measurement\nA\tc1\t0\t1\nA\tc2\t0\t2\n")});
  EXPECT_EQ(json["layout"], QJsonValue("petab"));
  EXPECT_EQ(json["parameters"], QJsonValue(list({"dose"})));
  EXPECT_EQ(json["categories"], QJsonValue(list({"simulationConditionId"})));
}

TEST_F(DescribeProgram, EndsWithThreeAndTheCandidatesWhereItIsUnsure)
{
  const QString file = write("a.csv", "drug,time,value\nx,0,1\nx,1,2\ny,0,3\ny,1,4\n");
  const QJsonArray candidates = describe({file}, 3)["candidates"].toArray();
  ASSERT_EQ(candidates.size(), 2);
  EXPECT_EQ(candidates[0].toObject()["layout"], QJsonValue("stacked"));
  EXPECT_EQ(candidates[1].toObject()["option"], QJsonValue("--layout tidy"));
  EXPECT_EQ(describe({file, "--layout", "tidy"})["items"], QJsonValue(list({"x", "y"})));
}

TEST_F(DescribeProgram, EndsWithOneWhereTheTableIsRefused)
{
  EXPECT_TRUE(describe({write("a.csv", "time,X\n0,1\n1,2a\n")}, 1).isEmpty());
  EXPECT_TRUE(describe({path("missing.csv")}, 1).isEmpty());
  EXPECT_TRUE(describe({tidy(), "--run", "rnu"}, 1).isEmpty());
}

TEST_F(DescribeProgram, RefusesOptionsThatMakeNoSense)
{
  expectError({"--describe"}, "--describe needs a file");
  expectError({"a.csv", "--decimal", ";"}, "--decimal takes . or a comma, not ;");
  expectError({"a.csv", "--separator", "x"}, "--separator takes one of , ; | : tab blank, not x");
  expectError({"a.csv", "--unequal", "x"}, "--unequal takes union or interpolate, not x");
  expectError({"a.csv", "--run", "a,,b"}, "a name is empty in a,,b");
  EXPECT_TRUE(
      run({"a.csv", "--layout", "x"}).errors.startsWith("talmesh-plot: unknown layout x; "));
}

TEST_F(DescribeProgram, SelectsRunsByTheTextsOfTheirCategories)
{
  const QString csv = write("runs.csv", "run,time,drug,X\n4,0,none,1\n4,1,none,2\n"
                                        "5,0,wild type,3\n5,1,wild type,4\n"
                                        "6,0,none,5\n6,1,none,6\n");
  const auto selected = [&](const char* condition)
  {
    expectSuccess({csv, "--select", condition, "--runs", path("out.csv")});
    QFile file(path("out.csv"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    std::string flags;
    for (const QByteArray& line : file.readAll().trimmed().split('\n').mid(1))
      flags += line.trimmed().back();
    return flags;
  };
  EXPECT_EQ(selected("drug = \"wild type\""), "010");
  EXPECT_EQ(selected("drug != \"wild type\""), "101");
  EXPECT_EQ(selected("none = drug"), "101");
  EXPECT_EQ(run({csv, "--select", "drug = aspirin", "--runs", path("out.csv")}).status, 1);
}
