#include "app/document/GroupedPlots.h"
#include "app/document/PlotSession.h"
#include "app/document/ShownStudy.h"
#include "plot/PlotContainer.h"

#include <gtest/gtest.h>

#include <QImage>

#include <cmath>
#include <set>
#include <vector>

#include "RunningProgram.h"
#include "SampleStudies.h"

using namespace Talmesh::app;

namespace
{

/// Whether a colour is at least a quarter of another one on white.
bool isShadeOf(const QColor& shade, const QColor& colour)
{
  constexpr int tolerance = 4;
  const auto part = [&](int (QColor::*channel)() const)
  { return (255.0 - (shade.*channel)()) / (255.0 - (colour.*channel)()); };
  const double red = part(&QColor::red);
  const auto isClose = [&](int (QColor::*channel)() const)
  { return std::abs(255.0 - red * (255 - (colour.*channel)()) - (shade.*channel)()) < tolerance; };
  return red > 0.25 && red <= 1.0 && isClose(&QColor::green) && isClose(&QColor::blue);
}

/// What the program writes of runs.
class RunsFromProgram : public RunningProgram
{
};

} // namespace

TEST_F(RunsFromProgram, DrawsTheGroupsOfASessionInTheirColours)
{
  const Study study = sampleStudy();
  PlotContainer container(nullptr);
  showStudy(study, container);
  container.setPlotStyle(xyPlot);
  const auto coloursOf = [&](const std::vector<int>& groupOfRun)
  {
    SessionSource source = sessionOf(study, container, choiceOf(container));
    source.groups.groupOfRun = groupOfRun;
    source.groups.look.groupColours = true;
    EXPECT_EQ(saveSession(path("a.talmesh"), source), "");
    expectSuccess({path("a.talmesh"), "--size", "300x200", "--export", path("plot.png")});
    const QImage picture(path("plot.png"));
    std::set<int> groups;
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x)
        for (const int group : {0, 1, 2})
          if (isShadeOf(picture.pixelColor(x, y), groupColour(group)))
            groups.insert(group);
    return groups;
  };
  EXPECT_EQ(coloursOf({}), std::set<int>());
  EXPECT_EQ(coloursOf({0, 1, 1}), (std::set<int>{0, 1}));
  EXPECT_EQ(coloursOf({2, 1, 0}), (std::set<int>{0, 1, 2}));
}
