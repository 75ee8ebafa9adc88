#include "ErrorPointsFixture.h"

TEST_F(ErrorPoints, DrawsABarAtEveryPointAndThenTheMarkers)
{
  setTable({10, 20, 30}, {0.5, 0, 2});
  item->SetColor(1, 2, 3, 4);
  item->SetWidth(1.5f);
  item->SelectErrorArray("error");
  item->Update();
  EXPECT_TRUE(item->Paint(recording.painter));
  EXPECT_EQ(bars(), ThreeBars) << "the second has length zero";
  ASSERT_EQ(recording.device->calls().size(), 4u);
  EXPECT_EQ(recording.device->calls()[0].penColor, (RecordingDevice::Color{1, 2, 3, 4}));
  EXPECT_FLOAT_EQ(recording.device->calls()[0].penWidth, 1.5f);
  const auto& markers = recording.device->calls()[3];
  EXPECT_EQ(markers.kind, Kind::Markers);
  EXPECT_EQ(markers.points, (Points{{1, 10}, {2, 20}, {3, 30}}));
}

TEST_F(ErrorPoints, DrawsOnlyMarkersWithoutAnErrorColumn)
{
  setTable({10, 20}, {1, 1});
  item->Update();
  EXPECT_TRUE(item->Paint(recording.painter));
  ASSERT_EQ(recording.device->calls().size(), 1u);
  EXPECT_EQ(recording.device->calls()[0].kind, Kind::Markers);
}

TEST_F(ErrorPoints, DrawsTheBarsThatAShortColumnHas)
{
  setTable({10, 20, 30}, {0.5, 0, 2});
  item->SelectErrorArray("error");
  table->GetColumnByName("error")->SetNumberOfTuples(2);
  item->Update();
  EXPECT_TRUE(item->Paint(recording.painter));
  EXPECT_EQ(bars(), (std::vector<Points>{ThreeBars[0], ThreeBars[1]}));
  EXPECT_EQ(recording.device->calls(Kind::Markers).size(), 1u);
}

TEST_F(ErrorPoints, DrawsNoBarsFromAMistypedColumn)
{
  setTable({10, 20}, {1, 1});
  item->SelectErrorArray("y");
  item->Update();
  EXPECT_EQ(item->GetErrorArrayName(), "y");
  EXPECT_EQ(item->ErrorArray, nullptr);
  EXPECT_TRUE(item->Paint(recording.painter));
  EXPECT_TRUE(bars().empty());
  EXPECT_EQ(recording.device->calls(Kind::Markers).size(), 1u);
}

TEST_F(ErrorPoints, LeavesOutAllBarsWhenOnePointIsBad)
{
  setTable({10, NaN, 30}, {1, 1, 1});
  item->SelectErrorArray("error");
  item->Update();
  EXPECT_TRUE(item->Paint(recording.painter));
  EXPECT_TRUE(bars().empty());
  const auto markers = recording.device->calls(Kind::Markers);
  ASSERT_EQ(markers.size(), 2u);
  EXPECT_EQ(markers[0].points, (Points{{1, 10}}));
  EXPECT_EQ(markers[1].points, (Points{{3, 30}}));
}

TEST_F(ErrorPoints, PaintsNothingWithoutPointsOrWhileInvisible)
{
  EXPECT_FALSE(item->Paint(recording.painter));
  setTable({}, {});
  item->Update();
  EXPECT_FALSE(item->Paint(recording.painter));
  setTable({1}, {1});
  item->SetVisible(false);
  item->SelectErrorArray("error");
  item->Update();
  EXPECT_EQ(item->ErrorArray, nullptr) << "an invisible item is not updated";
  EXPECT_FALSE(item->Paint(recording.painter));
  EXPECT_TRUE(recording.device->calls().empty());
}

