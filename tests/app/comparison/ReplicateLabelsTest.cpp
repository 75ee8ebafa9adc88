#include "app/comparison/ReplicateLabels.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Talmesh::app;
using Positions = std::vector<std::size_t>;

namespace
{

/// Three sets of two runs, which a column of this name tells apart.
ComparedStudy replicates(const std::string& name)
{
  return {{"k", name}, {}, {{1, 1, 2, 2, 3, 3}, {11, 12, 13, 14, 15, 16}}, {1, 1, 1, 0, 0, 0}, {}};
}

ComparedStudy labelled(const std::string& name)
{
  ComparedStudy study = replicates(name);
  study.labels = replicateLabels(study);
  return study;
}

} // namespace

TEST(ReplicateLabels, AreKnownByTheirNames)
{
  for (const char* name :
       {"seed", "Seed", "rng_seed", "random seed", "replicate", "rep", "Trial", "replicate_id",
        "sim_seed", "rep_no", "Replicate number", "simSeed", "REP", "No. of replicate", "rngSeed"})
    EXPECT_EQ(replicateLabels(replicates(name)), Positions{1}) << name;
  for (const char* name : {"k2", "seeding", "repressor", "temperature", "seed_rate", "trial_dose",
                           "reporter", "simulation", "run_id", "2"})
    EXPECT_TRUE(replicateLabels(replicates(name)).empty()) << name;
}

TEST(ReplicateLabels, AreWholeNumbers)
{
  ComparedStudy study = replicates("rep");
  study.columns[1][5] = std::nan("");
  EXPECT_EQ(replicateLabels(study), Positions{1});
  study.columns[1] = {0.1, 0.2, 0.1, 0.2, 0.1, 0.2};
  EXPECT_TRUE(replicateLabels(study).empty()) << "as a repression has";
}

TEST(ReplicateLabels, AreNoneWhereAllRunsDifferWithoutThem)
{
  ComparedStudy study = replicates("seed");
  study.columns[0] = {1, 2, 3, 4, 5, 6};
  EXPECT_TRUE(replicateLabels(study).empty());
  study.columns[0] = {1, 2, 3, std::nan(""), 5, std::nan("")};
  EXPECT_EQ(replicateLabels(study), Positions{1}) << "missing values are equal";
  EXPECT_TRUE(replicateLabels({{"seed"}, {}, {{1, 2}}, {1, 0}, {}}).empty()) << "nothing else";
}

TEST(ReplicateLabels, MakeSetsOfRunsAndAreNotTested)
{
  const Comparison comparison = compare(labelled("seed"), {});
  EXPECT_EQ(comparison.units.kind, Talmesh::stats::IndependentUnit::parameterSet);
  EXPECT_EQ(comparison.units.units, 3U);
  ASSERT_EQ(comparison.parameters.size(), 2U);
  EXPECT_EQ(comparison.parameters[1].obstacle, TestObstacle::label);
  EXPECT_TRUE(std::isnan(comparison.parameters[1].result.p));
}
