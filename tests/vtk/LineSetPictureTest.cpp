#include "support/PictureDevice.h"

#include <vtkMatrix3x3.h>

#include <algorithm>
#include <cmath>

#include "LineSetFixture.h"

/// A line set on a device that takes pictures. Its coordinates are the device's.
namespace
{
class LineSetPicture : public ::testing::Test
{
protected:
  void SetUp() override
  {
    device->setSize(100, 80);
    painter->Begin(device);
    item->SetStride(2);
    item->SetWidth(1);
    item->OnlyShowSelectedOff();
    // Level lines from one edge to the other.
    setRuns({10.5, 20.5, 30.5, 40.5});
  }
  void TearDown() override
  {
    painter->End();
    EXPECT_EQ(vtkOutput.text(), "");
  }

  void setRuns(const std::vector<double>& heights)
  {
    std::vector<double> x;
    std::vector<double> y;
    for (const double height : heights)
    {
      x.insert(x.end(), {0.0, 100.0});
      y.insert(y.end(), {height, height});
    }
    table = makeTable({{"x", x}, {"y", y}});
    item->SetInputData(table, "x", "y");
  }

  void mark(const std::vector<double>& markers)
  {
    table->AddColumn(makeColumn<vtkIdTypeArray>(Remainder, markers));
  }

  // A frame as a chart paints it.
  std::vector<PictureDevice::Picture> paint()
  {
    device->forget();
    item->Update();
    EXPECT_TRUE(item->Paint(painter));
    return device->pictures;
  }

  static std::vector<vtkMTimeType> times(const std::vector<PictureDevice::Picture>& pictures)
  {
    std::vector<vtkMTimeType> found;
    for (const auto& picture : pictures)
      found.push_back(picture.time);
    return found;
  }

  vtkSmartPointer<ExposedLineSet> item = makeExposed<ExposedLineSet>();
  vtkSmartPointer<vtkTable> table;
  vtkNew<PictureDevice> device;
  vtkNew<vtkContext2D> painter;
  VtkErrors vtkOutput;
};
} // namespace

TEST_F(LineSetPicture, ShowsRunsAndHighlightsInAPictureEach)
{
  item->SetColor(10, 20, 30, 51);
  mark({0, 0, 1, 1, 0, 0, 0, 0});
  const auto pictures = paint();
  ASSERT_EQ(pictures.size(), 2u);
  EXPECT_EQ(device->calls().size(), 2u) << "nothing is drawn besides";
  EXPECT_EQ(pictures[0].place, (std::array<double, 4>{0, 10, 100, 31})) << "what is not empty";
  for (const double y : {10.5, 20.5, 30.5, 40.5})
    EXPECT_EQ(pictures[0].opacityAt(50, y), 51);
  EXPECT_EQ(pictures[0].opacityAt(50, 15.5), 0);
  EXPECT_EQ(pictures[0].valueAt(50, 10.5, 0), 10);
  EXPECT_EQ(pictures[0].valueAt(50, 10.5, 1), 20);
  EXPECT_EQ(pictures[0].valueAt(50, 10.5, 2), 30);
  EXPECT_GT(pictures[1].opacityAt(50, 20.5), 150);
  EXPECT_EQ(pictures[1].opacityAt(50, 10.5), 0);
  EXPECT_EQ(pictures[1].valueAt(50, 20.5, 0), 255);
  EXPECT_EQ(pictures[1].valueAt(50, 20.5, 1), 50);
  EXPECT_EQ(pictures[1].valueAt(50, 20.5, 2), 0);
}

TEST_F(LineSetPicture, GivesARunTheOpacityOfItsRepeats)
{
  item->SetStride(4);
  const double a = 150.0 / 255.0;
  for (int rows = 1; rows <= 4; ++rows)
  {
    item->SetSelection(makeIds(std::vector<vtkIdType>({4, 5, 6, 7})));
    std::vector<vtkIdType> ids(static_cast<std::size_t>(rows), 5);
    item->SetSelection(makeIds(ids));
    const auto pictures = paint();
    ASSERT_EQ(pictures.size(), 2u);
    EXPECT_NEAR(pictures[1].opacityAt(50, 30.5), 255 * (1 - std::pow(1 - a, rows)), 1);
  }
}

