#include "app/comparison/ComparisonFile.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <cmath>
#include <limits>

using namespace Talmesh::app;
namespace stats = Talmesh::stats;

namespace
{

ComparedParameter sample()
{
  ComparedParameter parameter;
  parameter.name = "k, \"2\"";
  parameter.result.selected = 3;
  parameter.result.others = 4;
  parameter.result.distance = 0.1;
  parameter.result.interval = {0.0, 1.0};
  parameter.result.p = 8.0 / 35.0;
  parameter.result.adjusted = 1.0;
  parameter.result.method = stats::TestMethod::exactDistribution;
  parameter.result.direction = stats::Direction::larger;
  parameter.result.superiority = 11.0 / 12.0;
  parameter.result.medianDifference = -3.5;
  return parameter;
}

} // namespace

TEST(ComparisonFile, HasAllDigitsAndQuotes)
{
  EXPECT_EQ(commaText({sample()}).toStdString(),
            "parameter,selected,others,D,D_low,D_high,p,p_adjusted,method,direction,superiority,"
            "median_difference,V\n"
            "\"k, \"\"2\"\"\",3,4,0.10000000000000001,0,1,0.22857142857142856,1,"
            "Kolmogorov-Smirnov (exact),larger in selected,0.91666666666666663,-3.5,\n");
}

TEST(ComparisonFile, SaysWhyThereIsNoP)
{
  ComparedParameter parameter;
  parameter.name = "k";
  parameter.obstacle = TestObstacle::tooFewUnits;
  parameter.result.selected = 2;
  parameter.result.others = 4;
  EXPECT_EQ(comparisonCells(parameter).join(QLatin1Char(',')).toStdString(),
            "k,2,4,,,,,,not tested: too few sets,,,,");
}

TEST(ComparisonFile, NamesTheStatisticThatIsPermuted)
{
  ComparedParameter parameter = sample();
  parameter.result.permutations = 9'999;
  parameter.result.seed = 7;
  parameter.result.method = stats::TestMethod::permutedSets;
  EXPECT_EQ(comparisonCells(parameter)[8],
            "Kolmogorov-Smirnov (9999 permutations of sets; seed 7)");
  parameter.result.method = stats::TestMethod::permutedBaseSamples;
  parameter.result.comparedBy = stats::ComparedBy::rankSum;
  EXPECT_EQ(comparisonCells(parameter)[8],
            "Mann-Whitney (9999 permutations of base samples; seed 7)");
}

TEST(ComparisonFile, TellsHowPWasAdjustedAndOfWhichHalfItIs)
{
  ComparedParameter parameter = sample();
  parameter.result.adjustment = stats::Adjustment::holm;
  EXPECT_EQ(comparisonCells(parameter)[8], "Kolmogorov-Smirnov (exact); adjusted by Holm");
  parameter.seedOfHalf = 3;
  parameter.result.adjustment = stats::Adjustment::maxT;
  parameter.result.adjustingPermutations = 9'999;
  parameter.result.seed = 3;
  EXPECT_EQ(comparisonCells(parameter)[8],
            "Kolmogorov-Smirnov (exact); adjusted by maxT (9999 permutations; seed 3); second half "
            "of the runs; seed 3");
  parameter.obstacle = TestObstacle::alikeInFirstHalf;
  EXPECT_EQ(comparisonCells(parameter)[8],
            "not tested: does not differ in the first half; second half of the runs; seed 3");
}

TEST(ComparisonFile, HasABoundForPBelowAllDoubles)
{
  ComparedParameter parameter = sample();
  parameter.result.p = std::numeric_limits<double>::min();
  parameter.result.logP = -827.0 * std::log(10.0);
  const QStringList cells = comparisonCells(parameter);
  EXPECT_EQ(cells[6], "2.2250738585072014e-308");
  EXPECT_GT(cells[6].toDouble(), 0.0);
  EXPECT_EQ(cells[8], "Kolmogorov-Smirnov (exact); log10 p = -827.0000");
}

TEST(ComparisonFile, IsWrittenWholeOrNotAtAll)
{
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("comparison.csv"));
  EXPECT_EQ(writeText(path, QStringLiteral("a\u2264b\n")), "");
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(QString::fromUtf8(file.readAll()), QStringLiteral("a\u2264b\n"));
  const QString nowhere = folder.filePath(QStringLiteral("nowhere/comparison.csv"));
  EXPECT_EQ(writeText(nowhere, {}).find(nowhere.toStdString() + ": "), 0U);
}
