#include "app/comparison/ComparisonFile.h"
#include "app/comparison/ComparisonModel.h"
#include "app/comparison/ComparisonResults.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Talmesh::app;
namespace stats = Talmesh::stats;

namespace
{

/// Twenty-one runs with a drug each, of which nine are selected, and a number that all differ in.
ComparedStudy drugs()
{
  ComparedStudy study;
  study.names = {"drug", "k"};
  study.columns.resize(2);
  study.levels = {{"none", "aspirin", "mixed"}, {}};
  const int counts[3][2] = {{1, 6}, {6, 1}, {2, 5}};
  for (int drug = 0; drug < 3; ++drug)
    for (int group = 0; group < 2; ++group)
      for (int run = 0; run < counts[drug][group]; ++run)
      {
        study.columns[0].push_back(drug);
        study.columns[1].push_back(static_cast<double>(study.columns[1].size()));
        study.selected.push_back(group == 0 ? 1 : 0);
      }
  return study;
}

} // namespace

TEST(ComparedCategories, AreTestedWithoutAnOrder)
{
  const Comparison comparison = compare(drugs(), {});
  const ComparedParameter& drug = comparison.parameters[0];
  // R 4.2.2: fisher.test(matrix(c(1, 6, 2, 6, 1, 5), ncol = 2))$p.value
  EXPECT_NEAR(drug.result.p, 0.0419385567992375, 1e-14);
  EXPECT_EQ(drug.result.method, stats::TestMethod::exactCounts);
  EXPECT_EQ(drug.leading, "aspirin");
  EXPECT_FALSE(comparison.parameters[1].result.isUnordered);
  EXPECT_EQ(comparison.parameters[1].leading, "");
}

TEST(ComparedCategories, DifferByVInPlaceOfD)
{
  ComparisonChoice choice;
  choice.pThreshold = 0.1;
  choice.ksThreshold = 0.6;
  EXPECT_TRUE(compare(drugs(), choice).parameters[0].significant);
  choice.ksThreshold = 0.65;
  EXPECT_FALSE(compare(drugs(), choice).parameters[0].significant);
}

TEST(ComparedCategories, AreOtherStudiesWithOtherTexts)
{
  ComparedStudy renamed = drugs();
  EXPECT_TRUE(renamed == drugs());
  renamed.levels[0][1] = "placebo";
  EXPECT_FALSE(renamed == drugs());
}

TEST(ComparedCategories, AreTestedBesideWhatChangesInARun)
{
  ComparedStudy study = drugs();
  study.names.insert(study.names.begin(), "t");
  study.columns.insert(study.columns.begin(), study.columns[1]);
  study.levels.insert(study.levels.begin(), std::vector<std::string>());
  study.changing = {0};
  const Comparison comparison = compare(study, {});
  EXPECT_TRUE(comparison.parameters[1].result.isUnordered);
  EXPECT_EQ(comparison.parameters[1].leading, "aspirin");
  EXPECT_FALSE(comparison.parameters[2].result.isUnordered);
}

TEST(ComparedCategories, AreWrittenWithVAndWithoutWhatNeedsAnOrder)
{
  const QStringList cells = comparisonCells(compare(drugs(), {}).parameters[0]);
  ASSERT_EQ(cells.size(), comparisonColumns().size());
  EXPECT_EQ(cells.mid(0, 6).join(QLatin1Char(',')), "drug,9,12,,,");
  EXPECT_EQ(cells[8], "counts (Fisher)");
  EXPECT_EQ(cells[9], "more often: aspirin");
  EXPECT_EQ(cells[10] + cells[11], "");
  EXPECT_NEAR(cells[12].toDouble(), 0.623609564462324, 1e-14);
}

TEST(ComparedCategories, AreToldInTheTable)
{
  ComparisonModel model;
  model.setParameters(compare(drugs(), {}).parameters);
  const auto text = [&model](int column)
  { return model.index(0, column).data().toString().toStdString(); };
  EXPECT_EQ(text(ComparisonModel::Statistic), "V 0.624");
  EXPECT_EQ(text(ComparisonModel::DirectionOfDifference), "aspirin more often");
  EXPECT_EQ(text(ComparisonModel::Superiority), "\u2013");
  EXPECT_EQ(text(ComparisonModel::MedianDifference), "\u2013");
  EXPECT_NEAR(model.index(0, ComparisonModel::Statistic).data(ComparisonModel::SortRole).toDouble(),
              0.6236, 1e-4);
  EXPECT_EQ(model.index(0, ComparisonModel::PValue)
                .data(Qt::ToolTipRole)
                .toString()
                .section(QLatin1Char('\n'), 1)
                .toStdString(),
            "Fisher's exact test of the counts per value")
      << "not the test of the other parameters";
}