TEST_F(LineSetPicture, StaysWhileNothingChanges)
{
  mark({0, 0, 1, 1, 0, 0, 0, 0});
  const auto first = times(paint());
  EXPECT_EQ(times(paint()), first);
  item->Modified();
  EXPECT_EQ(times(paint()), first) << "the item is modified at every painting";
  item->SetLabel("other");
  EXPECT_EQ(times(paint()), first);
  const auto selection = makeIds({3});
  item->SetSelection(selection);
  EXPECT_EQ(times(paint()), first) << "the marker column counts";
}

TEST_F(LineSetPicture, CountsOnlyTheHighlightsOfAnotherSelection)
{
  mark({0, 0, 1, 1, 0, 0, 0, 0});
  const auto first = paint();
  mark({1, 0, 0, 0, 0, 0, 0, 0});
  const auto second = paint();
  ASSERT_EQ(second.size(), 2u);
  EXPECT_EQ(second[0].time, first[0].time);
  EXPECT_NE(second[1].time, first[1].time);
  EXPECT_GT(second[1].opacityAt(50, 10.5), 0);
  EXPECT_EQ(second[1].opacityAt(50, 20.5), 0);
}

TEST_F(LineSetPicture, FollowsTheItemsOwnSelection)
{
  const auto selection = makeIds({0});
  item->SetSelection(selection);
  const auto first = paint();
  ASSERT_EQ(first.size(), 2u);
  item->SetSelection(nullptr);
  item->SetSelection(selection);
  EXPECT_EQ(times(paint()), times(first)) << "as charts set it at every painting";
  selection->SetValue(0, 7);
  selection->Modified();
  EXPECT_GT(paint()[1].opacityAt(50, 40.5), 0);
  item->SetSelection(nullptr);
  EXPECT_EQ(paint().size(), 1u);
}

TEST_F(LineSetPicture, IsMadeAgainForWhatChangesIt)
{
  std::vector<vtkMTimeType> seen;
  const auto isNew = [&]
  {
    const vtkMTimeType time = paint().at(0).time;
    const bool fresh = std::find(seen.begin(), seen.end(), time) == seen.end();
    seen.push_back(time);
    return fresh;
  };
  EXPECT_TRUE(isNew());
  EXPECT_FALSE(isNew());
  item->SetColor(1, 2, 3, 255);
  EXPECT_TRUE(isNew());
  item->SetColor(1, 2, 3, 100);
  EXPECT_TRUE(isNew());
  item->SetWidth(3);
  EXPECT_TRUE(isNew());
  item->SetStride(4);
  EXPECT_TRUE(isNew());
  item->BreakAtGapsOn();
  EXPECT_TRUE(isNew());
  painter->GetDevice()->PushMatrix();
  vtkNew<vtkMatrix3x3> moved;
  moved->SetElement(0, 2, 0.5);
  painter->GetDevice()->SetMatrix(moved);
  EXPECT_TRUE(isNew());
  EXPECT_FALSE(isNew());
  painter->GetDevice()->PopMatrix();
  EXPECT_TRUE(isNew());
  device->setSize(100, 90);
  EXPECT_TRUE(isNew());
  device->pixelRatio = 2;
  EXPECT_TRUE(isNew());
  table->SetValueByName(0, "y", 5.0);
  table->GetColumnByName("y")->Modified();
  EXPECT_TRUE(isNew());
  setRuns({3, 4});
  EXPECT_TRUE(isNew());
  EXPECT_FALSE(isNew());
}

TEST_F(LineSetPicture, HasThePixelsOfTheDeviceAndItsPenInThem)
{
  device->pixelRatio = 2;
  const auto picture = paint().at(0);
  int size[3];
  picture.image->GetDimensions(size);
  EXPECT_EQ(size[0], 200);
  EXPECT_EQ(size[1], 62);
  EXPECT_EQ(picture.place, (std::array<double, 4>{0, 10, 100, 31}));
  for (const double y : {10.1, 10.4, 10.6, 10.9})
    EXPECT_EQ(picture.opacityAt(50, y), 255) << "two pixels high";
  EXPECT_EQ(picture.opacityAt(50, 11.1), 0);
}

