#include "app/comparison/ComparisonModel.h"

#include <gtest/gtest.h>

using namespace Talmesh::app;
namespace stats = Talmesh::stats;

namespace
{

QString header(const ComparisonModel& model, int column, int role = Qt::DisplayRole)
{
  return model.headerData(column, Qt::Horizontal, role).toString();
}

QString tip(const ComparisonModel& model, int column)
{
  return model.index(0, column).data(Qt::ToolTipRole).toString();
}

} // namespace

TEST(ComparisonModel, HeadsTheNumbersOfRunsByTheNamesOfTheirGroups)
{
  ComparisonModel model;
  EXPECT_EQ(header(model, ComparisonModel::Selected), "Selected");
  EXPECT_EQ(header(model, ComparisonModel::Others), "Not selected");
  model.setNames({"low", "a very long name of a selection"});
  EXPECT_EQ(header(model, ComparisonModel::Selected), "low");
  EXPECT_EQ(header(model, ComparisonModel::Others), QString::fromUtf8("a very long nam\u2026"));
  EXPECT_EQ(header(model, ComparisonModel::Others, Qt::ToolTipRole),
            "Number of runs in a very long name of a selection");
  model.setNames({"low", ""});
  EXPECT_EQ(header(model, ComparisonModel::Others), "Others");
  EXPECT_EQ(header(model, ComparisonModel::Others, Qt::ToolTipRole), "Number of the other runs");
}

TEST(ComparisonModel, TellsStatisticPermutationsAndSeedOfP)
{
  ComparedParameter row{"k", {}, TestObstacle::none, false};
  row.result.p = 0.25;
  row.result.adjusted = 0.5;
  row.result.comparedBy = stats::ComparedBy::rankSum;
  row.result.adjustment = stats::Adjustment::holm;
  row.result.method = stats::TestMethod::permutedSets;
  row.result.permutations = 9'999;
  row.result.seed = 7;
  ComparisonModel model;
  model.setParameters({row});
  EXPECT_EQ(tip(model, ComparisonModel::PValue),
            "0.25\nMann-Whitney: ranks\nPermutations of whole parameter sets\n"
            "9,999 permutations, seed 7");
  EXPECT_EQ(tip(model, ComparisonModel::AdjustedPValue), "0.5\nHolm: any false one");
  row.result.adjustment = stats::Adjustment::maxT;
  row.result.adjustingPermutations = 20'000;
  model.setParameters({row});
  EXPECT_EQ(tip(model, ComparisonModel::AdjustedPValue),
            "0.5\nmaxT: any false one\n20,000 permutations, seed 7");
}
