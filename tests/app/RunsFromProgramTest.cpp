#include "app/document/GroupedPlots.h"
#include "app/document/PlotSession.h"
#include "app/document/RunNormaliser.h"
#include "app/document/ShownStudy.h"
#include "plot/PlotContainer.h"
#include "support/Pictures.h"

#include <gtest/gtest.h>

#include <QFile>
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
protected:
  void removeDisplay()
  {
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_RUNTIME_DIR"})
      environment.remove(QLatin1String(name));
  }
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

TEST_F(RunsFromProgram, AreATableWithoutADisplay)
{
  const QString csv = write("runs.csv", "run,time,k,X,\"a,b\"\n7,0,0.1,1,3\n7,1,0.1,2,\n"
                                        "9,0,0.3,-4,5\n9,1,0.3,1,6\n");
  removeDisplay();
  expectSuccess({csv, "--runs", path("out.csv")});
  EXPECT_EQ(contentOf(path("out.csv")),
            "run,k,max(X),mean(X),final(X),\"max(\"\"a,b\"\")\",\"mean(\"\"a,b\"\")\","
            "\"final(\"\"a,b\"\")\"\n"
            "7,0.1,2,1.5,2,3,3,\n"
            "9,0.3,1,-1.5,1,6,5.5,6\n");
  expectSuccess({csv, "--select", "k > 0.2", "--runs", path("out.csv")});
  const QByteArray selected = contentOf(path("out.csv"));
  EXPECT_TRUE(selected.contains(",selected\n")) << selected.toStdString();
  EXPECT_TRUE(selected.contains("1.5,2,3,3,,0\n9,")) << selected.toStdString();
  EXPECT_TRUE(selected.endsWith(",6,1\n")) << selected.toStdString();
}

TEST_F(RunsFromProgram, AreRefusedInOneLine)
{
  removeDisplay();
  const QString out = path("out.csv");
  const Ended plain = run({write("plain.csv", "a,b\n1,2\n3,4\n"), "--runs", out});
  EXPECT_EQ(plain.status, 1);
  EXPECT_EQ(plain.errors.toStdString(),
            "talmesh-plot: there are no runs to list: There is no time column, so the rows are not "
            "taken for runs.\n");
  const Ended empty = run({write("text.csv", "a,b,c\n1,2,x\n3,4,y\n"), "--runs", out});
  EXPECT_EQ(empty.errors, plain.errors) << "whatever else is noted";
  EXPECT_FALSE(QFile::exists(out));
  const QString csv = write("runs.csv", sampleRuns());
  const QString nowhere = path("nowhere/out.csv");
  const Ended ended = run({csv, "--runs", nowhere});
  EXPECT_EQ(ended.status, 1);
  EXPECT_TRUE(ended.errors.startsWith(("talmesh-plot: " + nowhere + ": ").toUtf8()));
  EXPECT_EQ(ended.errors.count('\n'), 1);
  expectError({csv, "--runs"}, "--runs needs a value");
}

TEST_F(RunsFromProgram, AreSaidToBeMissingInAPictureThatCannotShowThem)
{
  const QString csv = write("runs.csv", sampleRuns());
  const QString picture = path("plot.png");
  const Ended over = run({csv, "--x", "time", "--y", "max(X)", "--export", picture});
  EXPECT_EQ(over.status, 0);
  EXPECT_EQ(over.errors, "talmesh-plot: max(X) is one value for a run: shown only over parameters "
                         "and other such values\n");
  const QString nowhere = path("nowhere/out.csv");
  const Ended failed =
      run({csv, "--x", "time", "--y", "max(X)", "--export", picture, "--runs", nowhere});
  EXPECT_EQ(failed.status, 1);
  EXPECT_EQ(failed.errors.count('\n'), 1) << failed.errors.toStdString();
  expectSuccess({csv, "--x", "k", "--y", "max(X)", "--export", picture});
}

TEST_F(RunsFromProgram, HaveTheValuesThatASessionShows)
{
  const Study study = sampleStudy();
  PlotContainer container(nullptr);
  showStudy(study, container);
  RunNormaliser normaliser;
  normaliser.follow(&container);
  normaliser.setNormalised({0}, true);
  ASSERT_EQ(
      saveSession(path("a.talmesh"), sessionOf(study, container, choiceOf(container), &normaliser)),
      "");
  expectSuccess({path("a.talmesh"), "--runs", path("out.csv")});
  const QList<QByteArray> lines = contentOf(path("out.csv")).split('\n');
  ASSERT_EQ(lines.size(), 5);
  EXPECT_EQ(lines[1].split(',').value(2), "1") << "the largest X";
}
