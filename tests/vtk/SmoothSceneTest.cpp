#include "vtk/SmoothScene.h"

#include "support/SampleTables.h"
#include "vtk/RowSelections.h"
#include "vtk/vtkPlotLineSet.h"
#include "vtk/vtkPlotSafeLine.h"
#include "vtk/vtkPlotStepLine.h"
#include "vtk/vtkSelectableChartXY.h"

#include <vtkAnnotationLink.h>
#include <vtkChartMatrix.h>
#include <vtkChartXYZ.h>
#include <vtkContextScene.h>
#include <vtkIdTypeArray.h>
#include <vtkNew.h>
#include <vtkPen.h>
#include <vtkPlotBar.h>
#include <vtkRenderingCoreEnums.h>
#include <vtkSmartPointer.h>
#include <vtkTable.h>

#include <gtest/gtest.h>

namespace
{

class SmoothScene : public ::testing::Test
{
protected:
  SmoothScene() { scene->AddItem(chart); }

  template <class Item>
  vtkSmartPointer<Item> add()
  {
    auto plot = vtkSmartPointer<Item>::New();
    plot->SetInputData(plainTable(), "a", "b");
    chart->AddPlot(plot);
    return plot;
  }

  bool isSmooth() { return Talmesh::isSmoothOnScreen(*scene); }

  vtkNew<vtkContextScene> scene;
  vtkNew<vtkSelectableChartXY> chart;
};

TEST_F(SmoothScene, IsOneOfAxesAndOfLinesThatGoAsPictures)
{
  EXPECT_TRUE(isSmooth());
  add<vtkPlotLineSet>();
  add<vtkPlotSafeLine>();
  add<vtkPlotStepLine>();
  EXPECT_TRUE(isSmooth());
}

TEST_F(SmoothScene, IsNoneWithTheRoundMarkersOfALegend)
{
  add<vtkPlotLineSet>();
  chart->SetShowLegend(true);
  EXPECT_FALSE(isSmooth());
  chart->SetShowLegend(false);
  EXPECT_TRUE(isSmooth());
}

TEST_F(SmoothScene, IsNoneWithADashedLine)
{
  const auto dash = [this](vtkPlot* plot)
  {
    EXPECT_TRUE(isSmooth());
    plot->GetPen()->SetLineType(vtkPen::DASH_LINE);
    EXPECT_FALSE(isSmooth());
    plot->SetVisible(false);
    EXPECT_TRUE(isSmooth());
  };
  dash(add<vtkPlotLineSet>());
  dash(add<vtkPlotSafeLine>());
  dash(add<vtkPlotStepLine>());
}

TEST_F(SmoothScene, IsNoneWithALineThatWillMarkWhatWasSelectedElsewhere)
{
  const vtkNew<vtkAnnotationLink> link;
  chart->SetAnnotationLink(link);
  const auto line = add<vtkPlotSafeLine>();
  EXPECT_TRUE(isSmooth());
  link->SetCurrentSelection(Talmesh::makeRowSelection({1}));
  EXPECT_FALSE(isSmooth());
  line->SetSelectable(false);
  EXPECT_TRUE(isSmooth());
  line->SetSelectable(true);
  link->SetCurrentSelection(Talmesh::makeRowSelection({}));
  EXPECT_TRUE(isSmooth());
}

TEST_F(SmoothScene, IsNoneWithALineThatHasMarkers)
{
  const auto line = add<vtkPlotSafeLine>();
  line->SetMarkerStyle(VTK_MARKER_CIRCLE);
  EXPECT_FALSE(isSmooth());
  line->SetMarkerStyle(VTK_MARKER_NONE);
  EXPECT_TRUE(isSmooth());
  vtkNew<vtkIdTypeArray> rows;
  rows->InsertNextValue(2);
  line->SetSelection(rows);
  EXPECT_FALSE(isSmooth()) << "of selected points";
}

TEST_F(SmoothScene, IsNoneWithPlotsOfOthersThatShowSomething)
{
  vtkPlot* points = chart->AddPlot(vtkChart::POINTS, 0);
  EXPECT_TRUE(isSmooth()) << "without a table";
  points->SetInputData(plainTable(), "a", "b");
  EXPECT_FALSE(isSmooth());
  points->SetVisible(false);
  EXPECT_TRUE(isSmooth());
  add<vtkPlotBar>();
  EXPECT_FALSE(isSmooth());
}

TEST_F(SmoothScene, LooksIntoAllChartsOfAPage)
{
  scene->ClearItems();
  vtkNew<vtkChartMatrix> page;
  page->SetSize(vtkVector2i(2, 1));
  scene->AddItem(page);
  vtkSelectableChartXY::PlaceIn(page, vtkVector2i(0, 0));
  auto* last = vtkSelectableChartXY::PlaceIn(page, vtkVector2i(1, 0));
  EXPECT_TRUE(isSmooth());
  last->AddPlot(vtkChart::POINTS, 0)->SetInputData(plainTable(), "a", "b");
  EXPECT_FALSE(isSmooth());
}

TEST_F(SmoothScene, IsNoneWherePolygonsAreDrawn)
{
  chart->SetActionToButton(vtkChart::SELECT_POLYGON, 1);
  EXPECT_FALSE(isSmooth());
}

TEST_F(SmoothScene, IsNoneInThreeDimensions)
{
  vtkNew<vtkChartXYZ> deep;
  scene->AddItem(deep);
  EXPECT_FALSE(isSmooth());
}

} // namespace
