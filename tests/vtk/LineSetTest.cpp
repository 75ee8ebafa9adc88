#include "vtk/vtkPlotLineSet.h"

#include <vtkContext2D.h>
#include <vtkDoubleArray.h>
#include <vtkPen.h>
#include <vtkPoints2D.h>
#include <vtkStringArray.h>

#include <gtest/gtest.h>

#include <limits>
#include <numeric>

#include "VtkTestSupport.h"

namespace
{
const double NaN = std::numeric_limits<double>::quiet_NaN();
const char* const Remainder = "vtkRemainderSelection";

class ExposedLineSet : public Exposed<vtkPlotLineSet>
{
public:
  static vtkSmartPointer<ExposedLineSet> create()
  {
    auto* item = new ExposedLineSet;
    item->InitializeObjectBase();
    return vtkSmartPointer<ExposedLineSet>::Take(item);
  }

  using vtkPlotLineSet::NumberOfRemainderRows;
  using vtkPlotLineSet::RemainderSelection;
  using vtkPlotLineSet::SelectedLineIds;
};

/// The rows that a painted line covers: the first one and their number.
using Line = std::pair<int, std::size_t>;
using Lines = std::vector<Line>;

class LineSet : public ::testing::Test
{
protected:
  // The x column counts the rows, so that a line tells which rows it covers.
  void setRows(int count, const std::vector<int>& badRows = {})
  {
    std::vector<double> x(static_cast<std::size_t>(count));
    std::iota(x.begin(), x.end(), 0.0);
    std::vector<double> y(x.size(), 1.0);
    for (const int row : badRows)
      y[static_cast<std::size_t>(row)] = NaN;
    table = makeTable({{"x", x}, {"y", y}});
    item->SetInputData(table, "x", "y");
  }

  void mark(const std::vector<int>& rows)
  {
    std::vector<double> markers(static_cast<std::size_t>(table->GetNumberOfRows()), 0.0);
    for (const int row : rows)
      markers[static_cast<std::size_t>(row)] = 1.0;
    table->AddColumn(makeColumn<vtkIdTypeArray>(Remainder, markers));
  }

  Lines lines(bool highlighted)
  {
    recording.device->clear();
    EXPECT_TRUE(item->Paint(recording.painter));
    Lines found;
    for (const auto& call : recording.device->calls())
    {
      EXPECT_EQ(call.kind, Kind::Poly);
      for (std::size_t i = 1; i < call.points.size(); ++i)
        EXPECT_EQ(call.points[i].first, call.points[0].first + static_cast<float>(i));
      if ((call.penColor == HighlightColor) == highlighted)
        found.emplace_back(static_cast<int>(call.points[0].first), call.points.size());
    }
    return found;
  }
  Lines runs() { return lines(false); }
  Lines highlights() { return lines(true); }

  void TearDown() override { EXPECT_EQ(vtkOutput.text(), ""); }

  vtkSmartPointer<ExposedLineSet> item = ExposedLineSet::create();
  vtkSmartPointer<vtkTable> table;
  RecordingPainter recording;
  CapturedVtkOutput vtkOutput;
};
} // namespace

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

TEST_F(LineSet, DrawsTheSameWhateverUseExternalSelectionSays)
{
  setRows(20);
  mark({12});
  item->SetStride(10);
  item->UseExternalSelectionOff();
  item->Update();
  EXPECT_EQ(highlights(), (Lines{{10, 10}}));
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
  vtkNew<vtkPlotLineSet> lineSet;
  EXPECT_STREQ(lineSet->GetClassName(), "vtkPlotLineSet");
  EXPECT_TRUE(lineSet->IsA("vtkPlotPoints"));
  const auto other = vtkSmartPointer<vtkPlotLineSet>::Take(lineSet->NewInstance());
  EXPECT_STREQ(other->GetClassName(), "vtkPlotLineSet");
  vtkNew<vtkPlotPoints> base;
  EXPECT_EQ(printedNames(lineSet), printedNames(base));
}
