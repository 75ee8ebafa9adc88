#include "LineSetFixture.h"

TEST_F(LineSet, HighlightsARunOncePerSelectedPoint)
{
  setRows(30);
  item->SetStride(10);
  item->SetSelection(makeIds({12, 17}));
  item->Update();
  EXPECT_EQ(highlights(), (Lines{{10, 10}, {10, 10}}));
}

TEST_F(LineSet, HighlightsOnTopInAWiderRed)
{
  setRows(20);
  item->SetStride(10);
  item->SetColor(1, 2, 3, 4);
  item->SetWidth(1.5f);
  item->OnlyShowSelectedOff();
  item->SetSelection(makeIds({3}));
  item->Update();
  item->Paint(recording.painter);
  const auto& calls = recording.device->calls();
  ASSERT_EQ(calls.size(), 3u);
  EXPECT_EQ(calls[1].penColor, (RecordingDevice::Color{1, 2, 3, 4}));
  EXPECT_FLOAT_EQ(calls[1].penWidth, 1.5f);
  EXPECT_EQ(calls[2].penColor, HighlightColor);
  EXPECT_FLOAT_EQ(calls[2].penWidth, 1.5f + 2.7f);
  EXPECT_EQ(item->GetPen()->GetWidth(), 1.5f) << "the item's own pen stays";
}

TEST_F(LineSet, HighlightsARunOncePerMarkedRow)
{
  setRows(30);
  mark({3, 4, 21});
  item->SetStride(10);
  item->SetSelection(makeIds({15}));
  item->Update();
  EXPECT_EQ(item->NumberOfRemainderRows, 3);
  EXPECT_EQ(highlights(), (Lines{{0, 10}, {0, 10}, {20, 10}}));
}

TEST_F(LineSet, PrefersTheMarkerColumnEvenWhenItMarksNothing)
{
  setRows(30);
  mark({});
  item->SetStride(10);
  item->SetSelection(makeIds({15}));
  item->Update();
  EXPECT_EQ(highlights(), Lines());
}

TEST_F(LineSet, KeepsAnEarlierMarkerColumnInForceWithoutCountingItsRows)
{
  setRows(30);
  mark({3});
  item->SetStride(10);
  item->Update();
  EXPECT_EQ(highlights(), (Lines{{0, 10}}));

  setRows(30);
  item->SetSelection(makeIds({15}));
  item->Update();
  EXPECT_EQ(item->RemainderSelection->GetNumberOfValues(), 30);
  EXPECT_EQ(item->RemainderSelection->GetValue(3), 1);
  EXPECT_EQ(item->NumberOfRemainderRows, 0);
  EXPECT_EQ(highlights(), Lines());
}

TEST_F(LineSet, FallsBackToItsSelectionWhenTheMarkerColumnHasNoRows)
{
  setRows(30);
  mark({3});
  item->SetStride(10);
  item->SetSelection(makeIds({15}));
  item->Update();
  EXPECT_EQ(highlights(), (Lines{{0, 10}}));
  table->GetColumnByName(Remainder)->SetNumberOfTuples(0);
  item->Update();
  EXPECT_EQ(highlights(), (Lines{{10, 10}}));
}

TEST_F(LineSet, ForgetsTheMarkedRunsWhenOnlyTheMarkersAreReadAgain)
{
  setRows(30);
  mark({3});
  item->SetStride(10);
  item->SetSelection(makeIds({15}));
  item->Update();
  EXPECT_EQ(highlights(), (Lines{{0, 10}}));
  table->GetColumnByName(Remainder)->SetNumberOfTuples(0);
  item->UpdateSelectionCache(table);
  EXPECT_EQ(highlights(), (Lines{{10, 10}}));
}

TEST_F(LineSet, ReadsMarkersThatChangedWithoutAWordWhenItIsTold)
{
  setRows(30);
  mark({3});
  item->SetStride(10);
  item->Update();
  EXPECT_EQ(highlights(), (Lines{{0, 10}}));
  auto* markers = vtkIdTypeArray::SafeDownCast(table->GetColumnByName(Remainder));
  markers->SetValue(3, 0);
  markers->SetValue(21, 1);
  item->UpdateSelectionCache(table);
  EXPECT_EQ(highlights(), (Lines{{20, 10}}));
}

