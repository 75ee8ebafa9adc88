#include "external/FitSettings.h"
#include "external/LinePlotTable.h"
#include "external/ParameterSelection.h"
#include "external/SobolPostProcessResult.h"

#include <boost/shared_ptr.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <malloc.h>
#include <type_traits>

TEST(LinePlotTable, CannotBeCopied)
{
  EXPECT_FALSE(std::is_copy_constructible_v<LinePlotTable>);
  EXPECT_FALSE(std::is_copy_assignable_v<LinePlotTable>);
  EXPECT_FALSE(std::is_move_constructible_v<LinePlotTable>);
}

// Blocks of this size are mapped on their own, so that the C library counts them exactly. Address
// sanitizing replaces that count by its own check for leaks and double deletes.
TEST(LinePlotTable, DeletesItsArraysOnceWithTheLastOwner)
{
  constexpr std::size_t runs = 1000;
  constexpr std::size_t points = 8000;
  const std::size_t mappedBefore = mallinfo2().hblkhd;
  boost::shared_ptr<LinePlotTable> table(new LinePlotTable);
  table->numberOfTrajectories = runs;
  table->pointsPerTrajectory = points;
  for (const char* name : {"a", "b", "c"})
  {
    table->items.emplace_back(Talmesh::Molecule, name);
    table->values.push_back(new double[runs * points]);
    std::fill_n(table->values.back(), runs * points, 1.0);
  }
  boost::shared_ptr<LinePlotTable> second = table;
  table.reset();
  EXPECT_EQ(second->values[2][runs * points - 1], 1.0);
  second.reset();
  EXPECT_EQ(mallinfo2().hblkhd, mappedBefore);
}

TEST(LinePlotTable, StartsEmptyAndTakesNullArrays)
{
  LinePlotTable table;
  EXPECT_EQ(table.numberOfTrajectories, 0u);
  EXPECT_EQ(table.pointsPerTrajectory, 0u);
  EXPECT_TRUE(table.items.empty());
  EXPECT_TRUE(table.parameterRanges.empty());
  table.values = {nullptr, new double[1], nullptr};
}

TEST(ParameterSelection, KeepsRunsUniqueAndAscending)
{
  ParameterSelection selection;
  EXPECT_EQ(selection.sourceId, 0);
  EXPECT_EQ(selection.sourceName + selection.label, "");
  selection.runs.insert({7, 3, 7});
  EXPECT_EQ(std::vector<int>(selection.runs.begin(), selection.runs.end()),
            (std::vector<int>{3, 7}));
}

TEST(FitSettings, IsTimeCourseDataUnlessASubclassSaysOtherwise)
{
  struct DoseResponse : FitSettings
  {
    int dataKind() const override { return 2; }
  };
  const FitSettings plain;
  const DoseResponse other;
  const FitSettings& seenAsBase = other;
  EXPECT_EQ(plain.dataKind(), 1);
  EXPECT_EQ(seenAsBase.dataKind(), 2);
  EXPECT_TRUE(std::has_virtual_destructor_v<FitSettings>);
}

TEST(FitSettings, StartsUnscaledAndUnnormalised)
{
  const FitSettings settings;
  EXPECT_FALSE(settings.globalScaleFitted);
  EXPECT_EQ(settings.globalScale, 1.0);
  EXPECT_FALSE(settings.normalizeToReference);
  EXPECT_EQ(settings.referenceIndex, 0);
  EXPECT_FALSE(settings.standardize);
}

TEST(SobolPostProcessResult, SharesItsIndicesWithItsCopies)
{
  SobolPostProcessResult result;
  EXPECT_EQ(result.timePoints, nullptr);
  EXPECT_EQ(result.firstOrder, nullptr);
  EXPECT_EQ(result.total, nullptr);
  result.total = std::make_shared<SobolPostProcessResult::Indices>(
      2, std::vector<std::vector<double>>(3, std::vector<double>(4, 0.5)));
  const SobolPostProcessResult copy = result;
  (*copy.total)[1][2][3] = -0.25;
  EXPECT_EQ((*result.total)[1][2][3], -0.25);
}
