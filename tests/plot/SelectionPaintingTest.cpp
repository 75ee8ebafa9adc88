#include "external/PlotMetaData.h"
#include "plot/PlotState.h"
#include "support/RecordingDevice.h"
#include "support/SampleRuns.h"
#include "vtk/RowSelections.h"

#include <vtkContext2D.h>
#include <vtkSelection.h>

#include <gtest/gtest.h>

#include <vector>

namespace
{

const RecordingDevice::Color highlightColor{255, 50, 0, 150};
const RecordingDevice::Color lineColor{10, 20, 30, 255};

/// Three runs of three points, painted as lines.
class SelectionPainting : public ::testing::Test
{
protected:
  SelectionPainting()
  {
    PlotMetaData& settings = *plot.container.getMetaData();
    settings.color = lineColor;
    settings.xColumns = {SampleRuns::timeColumn};
    settings.yColumns = {SampleRuns::complexColumn};
    settings.setPlotLine(true);
    plot.scene->SetGeometry(400, 300);
    plot.scene->AddItem(plot.container.getItem());
    recording.device->setSize(400, 300);
  }

  /// The y values of every polyline of the given colour, in painting order.
  std::vector<std::vector<float>> lines(const RecordingDevice::Color& color)
  {
    recording.device->clear();
    plot.scene->Paint(recording.painter);
    std::vector<std::vector<float>> found;
    for (const auto& call : recording.device->calls(RecordingDevice::Kind::Poly))
    {
      // Axes and frames are painted in other colours.
      if (call.penColor != color)
        continue;
      found.emplace_back();
      for (const auto& point : call.points)
        found.back().push_back(point.second);
    }
    return found;
  }

  void select(const std::vector<vtkIdType>& rows)
  {
    plot.container.getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection(rows));
  }

  SampleRuns::Plot plot{SampleRuns::runs(3, 3)};
  RecordingPainter recording;
};

using Lines = std::vector<std::vector<float>>;

const Lines allRuns = {{0, 1, 2}, {10, 11, 12}, {20, 21, 22}};

} // namespace

TEST_F(SelectionPainting, HighlightsTheSelectedRunsOnTopOfAll)
{
  EXPECT_EQ(lines(lineColor), allRuns);
  EXPECT_EQ(lines(highlightColor), Lines());
  select({4});
  EXPECT_EQ(lines(lineColor), allRuns);
  EXPECT_EQ(lines(highlightColor), Lines({{10, 11, 12}}));
}

TEST_F(SelectionPainting, IsUndoneWhenTheSelectionIsCleared)
{
  // The first painting settles the axes.
  lines(lineColor);
  const Lines before = lines(lineColor);
  const std::size_t callsBefore = recording.device->calls().size();
  for (const bool withNode : {true, false})
  {
    select({1, 7});
    ASSERT_EQ(lines(highlightColor).size(), 2U);
    if (withNode)
      select({});
    else
      plot.container.getAnnotationLink()->SetCurrentSelection(nullptr);
    EXPECT_EQ(lines(highlightColor), Lines()) << withNode;
    EXPECT_EQ(lines(lineColor), before) << withNode;
    EXPECT_EQ(recording.device->calls().size(), callsBefore) << withNode;
  }
}

TEST_F(SelectionPainting, FollowsEverySelection)
{
  for (const vtkIdType run : {0, 2, 1, 2})
  {
    select({3 * run + 1});
    EXPECT_EQ(lines(highlightColor), Lines({allRuns[static_cast<std::size_t>(run)]}));
  }
}