TEST_F(LineSet, ReadsMarkersOfAnyNumericType)
{
  setRows(20);
  table->AddColumn(makeColumn<vtkDoubleArray>(
      Remainder, {0.5, NaN, 1e300, 0, -1, 0, 0, 0, 0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
  item->SetStride(10);
  item->Update();
  EXPECT_EQ(item->NumberOfRemainderRows, 2);
  EXPECT_EQ(item->RemainderSelection->GetValue(4), -1);
  EXPECT_EQ(highlights(), (Lines{{0, 10}, {10, 10}}));
}

TEST_F(LineSet, IgnoresAMarkerColumnOfTexts)
{
  setRows(20);
  vtkNew<vtkStringArray> texts;
  texts->SetName(Remainder);
  texts->SetNumberOfValues(20);
  table->AddColumn(texts);
  item->SetStride(10);
  item->SetSelection(makeIds({5}));
  item->Update();
  EXPECT_EQ(item->RemainderSelection->GetNumberOfValues(), 0);
  EXPECT_EQ(highlights(), (Lines{{0, 10}}));
}

TEST_F(LineSet, PassesOverMarkersAndIdsThatNameNoWholeRun)
{
  setRows(25);
  item->SetStride(10);
  item->SetSelection(makeIds({-1, -15, 24, 25, 4000000000, 7}));
  item->Update();
  EXPECT_EQ(highlights(), (Lines{{0, 10}}));

  mark({12, 22});
  auto* markers = vtkIdTypeArray::SafeDownCast(table->GetColumnByName(Remainder));
  while (markers->GetNumberOfValues() < 40)
    markers->InsertNextValue(0);
  markers->SetValue(39, 1);
  item->Update();
  EXPECT_EQ(item->NumberOfRemainderRows, 3);
  EXPECT_EQ(highlights(), (Lines{{10, 10}}));
}

TEST_F(LineSet, FollowsAChangedStride)
{
  setRows(20);
  mark({12});
  item->SetStride(10);
  item->Update();
  EXPECT_EQ(highlights(), (Lines{{10, 10}}));
  item->SetStride(3);
  EXPECT_EQ(highlights(), (Lines{{12, 3}}));
  item->SetStride(13);
  EXPECT_EQ(highlights(), (Lines{{0, 13}}));
  item->SetStride(12);
  EXPECT_EQ(highlights(), Lines());
}

TEST_F(LineSet, FollowsAShrunkenTableWithOldIds)
{
  setRows(30);
  item->SetStride(10);
  item->SetSelection(makeIds({5, 25}));
  item->Update();
  EXPECT_EQ(highlights().size(), 2u);
  setRows(10);
  item->Update();
  EXPECT_EQ(highlights(), (Lines{{0, 10}}));
}

TEST_F(LineSet, ReadsTheMarkerColumnAgainForANewSelection)
{
  setRows(20);
  item->SetStride(10);
  item->Update();
  mark({12});
  EXPECT_EQ(highlights(), Lines());
  item->SetSelection(makeIds({5}));
  EXPECT_EQ(highlights(), (Lines{{10, 10}}));
}

TEST_F(LineSet, FollowsASelectionThatChangesInPlace)
{
  setRows(20);
  item->SetStride(10);
  const auto selection = makeIds({5});
  item->SetSelection(selection);
  item->Update();
  EXPECT_EQ(highlights(), (Lines{{0, 10}}));
  selection->SetValue(0, 15);
  selection->Modified();
  EXPECT_EQ(highlights(), (Lines{{10, 10}}));
}

TEST_F(LineSet, DrawsTheSameWhateverUseExternalSelectionSays)
{
  setRows(20);
  mark({12});
  item->SetStride(10);
  item->UseExternalSelectionOff();
  item->Update();
  EXPECT_EQ(highlights(), (Lines{{10, 10}}));
}
