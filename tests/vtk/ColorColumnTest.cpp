#include "vtk/vtkPlotErrorPoints.h"
#include "vtk/vtkPlotInvisiblePoints.h"
#include "vtk/vtkPlotStepLine.h"

#include <vtkDoubleArray.h>
#include <vtkUnsignedCharArray.h>

#include <gtest/gtest.h>

#include "VtkTestSupport.h"

/// The plot items when the column that colours their points goes away or does not reach far enough.
namespace
{
template <class Item>
class ExposedColors : public Exposed<Item>
{
public:
  using Item::Colors;
};

template <class Item>
class ColorColumn : public ::testing::Test
{
protected:
  void SetUp() override
  {
    item->SetInputData(table, "x", "y");
    item->SelectColorArray("color");
    item->ScalarVisibilityOn();
    item->Update();
  }

  void change(const char* column)
  {
    table->GetColumnByName(column)->Modified();
    table->Modified();
    item->Update();
  }

  vtkSmartPointer<vtkTable> table =
      makeTable({{"x", {1, 2}}, {"y", {0.25, 0.75}}, {"color", {3, 4}}});
  vtkSmartPointer<ExposedColors<Item>> item = makeExposed<ExposedColors<Item>>();
  RecordingPainter recording;
};

// Line sets have no colours of points.
using Items = ::testing::Types<vtkPlotStepLine, vtkPlotErrorPoints, vtkPlotInvisiblePoints>;
TYPED_TEST_SUITE(ColorColumn, Items);
} // namespace

TYPED_TEST(ColorColumn, MayGoWhileTheItemIsShownAndComeBack)
{
  ASSERT_NE(this->item->Colors, nullptr);
  this->table->RemoveColumnByName("color");
  for (int update = 0; update < 3; ++update)
  {
    this->change("y");
    EXPECT_EQ(this->item->Colors, nullptr);
    EXPECT_TRUE(this->item->Paint(this->recording.painter));
  }
  EXPECT_TRUE(this->item->GetScalarVisibility()) << "the item's own setting stays";
  this->table->AddColumn(makeColumn<vtkDoubleArray>("color", {5, 6}));
  this->change("color");
  EXPECT_NE(this->item->Colors, nullptr);
}

TYPED_TEST(ColorColumn, ColorsNothingWithFewerRowsThanThePoints)
{
  this->table->GetColumnByName("color")->SetNumberOfTuples(1);
  this->change("color");
  EXPECT_EQ(this->item->Colors, nullptr);
}

TYPED_TEST(ColorColumn, LeavesNoColorsWhenItsNameIsDeselected)
{
  this->item->SelectColorArray("no such column");
  this->item->Update();
  EXPECT_EQ(this->item->Colors, nullptr);
}
