#include "app/document/FeatureColumns.h"

#include "document/DocumentScene.h"

using namespace Talmesh::app;

namespace
{

constexpr int itemX = 0;
constexpr int itemY = 1;
constexpr int timeColumn = 2;
constexpr int numberColumn = 3;
constexpr int parameterK = 4;

class FeatureColumnsOfRuns : public DocumentScene
{
protected:
  int shown(const std::string& name) { return findShownColumn(container(), name).value(); }
};

} // namespace

TEST_F(FeatureColumnsOfRuns, AreTheFeaturesOfItsItems)
{
  ASSERT_EQ(open(), "");
  const std::vector<int> columns = featureColumns(container());
  ASSERT_EQ(columns.size(), 2 * runFeatures().size());
  EXPECT_EQ(columnTitle(container(), columns.front()), "max(X)");
  EXPECT_EQ(columnTitle(container(), columns.back()), "period(Y)");
  for (const int column : columns)
  {
    EXPECT_TRUE(isFeature(column));
    EXPECT_EQ(featureColumn(itemOf(column), *featureIn(column)), column);
    EXPECT_EQ(roleOf(container(), column), ColumnRole::Feature);
  }
  EXPECT_FALSE(isFeature(itemY));
  EXPECT_EQ(itemOf(itemY), itemY);
  EXPECT_FALSE(featureIn(itemY));
}

TEST_F(FeatureColumnsOfRuns, AreNoneOfATableWithoutRuns)
{
  ASSERT_EQ(open("a,b,c\n1,2,3\n4,5,7\n"), "");
  EXPECT_EQ(featureColumns(container()), std::vector<int>());
  EXPECT_NE(findShownColumn(container(), "max(a)").error(), "");
}

TEST_F(FeatureColumnsOfRuns, AreFoundByTheirWords)
{
  ASSERT_EQ(open(), "");
  EXPECT_EQ(shown("max(X)"), featureColumn(itemX, RunFeature::Max));
  EXPECT_EQ(shown(" final( Y )"), featureColumn(itemY, RunFeature::Final));
  EXPECT_EQ(shown("Y"), itemY);
  EXPECT_EQ(shown("k"), parameterK);
  for (const char* name : {"max(k)", "max(time)", "max(Z)", "largest(X)", "max(X"})
    EXPECT_NE(findShownColumn(container(), name).error(), "") << name;
}

TEST_F(FeatureColumnsOfRuns, HaveNoFeaturesOfWhatMarksASelection)
{
  ASSERT_EQ(open(), "");
  const std::vector<int> before = featureColumns(container());
  document.selection().selectWhere("k < 3", RunCombination::Replace);
  QCoreApplication::processEvents();
  ASSERT_GT(container().getTable()->GetNumberOfColumns(), 6);
  EXPECT_EQ(featureColumns(container()), before);
}

TEST_F(FeatureColumnsOfRuns, HaveRoles)
{
  ASSERT_EQ(open(), "");
  EXPECT_EQ(roleOf(container(), itemX), ColumnRole::Item);
  EXPECT_EQ(roleOf(container(), timeColumn), ColumnRole::Other);
  EXPECT_EQ(roleOf(container(), numberColumn), ColumnRole::RunNumber);
  EXPECT_EQ(roleOf(container(), parameterK), ColumnRole::Parameter);
  EXPECT_EQ(roleOf(container(), -1), ColumnRole::Other);
  EXPECT_EQ(roleOf(container(), 50), ColumnRole::Other);
}
