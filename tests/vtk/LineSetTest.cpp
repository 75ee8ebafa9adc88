#include "LineSetFixture.h"

TEST_F(LineSet, DrawsEveryWholeRunAndLeavesThePartialOneUndrawn)
{
  setRows(35);
  item->SetStride(10);
  item->OnlyShowSelectedOff();
  item->Update();
  EXPECT_EQ(runs(), (Lines{{0, 10}, {10, 10}, {20, 10}}));
  EXPECT_EQ(highlights(), Lines());
}

TEST_F(LineSet, DrawsNoRunThatIsLongerThanTheTable)
{
  setRows(35);
  item->SetStride(36);
  item->OnlyShowSelectedOff();
  item->SetSelection(makeIds({0, 34}));
  item->Update();
  EXPECT_EQ(runs(), Lines());
  EXPECT_EQ(highlights(), Lines());
  item->SetStride(35);
  EXPECT_EQ(runs(), (Lines{{0, 35}}));
}

TEST_F(LineSet, ShowsOnlyHighlightedRunsByDefault)
{
  setRows(30);
  item->SetStride(10);
  item->SetSelection(makeIds({25}));
  item->Update();
  EXPECT_EQ(runs(), Lines());
  EXPECT_EQ(highlights(), (Lines{{20, 10}}));
}

TEST_F(LineSet, DrawsTheStretchAfterTheLastBadPointFirst)
{
  setRows(10, {1, 4});
  item->SetStride(3);
  item->OnlyShowSelectedOff();
  item->Update();
  EXPECT_EQ(runs(), (Lines{{5, 3}, {0, 3}, {3, 3}, {6, 3}}));
  item->OnlyShowSelectedOn();
  EXPECT_EQ(runs(), Lines());
}

TEST_F(LineSet, CutsTheStretchAfterTheLastBadPointAtTheEnd)
{
  setRows(10, {7});
  item->SetStride(4);
  item->OnlyShowSelectedOff();
  item->Update();
  EXPECT_EQ(runs(), (Lines{{8, 2}, {0, 4}, {4, 4}}));
}

TEST_F(LineSet, DrawsNoRunsWhenTheLastBadPointIsNearTheEnd)
{
  for (const int bad : {8, 9})
  {
    setRows(10, {bad});
    item->SetStride(5);
    item->OnlyShowSelectedOff();
    item->SetSelection(makeIds({0}));
    item->Update();
    EXPECT_EQ(runs(), Lines());
    EXPECT_EQ(highlights(), (Lines{{0, 5}})) << "highlights stay";
  }
}

TEST_F(LineSet, DrawsNoLinesOfSinglePoints)
{
  setRows(10, {3});
  item->OnlyShowSelectedOff();
  item->SetSelection(makeIds({2}));
  item->Update();
  EXPECT_EQ(item->GetStride(), 1);
  EXPECT_EQ(runs(), Lines());
  EXPECT_EQ(highlights(), Lines());
}

TEST_F(LineSet, PaintsNothingWithoutPointsOrStrideOrWhileInvisible)
{
  EXPECT_FALSE(item->Paint(recording.painter)) << "no points";
  setRows(10);
  item->SetVisible(false);
  const auto before = item->GetMTime();
  item->Update();
  EXPECT_EQ(item->Points, nullptr);
  EXPECT_EQ(item->GetMTime(), before);
  item->SetVisible(true);
  item->Update();
  EXPECT_GT(item->GetMTime(), before);
  for (const int stride : {0, -1})
  {
    item->SetStride(stride);
    EXPECT_FALSE(item->Paint(recording.painter));
  }
  item->SetStride(2);
  EXPECT_TRUE(item->Paint(recording.painter));
  item->SetVisible(false);
  EXPECT_FALSE(item->Paint(recording.painter));
}

TEST_F(LineSet, ReportsTrueForAnEmptyTable)
{
  setRows(0);
  item->OnlyShowSelectedOff();
  item->SetSelection(makeIds({0}));
  item->Update();
  EXPECT_EQ(runs(), Lines());
}

TEST_F(LineSet, HoldsItsPropertiesAndTellsOnlyChanges)
{
  EXPECT_EQ(item->GetStride(), 1);
  EXPECT_EQ(item->GetUseExternalSelection(), 1);
  EXPECT_EQ(item->GetOnlyShowSelected(), 1);
  EXPECT_EQ(item->SelectedLineIds->GetNumberOfValues(), 0);

  auto before = item->GetMTime();
  item->SetStride(1);
  item->UseExternalSelectionOn();
  item->OnlyShowSelectedOn();
  EXPECT_EQ(item->GetMTime(), before);
  item->SetStride(4);
  EXPECT_GT(item->GetMTime(), before);
  before = item->GetMTime();
  item->UseExternalSelectionOff();
  EXPECT_EQ(item->GetUseExternalSelection(), 0);
  EXPECT_GT(item->GetMTime(), before);
  before = item->GetMTime();
  item->SetOnlyShowSelected(0);
  EXPECT_GT(item->GetMTime(), before);
}

TEST_F(LineSet, PaintsALineAndAMarkerIntoTheLegend)
{
  item->SetMarkerStyle(vtkPlotPoints::CROSS);
  EXPECT_TRUE(item->PaintLegend(recording.painter, vtkRectf(0, 0, 10, 4), 3));
  ASSERT_EQ(recording.device->calls().size(), 2u);
  EXPECT_EQ(recording.device->calls()[0].points, (Points{{0, 2}, {10, 2}}));
  EXPECT_EQ(recording.device->calls()[1].marker, VTK_MARKER_CROSS);
}

TEST_F(LineSet, KeepsToTheConventionsOfVtk)
{
  expectConventionsOfVtk<vtkPlotLineSet>("vtkPlotLineSet");
}