TEST_F(LineSetPicture, FollowsColumnsThatComeAndGo)
{
  mark({0, 0, 1, 1, 0, 0, 0, 0});
  ASSERT_EQ(paint().size(), 2u);
  table->RemoveColumnByName(Remainder);
  EXPECT_EQ(paint().size(), 1u) << "an earlier copy stays in force without rows to highlight";
  mark({0, 0, 0, 0, 1, 1, 0, 0});
  const auto pictures = paint();
  ASSERT_EQ(pictures.size(), 2u);
  EXPECT_GT(pictures[1].opacityAt(50, 30.5), 0);
}

TEST_F(LineSetPicture, LeavesToTheDeviceWhatItWantsAsShapes)
{
  device->shapes = 4;
  item->SetStride(2);
  mark({1, 1, 0, 0, 1, 0, 0, 0});
  EXPECT_TRUE(paint().empty());
  const auto& calls = device->calls();
  ASSERT_EQ(calls.size(), 6u);
  const double a = 150.0 / 255.0;
  EXPECT_EQ(calls[4].points[0], Point(0, 10.5));
  EXPECT_EQ(calls[4].penColor[3], std::lround(255 * (1 - (1 - a) * (1 - a))));
  EXPECT_EQ(calls[5].points[0], Point(0, 30.5));
  EXPECT_EQ(calls[5].penColor[3], 150);

  device->shapes = 3;
  EXPECT_EQ(paint().size(), 1u) << "the runs";
  device->shapes = 1;
  EXPECT_EQ(paint().size(), 2u);
}

TEST_F(LineSetPicture, LeavesDashesAndTurnedItemsToTheDevice)
{
  item->GetPen()->SetLineType(vtkPen::DASH_LINE);
  mark({1, 1, 0, 0, 0, 0, 0, 0});
  EXPECT_TRUE(paint().empty());
  EXPECT_EQ(device->calls().size(), 5u) << "four runs and one highlight";

  item->GetPen()->SetLineType(vtkPen::SOLID_LINE);
  vtkNew<vtkMatrix3x3> turned;
  turned->SetElement(0, 1, 0.5);
  device->SetMatrix(turned);
  EXPECT_TRUE(paint().empty());
  EXPECT_EQ(device->calls().size(), 6u) << "four runs and two highlights";
}

TEST_F(LineSetPicture, KeepsTheRuleForBadPoints)
{
  item->SetStride(2);
  const auto shown = [this](double y)
  {
    const auto pictures = paint();
    return !pictures.empty() && pictures[0].opacityAt(50, y) > 0;
  };
  setRuns({10.5, NaN, 30.5, 40.5, 50.5});
  EXPECT_TRUE(shown(10.5));
  EXPECT_TRUE(shown(30.5));
  EXPECT_TRUE(shown(50.5));
  setRuns({10.5, 20.5, NaN});
  EXPECT_FALSE(shown(10.5)) << "fewer than two points behind the last bad one";
  item->BreakAtGapsOn();
  EXPECT_TRUE(shown(10.5));
  EXPECT_TRUE(shown(20.5));
}

TEST_F(LineSetPicture, CountsAgainWhatLeadsOnBehindTheLastBadPoint)
{
  item->SetColor(0, 0, 0, 51);
  item->SetStride(3);
  table = makeTable({{"x", {0, 0, 100, 0, 50, 100}}, {"y", {NaN, 20.5, 20.5, 20.5, 20.5, 20.5}}});
  item->SetInputData(table, "x", "y");
  // Lines of rows 1 to 3, 0 to 2 and 3 to 5 lie over each other.
  EXPECT_NEAR(paint().at(0).opacityAt(50.5, 20.5), 255 * (1 - std::pow(0.8, 3)), 1);
  item->BreakAtGapsOn();
  EXPECT_NEAR(paint().at(0).opacityAt(50.5, 20.5), 255 * (1 - std::pow(0.8, 2)), 1);
}
