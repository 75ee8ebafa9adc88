#include "ErrorPointsFixture.h"

TEST_F(ErrorPoints, SelectsAColumnByName)
{
  item->SelectErrorArray("error");
  EXPECT_EQ(item->GetErrorArrayName(), "") << "without a table";

  setTable({10}, {1});
  auto before = item->GetMTime();
  item->SelectErrorArray("error");
  EXPECT_EQ(item->GetErrorArrayName(), "error");
  EXPECT_GT(item->GetMTime(), before);

  before = item->GetMTime();
  item->SelectErrorArray("error");
  EXPECT_EQ(item->GetMTime(), before) << "the name has not changed";

  item->SelectErrorArray("no such column");
  EXPECT_EQ(item->GetErrorArrayName(), "");
  EXPECT_GT(item->GetMTime(), before);
}

TEST_F(ErrorPoints, SearchesPastColumnsWithoutAName)
{
  setTable({10}, {1});
  vtkNew<vtkFloatArray> nameless;
  nameless->InsertNextValue(1);
  table->AddColumn(nameless);
  item->SelectErrorArray("no such column");
  EXPECT_EQ(item->GetErrorArrayName(), "");
  const auto before = item->GetMTime();
  item->SelectErrorArray(table->GetNumberOfColumns() - 1);
  EXPECT_EQ(item->GetMTime(), before);
}

TEST_F(ErrorPoints, SelectsAColumnByPosition)
{
  item->SelectErrorArray(2);
  EXPECT_EQ(item->GetErrorArrayName(), "") << "without a table";

  setTable({10}, {1});
  vtkNew<vtkStringArray> texts;
  texts->SetName("texts");
  texts->InsertNextValue("text");
  table->AddColumn(texts);
  item->SelectErrorArray(2);
  EXPECT_EQ(item->GetErrorArrayName(), "error");

  const auto before = item->GetMTime();
  for (const vtkIdType column : {-1, 2, 3, 4})
    item->SelectErrorArray(column);
  EXPECT_EQ(item->GetErrorArrayName(), "error");
  EXPECT_EQ(item->GetMTime(), before);

  item->SelectErrorArray(1);
  EXPECT_EQ(item->GetErrorArrayName(), "y");
  EXPECT_GT(item->GetMTime(), before);
}

TEST_F(ErrorPoints, FindsAReplacedColumnOnUpdate)
{
  setTable({10}, {1});
  item->SelectErrorArray("error");
  item->Update();
  table->RemoveColumnByName("error");
  EXPECT_EQ(item->ErrorArray, nullptr) << "the column is gone with its last reference";
  item->Paint(recording.painter);
  EXPECT_TRUE(bars().empty());

  table->AddColumn(makeColumn<vtkFloatArray>("error", {3}));
  item->Update();
  item->Paint(recording.painter);
  EXPECT_EQ(bars(), (std::vector<Points>{{{1, 7}, {1, 13}}}));
}

TEST_F(ErrorPoints, KeepsTheColumnWhenTheNameIsEmptiedButNotBeyondItsLife)
{
  setTable({10}, {1});
  item->SelectErrorArray("error");
  item->Update();
  item->SelectErrorArray("no such column");
  item->Update();
  EXPECT_EQ(item->ErrorArray.Get(), table->GetColumnByName("error"));
  item->Paint(recording.painter);
  EXPECT_EQ(bars().size(), 1u);

  setTable({10}, {1});
  item->Update();
  EXPECT_EQ(item->ErrorArray, nullptr);
}

TEST_F(ErrorPoints, ForgetsAColumnThatTheTableNoLongerHas)
{
  setTable({10}, {1});
  item->SelectErrorArray("error");
  item->Update();
  const vtkSmartPointer<vtkAbstractArray> kept = table->GetColumnByName("error");
  table->RemoveColumnByName("error");
  EXPECT_EQ(item->ErrorArray.Get(), kept.Get());
  item->Update();
  EXPECT_EQ(item->ErrorArray, nullptr);
}

TEST_F(ErrorPoints, ReleasesOneReferenceOfItsColumnAtItsEnd)
{
  setTable({10}, {1});
  auto* column = table->GetColumnByName("error");
  {
    vtkNew<vtkPlotErrorPoints> points;
    points->SetInputData(table, "x", "y");
    points->SelectErrorArray("error");
    points->Update();
    EXPECT_EQ(column->GetReferenceCount(), 1) << "the item holds none";
    column->Register(nullptr);
  }
  EXPECT_EQ(column->GetReferenceCount(), 1);
}

TEST_F(ErrorPoints, ReleasesNothingBeforeItsFirstUpdateOrAfterTheColumnsEnd)
{
  setTable({10}, {1});
  auto* column = table->GetColumnByName("error");
  {
    vtkNew<vtkPlotErrorPoints> points;
    points->SetInputData(table, "x", "y");
    points->SelectErrorArray("error");
  }
  EXPECT_EQ(column->GetReferenceCount(), 1);

  vtkNew<vtkPlotErrorPoints> points;
  points->SetInputData(table, "x", "y");
  points->SelectErrorArray("error");
  points->Update();
  table->RemoveColumnByName("error");
}

TEST_F(ErrorPoints, LeavesTheColumnToTheTableOverAHundredItems)
{
  setTable({10, 20}, {1, 2});
  for (int redraw = 0; redraw < 100; ++redraw)
  {
    const auto points = makeExposed<ExposedErrorPoints>();
    points->SetInputData(table, "x", "y");
    points->SelectErrorArray("error");
    points->Update();
    points->Paint(recording.painter);
    if (redraw % 10 == 9)
      table->AddColumn(makeColumn<vtkFloatArray>("error", {1.0 * redraw, 2.0}));
  }
  EXPECT_EQ(bars().size(), 200u);
  EXPECT_EQ(table->GetColumnByName("error")->GetReferenceCount(), 1);
}
