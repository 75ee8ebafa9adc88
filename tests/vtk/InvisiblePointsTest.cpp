#include "vtk/vtkPlotInvisiblePoints.h"

#include <vtkContext2D.h>

#include <gtest/gtest.h>

#include "VtkTestSupport.h"

namespace
{
class InvisiblePoints : public ::testing::Test
{
protected:
  void update(const std::vector<double>& y)
  {
    std::vector<double> x;
    for (std::size_t i = 0; i < y.size(); ++i)
      x.push_back(static_cast<double>(i + 1));
    table = makeTable({{"x", x}, {"y", y}});
    item->SetInputData(table, "x", "y");
    item->Update();
  }

  const std::vector<RecordingDevice::Call>& paint()
  {
    recording.device->clear();
    EXPECT_TRUE(item->Paint(recording.painter));
    return recording.device->calls();
  }

  vtkNew<vtkPlotInvisiblePoints> item;
  vtkSmartPointer<vtkTable> table;
  RecordingPainter recording;
};
} // namespace

TEST_F(InvisiblePoints, DrawNothingWithoutASelectionButReportTrue)
{
  update({10, 20, 30});
  EXPECT_TRUE(paint().empty());
  item->SetSelection(makeIds({}));
  EXPECT_TRUE(paint().empty());
}

TEST_F(InvisiblePoints, DrawTheSelectedOnesHighlighted)
{
  update({10, 20, 30});
  item->SetMarkerStyle(vtkPlotPoints::DIAMOND);
  item->SetWidth(2.0f);
  item->SetSelection(makeIds({2, 0}));
  ASSERT_EQ(paint().size(), 1u);
  const auto& call = recording.device->calls()[0];
  EXPECT_EQ(call.kind, Kind::Markers);
  EXPECT_EQ(call.points, (Points{{3, 30}, {1, 10}}));
  EXPECT_EQ(call.marker, VTK_MARKER_DIAMOND);
  EXPECT_TRUE(call.highlight);
  EXPECT_EQ(call.penColor, HighlightColor);
  EXPECT_FLOAT_EQ(call.penWidth, 8.0f + 2.7f) << "8 is the smallest automatic size";
}

TEST_F(InvisiblePoints, SizeTheHighlightByThePenOrTheMarkerSize)
{
  update({10});
  item->SetSelection(makeIds({0}));
  item->SetWidth(10.0f);
  EXPECT_FLOAT_EQ(paint().at(0).penWidth, 23.0f + 2.7f);
  item->SetMarkerSize(5.0f);
  EXPECT_FLOAT_EQ(paint().at(0).penWidth, 5.0f + 2.7f);
  item->SetMarkerSize(0.0f);
  EXPECT_FLOAT_EQ(paint().at(0).penWidth, 2.7f);
}

TEST_F(InvisiblePoints, FollowASelectionThatChangesInPlace)
{
  update({10, 20});
  const auto selection = makeIds({0});
  item->SetSelection(selection);
  EXPECT_EQ(paint().at(0).points, (Points{{1, 10}}));
  selection->SetValue(0, 1);
  selection->InsertNextValue(0);
  selection->Modified();
  EXPECT_EQ(paint().at(0).points, (Points{{2, 20}, {1, 10}}));
}

TEST_F(InvisiblePoints, PaintLikePointsWhenAllAreShown)
{
  update({10, 20, 30});
  vtkNew<vtkPlotPoints> points;
  points->SetInputData(table, "x", "y");
  points->Update();
  RecordingPainter expected;
  item->OnlyShowSelectedOff();
  for (vtkPlotPoints* plot : {static_cast<vtkPlotPoints*>(item), points.Get()})
  {
    plot->SetSelection(makeIds({1}));
    plot->SetMarkerStyle(vtkPlotPoints::CROSS);
    plot->SetMarkerSize(6);
  }
  EXPECT_TRUE(points->Paint(expected.painter));
  const auto& painted = paint();
  const auto& wanted = expected.device->calls();
  ASSERT_EQ(wanted.size(), 2u);
  ASSERT_EQ(painted.size(), wanted.size());
  for (std::size_t i = 0; i < wanted.size(); ++i)
  {
    EXPECT_EQ(painted[i].points, wanted[i].points);
    EXPECT_EQ(painted[i].marker, wanted[i].marker);
    EXPECT_EQ(painted[i].highlight, wanted[i].highlight);
    EXPECT_EQ(painted[i].penColor, wanted[i].penColor);
    EXPECT_EQ(painted[i].penWidth, wanted[i].penWidth);
    EXPECT_EQ(painted[i].brushColor, wanted[i].brushColor);
  }
}

TEST_F(InvisiblePoints, PassOverIdsOutsideThePoints)
{
  update({10, 20});
  const auto selection = makeIds({-1, 1, 2, 4000000});
  item->SetSelection(selection);
  EXPECT_EQ(paint().at(0).points, (Points{{2, 20}}));

  item->OnlyShowSelectedOff();
  ASSERT_EQ(paint().size(), 2u);
  EXPECT_EQ(recording.device->calls()[1].points, (Points{{2, 20}}));
  EXPECT_EQ(item->GetSelection(), selection.Get());
}

TEST_F(InvisiblePoints, DrawNoMarkersWhenEveryIdIsOutside)
{
  update({10, 20});
  item->SetSelection(makeIds({2}));
  EXPECT_TRUE(paint().empty());
  item->OnlyShowSelectedOff();
  EXPECT_EQ(paint().size(), 1u);
}

TEST_F(InvisiblePoints, PaintNothingWithoutPointsOrWhileInvisible)
{
  EXPECT_FALSE(item->Paint(recording.painter));
  item->OnlyShowSelectedOff();
  EXPECT_FALSE(item->Paint(recording.painter));
  update({});
  EXPECT_FALSE(item->Paint(recording.painter));
  update({10});
  EXPECT_TRUE(item->Paint(recording.painter));
  item->SetVisible(false);
  EXPECT_FALSE(item->Paint(recording.painter));
}

TEST_F(InvisiblePoints, LetTheChartPickThem)
{
  update({10, 20, 30});
  EXPECT_TRUE(item->SelectPoints(vtkVector2f(1.5f, 15), vtkVector2f(2.5f, 25)));
  ASSERT_EQ(item->GetSelection()->GetNumberOfValues(), 1);
  EXPECT_EQ(item->GetSelection()->GetValue(0), 1);
  EXPECT_EQ(paint().at(0).points, (Points{{2, 20}}));
}

TEST_F(InvisiblePoints, KeepToTheConventionsOfVtk)
{
  EXPECT_STREQ(item->GetClassName(), "vtkPlotInvisiblePoints");
  EXPECT_TRUE(item->IsA("vtkPlotPoints"));
  const auto other = vtkSmartPointer<vtkPlotInvisiblePoints>::Take(item->NewInstance());
  EXPECT_STREQ(other->GetClassName(), "vtkPlotInvisiblePoints");
  EXPECT_EQ(item->GetOnlyShowSelected(), 1);
  const auto before = item->GetMTime();
  item->OnlyShowSelectedOn();
  EXPECT_EQ(item->GetMTime(), before);
  item->OnlyShowSelectedOff();
  EXPECT_GT(item->GetMTime(), before);
  vtkNew<vtkPlotPoints> base;
  EXPECT_EQ(printedNames(item), printedNames(base));
}
