#include "plot/ContainerAccess.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "SelectionPageFixture.h"

namespace
{

using Values = std::vector<double>;

class DistributionGroups : public SelectionPageFixture
{
protected:
  DistributionGroups()
  {
    draw(2);
    selectFirstRuns(8);
  }

  void show(const std::vector<DistributionGroup>& groups)
  {
    container.setDistributionGroups(groups);
    container.redraw();
  }

  Values column(vtkPlot* plot, int index)
  {
    vtkTable* table = plot->GetInput();
    Values values;
    for (vtkIdType row = 0; table && row < table->GetNumberOfRows(); ++row)
      values.push_back(table->GetValue(row, index).ToDouble());
    return values;
  }
  Values x(int parameter, int group) { return column(cell(parameter, 0)->GetPlot(group), 0); }
  Values y(int parameter, int group) { return column(cell(parameter, 0)->GetPlot(group), 1); }
};

} // namespace

TEST_F(DistributionGroups, CountEveryValue)
{
  show({{{{3, 1, 3, 3}, {7, 8}}, {10, 20, 30}}, {{{2, 2}, {7}}, {40, 50, 60}}});
  ASSERT_EQ(cell(0, 0)->GetNumberOfPlots(), 2);
  EXPECT_EQ(x(0, 0), (Values{1, 3}));
  EXPECT_EQ(y(0, 0), (Values{0.25, 1.0}));
  EXPECT_EQ(x(0, 1), (Values{2}));
  EXPECT_EQ(y(1, 0), (Values{0.5, 1.0}));
  EXPECT_EQ(colorOf(cell(0, 0)->GetPlot(0)), (std::array<int, 3>{10, 20, 30}));
  EXPECT_EQ(colorOf(cell(0, 0)->GetPlot(1)), (std::array<int, 3>{40, 50, 60}));
}

TEST_F(DistributionGroups, LeaveOutWhatIsMissing)
{
  const double missing = std::nan("");
  show({{{{missing, 2, 1, missing}, {missing}}, {}}, {{{4}}, {}}});
  EXPECT_EQ(x(0, 0), (Values{1, 2}));
  EXPECT_EQ(y(0, 0), (Values{0.5, 1.0})) << "of as many as there are";
  EXPECT_TRUE(x(1, 0).empty());
  EXPECT_TRUE(x(1, 1).empty()) << "no entry for the second parameter";
}

TEST_F(DistributionGroups, GiveAConstantAnAxis)
{
  for (const double value : {2.0, -2.0, 0.0})
  {
    show({{{{value, value}, {1, 2}}, {}}});
    const Values places = x(0, 0);
    ASSERT_EQ(places.size(), 3U);
    EXPECT_LT(places[0], value);
    EXPECT_EQ(places[1], value);
    EXPECT_GT(places[2], value);
    EXPECT_EQ(y(0, 0), (Values{0.0, 1.0, 1.0}));
  }
}

TEST_F(DistributionGroups, ShareTheSupportOfTheirDensities)
{
  settings().setUseDensity(true);
  Values low, high;
  for (int i = 0; i < 20; ++i)
  {
    low.push_back(1.0 + 0.1 * i);
    high.push_back(15.0 + 0.1 * i);
  }
  show({{{low, low}, {}}, {{high, low}, {}}});
  // The parameters of the study have the bounds 1 and 20.
  for (const int group : {0, 1})
  {
    EXPECT_EQ(x(0, group).size(), 200U);
    EXPECT_EQ(x(0, group).front(), 1.0);
    EXPECT_NEAR(x(0, group).back(), 20.0, 1e-9);
    double area = 0.0;
    for (const double density : y(0, group))
      area += density * 19.0 / 199.0;
    EXPECT_NEAR(area, 1.0, 0.03);
  }
}

TEST_F(DistributionGroups, MarkFewValuesOneByOne)
{
  settings().setUseDensity(true);
  show({{{{5, 5, 5, 12}, {1}}, {}}});
  const Values density = y(0, 0);
  EXPECT_EQ(std::count(density.begin(), density.end(), 1.0), 2) << "also behind equal ones";
}

TEST_F(DistributionGroups, ShowFewLevelsByALineForEach)
{
  settings().setUseDensity(true);
  Values all(12, 2.0);
  all.insert(all.end(), 4, 7.31);
  all.insert(all.end(), 4, 11.0);
  show({{{all, {1}}, {}}, {{{11.0, 7.31, 7.31, 11.0}, {1}}, {}}});
  // The parameters of the study have the bounds 1 and 20, and the grid 199 steps.
  const Values places{1, 2, 2, 2, 7.31, 7.31, 7.31, 11, 11, 11, 20};
  const double step = 19.0 / 199.0;
  for (const auto& [group, shares] :
       {std::pair(0, Values{0.6, 0.2, 0.2}), std::pair(1, Values{0.0, 0.5, 0.5})})
  {
    EXPECT_EQ(x(0, group), places);
    const Values heights = y(0, group);
    ASSERT_EQ(heights.size(), 11U);
    for (std::size_t level = 0; level < 3; ++level)
    {
      EXPECT_EQ(heights[1 + 3 * level], 0.0);
      EXPECT_NEAR(heights[2 + 3 * level], shares[level] / step, 1e-12) << group << ' ' << level;
      EXPECT_EQ(heights[3 + 3 * level], 0.0);
    }
  }
  // Eleven different values have a smooth one.
  for (int i = 0; i < 8; ++i)
    all.push_back(3.0 + i);
  show({{{all, {1}}, {}}});
  EXPECT_EQ(x(0, 0).size(), 200U);
}

TEST_F(DistributionGroups, HaveNoPlaceForInfinity)
{
  const double infinity = std::numeric_limits<double>::infinity();
  show({{{{-infinity, 1, 2, infinity}, {infinity}}, {}}});
  EXPECT_EQ(x(0, 0), (Values{1, 2}));
  EXPECT_EQ(y(0, 0), (Values{0.5, 0.75}));
  EXPECT_TRUE(x(1, 0).empty());
}

TEST_F(DistributionGroups, GiveWayToTheDataSetsOfTheContainer)
{
  const Values own = x(0, 1);
  const std::array<int, 3> selected = colorOf(cell(0, 0)->GetPlot(1));
  const std::array<int, 3> others = colorOf(cell(0, 0)->GetPlot(2));
  show({{{{1, 2}, {1, 2}}, {}}});
  EXPECT_EQ(cell(0, 0)->GetNumberOfPlots(), 1);
  container.setDistributionGroups(std::nullopt);
  container.redraw();
  ASSERT_EQ(cell(0, 0)->GetNumberOfPlots(), 3);
  EXPECT_EQ(x(0, 1), own);
  EXPECT_EQ(selected, (std::array<int, 3>{colorOfSelectedRuns[0], colorOfSelectedRuns[1],
                                          colorOfSelectedRuns[2]}));
  EXPECT_EQ(others,
            (std::array<int, 3>{colorOfOtherRuns[0], colorOfOtherRuns[1], colorOfOtherRuns[2]}));
}

TEST_F(DistributionGroups, AreNotCopied)
{
  container.setDistributionGroups(std::vector<DistributionGroup>(1));
  const PlotContainer copy(container);
  EXPECT_FALSE(stateOf(copy).distributionGroups);
}
