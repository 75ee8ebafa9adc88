#include "vtk/vtkPlotStepLine.h"

#include <vtkAxis.h>
#include <vtkCharArray.h>
#include <vtkContext2D.h>
#include <vtkPen.h>
#include <vtkPoints2D.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "VtkTestSupport.h"

namespace
{
const double Infinity = std::numeric_limits<double>::infinity();

class ExposedStepLine : public Exposed<vtkPlotStepLine>
{
public:
  using vtkPlotStepLine::StepPoints;
};

class StepLine : public ::testing::Test
{
protected:
  void update(const std::vector<double>& x, const std::vector<double>& y)
  {
    table = makeTable({{"x", x}, {"y", y}});
    item->SetInputData(table, "x", "y");
    item->Update();
  }

  Points polyline() const
  {
    const auto lines = recording.device->calls(Kind::Poly);
    return lines.size() == 1 ? lines[0].points : Points();
  }

  vtkSmartPointer<ExposedStepLine> item = makeExposed<ExposedStepLine>();
  vtkSmartPointer<vtkTable> table;
  RecordingPainter recording;
  VtkErrors vtkOutput;
};
} // namespace

TEST_F(StepLine, DrawsOnePointAsARiseFromZeroToOne)
{
  update({3}, {0.5});
  EXPECT_TRUE(item->Paint(recording.painter));
  EXPECT_EQ(polyline(), (Points{{3, 0}, {3, 0.5}, {3, 0.5}, {3, 1}}));
}

TEST_F(StepLine, DrawsLevelRunsAndRisesBetweenPoints)
{
  update({1, 2}, {0.25, 0.75});
  EXPECT_TRUE(item->Paint(recording.painter));
  EXPECT_EQ(polyline(), (Points{{1, 0}, {1, 0.25}, {2, 0.25}, {2, 0.75}, {2, 0.75}, {2, 1}}));
}

TEST_F(StepLine, KeepsTheOrderOfThePointsAndEndsAtOneWhateverTheLastHeight)
{
  update({5, 4, 6}, {0.5, 2, 1.5});
  item->Paint(recording.painter);
  EXPECT_EQ(polyline(),
            (Points{{5, 0}, {5, 0.5}, {4, 0.5}, {4, 2}, {6, 2}, {6, 1.5}, {6, 1.5}, {6, 1}}));
}

TEST_F(StepLine, IsOnePolylineInTheItemsPenWithoutMarkers)
{
  item->SetColor(10, 20, 30, 40);
  item->SetWidth(3.5f);
  update({1, 2}, {0.25, 0.75});
  item->Paint(recording.painter);
  ASSERT_EQ(recording.device->calls().size(), 1u);
  const auto& call = recording.device->calls()[0];
  EXPECT_EQ(call.penColor, (RecordingDevice::Color{10, 20, 30, 40}));
  EXPECT_FLOAT_EQ(call.penWidth, 3.5f);
}

TEST_F(StepLine, PaintsNothingForAnEmptyTable)
{
  update({}, {});
  ASSERT_NE(item->StepPoints, nullptr);
  EXPECT_EQ(item->StepPoints->GetNumberOfPoints(), 0);
  EXPECT_FALSE(item->Paint(recording.painter));
  EXPECT_TRUE(recording.device->calls().empty());
  EXPECT_EQ(vtkOutput.text(), "");
}

TEST_F(StepLine, EmptiesTheStaircaseWhenTheRowsGo)
{
  update({1, 2}, {0.25, 0.75});
  EXPECT_EQ(item->StepPoints->GetNumberOfPoints(), 6);
  update({}, {});
  EXPECT_EQ(item->StepPoints->GetNumberOfPoints(), 0);
}

TEST_F(StepLine, ReportsTrueButPaintsNothingWithABadPoint)
{
  for (const double bad : {NaN, Infinity, -Infinity})
  {
    update({1, 2, 3}, {0.25, bad, 0.75});
    EXPECT_TRUE(item->Paint(recording.painter));
    update({1, bad, 3}, {0.25, 0.5, 0.75});
    EXPECT_TRUE(item->Paint(recording.painter));
  }
  EXPECT_TRUE(recording.device->calls().empty());
  update({1}, {0.25});
  EXPECT_TRUE(item->Paint(recording.painter));
  EXPECT_EQ(recording.device->calls().size(), 1u);
}

TEST_F(StepLine, NeitherUpdatesNorPaintsWhileInvisible)
{
  item->SetVisible(false);
  update({1}, {0.5});
  EXPECT_EQ(item->Points, nullptr);
  EXPECT_EQ(item->StepPoints, nullptr);
  EXPECT_FALSE(item->Paint(recording.painter));
  item->SetVisible(true);
  item->Update();
  EXPECT_TRUE(item->Paint(recording.painter));
  item->SetVisible(false);
  EXPECT_FALSE(item->Paint(recording.painter));
  EXPECT_EQ(recording.device->calls().size(), 1u);
}