TEST_F(ErrorPoints, PassesOverSelectedIdsOutsideThePoints)
{
  setTable({10, 20, 30}, {1, 1, 1});
  item->Update();
  const auto selection = makeIds({-1, 1, 3, 4000000});
  item->SetSelection(selection);
  EXPECT_TRUE(item->Paint(recording.painter));
  const auto markers = recording.device->calls(Kind::Markers);
  ASSERT_EQ(markers.size(), 2u);
  EXPECT_TRUE(markers[1].highlight);
  EXPECT_EQ(markers[1].points, (Points{{2, 20}}));
  EXPECT_EQ(item->GetSelection(), selection.Get());
  EXPECT_EQ(selection->GetNumberOfValues(), 4);

  recording.device->clear();
  item->SetSelection(makeIds({7}));
  EXPECT_TRUE(item->Paint(recording.painter));
  EXPECT_EQ(recording.device->calls(Kind::Markers).size(), 1u);
  item->SetSelection(makeIds({0, 2}));
  recording.device->clear();
  EXPECT_TRUE(item->Paint(recording.painter));
  EXPECT_EQ(recording.device->calls(Kind::Markers).at(1).points, (Points{{1, 10}, {3, 30}}));
}

TEST_F(ErrorPoints, BoundsTheGoodPointsOnly)
{
  setTable({10, NaN, -30, 20}, {5, 5, 5, 5});
  item->SelectErrorArray("error");
  item->Update();
  double bounds[4] = {};
  item->CalculateBounds(bounds);
  EXPECT_EQ(bounds[0], 1.0);
  EXPECT_EQ(bounds[1], 4.0);
  EXPECT_EQ(bounds[2], -30.0);
  EXPECT_EQ(bounds[3], 20.0);
}

TEST_F(ErrorPoints, LetsAValueMoveOnlyOneOfItsBounds)
{
  setTable({3, 2, NaN}, {1, 1, 1});
  item->SelectErrorArray("error");
  item->Update();
  double bounds[4] = {};
  item->CalculateBounds(bounds);
  EXPECT_EQ(bounds[0], 1.0);
  EXPECT_EQ(bounds[1], 2.0);
  EXPECT_EQ(bounds[2], 2.0);
  EXPECT_EQ(bounds[3], 1.1754943508222875e-38) << "falling values never raise the maximum";
}

TEST_F(ErrorPoints, BoundsNothingWithoutBadPointsOrErrorsOrGoodPoints)
{
  const auto boundsOf = [this](const std::vector<double>& y, const char* errors)
  {
    setTable(y, std::vector<double>(y.size(), 1.0));
    item->SelectErrorArray(errors);
    item->Update();
    std::vector<double> bounds{7, 7, 7, 7};
    item->CalculateBounds(bounds.data());
    return bounds;
  };
  const std::vector<double> untouched{7, 7, 7, 7};
  double unused[4] = {7, 7, 7, 7};
  item->CalculateBounds(unused);
  EXPECT_EQ(unused[0], 7) << "no points at all";
  EXPECT_EQ(boundsOf({1, NaN}, "y"), untouched) << "no error column";
  EXPECT_EQ(boundsOf({1, 2}, "error"), untouched) << "no bad point";
  EXPECT_EQ(boundsOf({NaN, NaN}, "error"), untouched) << "no good point";
  EXPECT_NE(boundsOf({1, NaN}, "error"), untouched);
}

TEST_F(ErrorPoints, LeavesTheChartsBoundsToTheBase)
{
  setTable({10, 20}, {5, 5});
  item->SelectErrorArray("error");
  item->Update();
  double bounds[4] = {};
  item->GetBounds(bounds);
  EXPECT_EQ(bounds[2], 10);
  EXPECT_EQ(bounds[3], 20);
}

TEST_F(ErrorPoints, ReportsThatLogScalesAreNotSupported)
{
  vtkNew<vtkPlotErrorPoints> points;
  {
    const ErrorLog errors(points);
    points->CalculateLogSeries();
    EXPECT_EQ(onlyMessage(errors),
              expectedMessage(points, 157, "Log scale not yet supported for vtkPlotErrorPoints"));
    EXPECT_EQ(vtkOutput.text(), "");
  }
  points->CalculateLogSeries();
  EXPECT_NE(vtkOutput.text().find("Log scale not yet supported for vtkPlotErrorPoints"),
            std::string::npos);
}

TEST_F(ErrorPoints, KeepsToTheConventionsOfVtk)
{
  expectConventionsOfVtk<vtkPlotErrorPoints>("vtkPlotErrorPoints");
  EXPECT_EQ(vtkNew<vtkPlotErrorPoints>()->GetErrorArrayName(), "");
}
