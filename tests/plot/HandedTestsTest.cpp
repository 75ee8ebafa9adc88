#include "plot/ContainerAccess.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>

#include "SelectionPageFixture.h"

namespace
{

class HandedTests : public SelectionPageFixture
{
protected:
  HandedTests()
  {
    draw(6);
    selectFirstRuns(8);
  }

  std::string parameter(int column)
  {
    return cell(column, 0)->GetAxis(vtkAxis::BOTTOM)->GetTitle();
  }
  std::string title(int column) { return cell(column, 0)->GetTitle(); }

  /// Of six parameters of which the last differs, and the fourth a little less.
  static std::vector<ParameterTest> tests()
  {
    std::vector<ParameterTest> handed(6, {0.5, 0.2, "by chance"});
    handed[3] = {0.04, 0.6, "probably"};
    handed[5] = {0.001, 0.9, "certainly"};
    return handed;
  }
};

TEST_F(HandedTests, ChooseOrderAndTitleTheCharts)
{
  const std::vector<KsStatistics> own = container.getKsResults();
  container.setParameterTests(tests());
  container.redraw();
  EXPECT_EQ(parameter(0), "k6");
  EXPECT_EQ(title(0), "certainly");
  EXPECT_EQ(parameter(1), "k4");
  EXPECT_EQ(title(1), "probably");
  EXPECT_EQ(parameter(2), "k1");
  EXPECT_EQ(title(2), "by chance");
  ASSERT_EQ(container.getKsResults().size(), own.size());
  EXPECT_EQ(container.getKsResults()[5].pValue, own[5].pValue);
}

TEST_F(HandedTests, MeetTheThresholdsOfTheSettings)
{
  container.setParameterTests(tests());
  settings().setKsThreshold(0.7);
  EXPECT_EQ(parameter(0), "k6");
  EXPECT_EQ(parameter(1), "k4") << "the smallest p of the others";
  std::vector<ParameterTest> many = tests();
  many.resize(5, {0.04, 0.8, {}});
  for (ParameterTest& test : many)
    test = {0.04, 0.8, "differs"};
  container.setParameterTests(many);
  container.redraw();
  EXPECT_EQ(matrix()->GetSize(), vtkVector2i(4, 4)) << "five charts take two rows";
  settings().setPThreshold(0.01);
  EXPECT_EQ(matrix()->GetSize(), vtkVector2i(4, 2));
}

TEST_F(HandedTests, LeaveChartsWithoutAnEntryUntitled)
{
  container.setParameterTests(std::vector<ParameterTest>{{std::nan(""), 0.9, "not tested"}});
  container.redraw();
  EXPECT_EQ(parameter(0), "k1");
  EXPECT_EQ(title(0), "not tested");
  EXPECT_EQ(parameter(1), "k2");
  EXPECT_EQ(title(1), "");
}

TEST_F(HandedTests, GiveWayToThoseOfTheContainer)
{
  const std::string own = title(0);
  EXPECT_EQ(own.substr(0, 4), "p = ");
  container.setParameterTests(tests());
  container.redraw();
  container.setParameterTests(std::nullopt);
  container.redraw();
  EXPECT_EQ(title(0), own);
}

TEST_F(HandedTests, HoldForSelectionsThatAPreparationSeesFirst)
{
  QObject owner;
  container.addPreparation(&owner, [this] { container.setParameterTests(tests()); });
  selectFirstRuns(5);
  EXPECT_EQ(title(0), "certainly");
}

TEST_F(HandedTests, AreNotCopied)
{
  container.setParameterTests(tests());
  const PlotContainer copy(container);
  EXPECT_FALSE(stateOf(copy).parameterTests);
}

} // namespace
