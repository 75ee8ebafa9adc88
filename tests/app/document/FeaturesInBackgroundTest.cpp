#include "app/document/FeatureColumns.h"
#include "app/document/RunSummary.h"
#include "support/SampleRuns.h"

#include <cmath>
#include <functional>

#include "document/DocumentScene.h"

using namespace Talmesh::app;

namespace
{

using Values = std::vector<double>;

/// Six runs, of which every feature takes long, and a background that does its work when told to.
class FeaturesInBackground : public DocumentScene
{
protected:
  FeaturesInBackground()
  {
    EXPECT_EQ(open(), "");
    search().setPatience(std::chrono::milliseconds(0));
    search().setBackground({[this](const FeatureSearch::Work& work, const auto& deliver)
                            {
                              begun.push_back(work);
                              deliveries.push_back(deliver);
                            },
                            [this] { ++cancelled; }});
  }
  ~FeaturesInBackground() override { search().setBackground({}); }

  FeatureSearch& search() { return document.featureSearch(); }

  void choose(plotStyles style, const std::vector<int>& y)
  {
    PlotChoice wanted;
    wanted.style = style;
    wanted.x = 4;
    wanted.y = y;
    document.choose(wanted);
  }

  void finish(std::size_t which) { deliveries.at(which)(begun.at(which)({}).value()); }

  Values shown(const char* name)
  {
    return SampleRuns::valuesOf(container().getSummary().table, name);
  }
  bool isShown(const char* name) { return !std::isnan(shown(name).front()); }

  std::vector<FeatureSearch::Work> begun;
  std::vector<std::function<void(const FeatureSearch::Values&)>> deliveries;
  int cancelled = 0;
};

} // namespace

TEST_F(FeaturesInBackground, AreDrawnWhenTheyAreThere)
{
  choose(parallelCoordinates, {0});
  EXPECT_EQ(shown("k"), (Values{1, 2, 3, 4, 5, 6})) << "takes no time";
  EXPECT_FALSE(isShown("max(X)"));
  countDrawings();
  ASSERT_EQ(begun.size(), 1U);
  finish(0);
  expectOneDrawing("features");
  EXPECT_EQ(shown("max(X)"), (Values{8, 16, 24, 32, 40, 48}));
  EXPECT_EQ(shown("mean(X)"), (Values{4.5, 9, 13.5, 18, 22.5, 27}));
  EXPECT_EQ(shown("final(X)"), (Values{8, 2, 24, 4, 40, 6}));
  document.draw();
  choose(scatterPlotMatrix, {0});
  EXPECT_EQ(begun.size(), 1U) << "what is there is not computed again";
  EXPECT_EQ(cancelled, 0);
}

TEST_F(FeaturesInBackground, AreOfTheValuesAsTheyWereAskedFor)
{
  choose(parallelCoordinates, {featureColumn(0, RunFeature::Max)});
  Talmesh::plot::doubleColumn(container().getTable(), 0)->SetValue(0, 1000);
  EXPECT_EQ(begun.at(0)({}).value().at(0).front(), 8);
}

TEST_F(FeaturesInBackground, AreNotBegunAgainByDrawings)
{
  choose(parallelCoordinates, {0});
  document.draw();
  select({1, 2});
  EXPECT_EQ(begun.size(), 1U);
  EXPECT_EQ(cancelled, 0);
}

TEST_F(FeaturesInBackground, EndWithAnotherChoice)
{
  choose(parallelCoordinates, {0});
  choose(parallelCoordinates, {featureColumn(1, RunFeature::Min)});
  EXPECT_EQ(cancelled, 1);
  ASSERT_EQ(begun.size(), 2U);
  finish(1);
  EXPECT_TRUE(isShown("min(Y)"));
  choose(xyPlot, {4});
  EXPECT_EQ(cancelled, 1) << "nothing is under way";
  choose(parallelCoordinates, {0});
  EXPECT_EQ(begun.size(), 3U) << "what was not finished";
  choose(xyPlot, {4});
  EXPECT_EQ(cancelled, 2);
}

TEST_F(FeaturesInBackground, StayAwayWhenGivenUpUntilSomethingElseIsChosen)
{
  choose(parallelCoordinates, {0});
  search().giveUp();
  EXPECT_EQ(cancelled, 1);
  document.draw();
  EXPECT_EQ(begun.size(), 1U);
  EXPECT_FALSE(isShown("max(X)"));
  choose(xyPlot, {4});
  choose(parallelCoordinates, {0});
  EXPECT_EQ(begun.size(), 2U);
  search().giveUp();
  search().giveUp();
  EXPECT_EQ(cancelled, 2);
}

TEST_F(FeaturesInBackground, AreComputedAnewOfNewValues)
{
  choose(parallelCoordinates, {featureColumn(0, RunFeature::Max)});
  finish(0);
  document.groups().normalise(true);
  EXPECT_FALSE(isShown("max(X)")) << "those before were of other values";
  ASSERT_EQ(begun.size(), 2U);
  finish(1);
  EXPECT_EQ(shown("max(X)"), Values(6, 1.0));
}

TEST_F(FeaturesInBackground, AreComputedAtOnceWhereThatTakesAMoment)
{
  search().setPatience(std::chrono::hours(1));
  choose(scatterPlotMatrix, {0});
  EXPECT_TRUE(isShown("max(X)"));
  EXPECT_TRUE(begun.empty());
}

TEST_F(FeaturesInBackground, SayHowFarTheyAreAndStopWhenAsked)
{
  choose(parallelCoordinates, {0});
  std::vector<double> told;
  const auto tellOnce = [&told](double part)
  {
    told.push_back(part);
    return told.size() < 8;
  };
  EXPECT_TRUE(begun.at(0)(tellOnce).isCancelled());
  ASSERT_EQ(told.size(), 8U);
  EXPECT_EQ(told.front(), 0.0);
  // The second of six runs of the second of three features.
  EXPECT_NEAR(told.back(), (1 + 1 / 6.0) / 3, 1e-15);
}