TEST_F(StepLine, DoesNothingButClearTheMaskWithoutInput)
{
  vtkNew<vtkCharArray> mask;
  item->ValidPointMask = mask;
  item->Update();
  EXPECT_EQ(item->ValidPointMask, nullptr);
  EXPECT_EQ(item->StepPoints, nullptr);
  EXPECT_FALSE(item->Paint(recording.painter));
}

TEST_F(StepLine, TakesMaskedPointsForBadOnes)
{
  update({1, 2}, {0.25, 0.75});
  table->AddColumn(makeColumn<vtkCharArray>("mask", {1, 0}));
  item->SetValidPointMaskName("mask");
  item->Update();
  EXPECT_TRUE(item->Paint(recording.painter));
  EXPECT_TRUE(recording.device->calls().empty());
}

TEST_F(StepLine, IgnoresAMaskThatIsNoCharColumn)
{
  update({1, 2}, {0.25, 0.75});
  table->AddColumn(makeColumn<vtkIdTypeArray>("mask", {1, 0}));
  item->SetValidPointMaskName("mask");
  item->Update();
  EXPECT_EQ(item->ValidPointMask, nullptr);
  item->Paint(recording.painter);
  EXPECT_EQ(polyline().size(), 6u);
}

TEST_F(StepLine, RebuildsTheStaircaseOnEveryUpdate)
{
  update({1}, {0.5});
  item->StepPoints->SetNumberOfPoints(0);
  item->Update();
  EXPECT_EQ(item->StepPoints->GetNumberOfPoints(), 4);
}

TEST_F(StepLine, FollowsAChangedTable)
{
  update({1}, {0.5});
  table->SetValueByName(0, "y", 0.75);
  table->GetColumnByName("y")->Modified();
  table->Modified();
  item->Update();
  item->Paint(recording.painter);
  EXPECT_EQ(polyline(), (Points{{1, 0}, {1, 0.75}, {1, 0.75}, {1, 1}}));
}

TEST_F(StepLine, PutsTheCornersButNotTheEndsOnALogScale)
{
  vtkNew<vtkAxis> x;
  vtkNew<vtkAxis> y;
  item->SetXAxis(x);
  item->SetYAxis(y);
  update({1, 2}, {10, 100});
  y->SetUnscaledRange(1, 1000);
  y->SetLogScale(true);
  y->Update();
  ASSERT_TRUE(y->GetLogScaleActive());
  item->Update();
  item->Paint(recording.painter);
  EXPECT_EQ(polyline(), (Points{{1, 0}, {1, 1}, {2, 1}, {2, 2}, {2, 2}, {2, 1}}));
}

TEST_F(StepLine, SurvivesAMissingColumn)
{
  table = makeTable({{"x", {1}}, {"y", {0.5}}});
  item->SetInputData(table, "x", "gone");
  const ErrorLog errors(item);
  item->Update();
  EXPECT_FALSE(errors.messages.empty());
  EXPECT_TRUE(item->UpdateStepPointsCache(table));
  EXPECT_EQ(item->StepPoints->GetNumberOfPoints(), 0);
  EXPECT_FALSE(item->Paint(recording.painter));
}

TEST_F(StepLine, NeitherFillsNorPaintsTheStaircaseOfPointsThatAreNoFloats)
{
  update({1, 2}, {0.25, 0.75});
  item->Points->SetDataType(VTK_DOUBLE);
  item->Points->SetNumberOfPoints(1);
  EXPECT_TRUE(item->UpdateStepPointsCache(table));
  EXPECT_EQ(item->StepPoints->GetNumberOfPoints(), 4);
  EXPECT_TRUE(item->Paint(recording.painter));
  EXPECT_TRUE(recording.device->calls().empty());
}

TEST_F(StepLine, PaintsALineAndAMarkerIntoTheLegendWhateverTheIndex)
{
  item->SetWidth(2.0f);
  item->SetMarkerStyle(vtkPlotPoints::SQUARE);
  EXPECT_TRUE(item->PaintLegend(recording.painter, vtkRectf(10, 20, 30, 8), 7));
  ASSERT_EQ(recording.device->calls().size(), 2u);
  const auto& line = recording.device->calls()[0];
  EXPECT_EQ(line.kind, Kind::Poly);
  EXPECT_EQ(line.points, (Points{{10, 24}, {40, 24}}));
  EXPECT_FLOAT_EQ(line.penWidth, 2.0f);
  const auto& marker = recording.device->calls()[1];
  EXPECT_EQ(marker.kind, Kind::Markers);
  EXPECT_EQ(marker.marker, VTK_MARKER_SQUARE);
  EXPECT_EQ(marker.points, (Points{{25, 24}}));
}

TEST_F(StepLine, KeepsToTheConventionsOfVtk)
{
  expectConventionsOfVtk<vtkPlotStepLine>("vtkPlotStepLine");
}
