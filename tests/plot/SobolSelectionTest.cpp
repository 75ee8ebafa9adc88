#include "external/Distribution.h"
#include "plot/ContainerAccess.h"
#include "vtk/RowSelections.h"

#include <vtkContextMouseEvent.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "SobolFixture.h"

namespace
{

class SobolSelection : public SobolFixture
{
protected:
  SobolSelection()
  {
    SampleRuns::load(container, SampleRuns::runs(30, 4));
    container.redraw();
    container.getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection({1, 90}));
    container.getMetaData()->blockSignals(true);
    container.setPlotStyle(reservedStyle1);
    container.setSobolPostprocessResult(&result, true, false, 0, 0);
    scene.render(container);
  }

  vtkChartXY* chart() { return container.getChartXY(); }

  /// Drags with the right button from one corner of the chart to the other.
  void drag()
  {
    vtkContextMouseEvent mouse;
    mouse.SetInteractor(nullptr);
    mouse.SetButton(vtkContextMouseEvent::RIGHT_BUTTON);
    mouse.SetPos(vtkVector2f(1, 1));
    chart()->MouseButtonPressEvent(mouse);
    mouse.SetPos(vtkVector2f(600, 400));
    chart()->MouseMoveEvent(mouse);
    chart()->MouseButtonReleaseEvent(mouse);
  }

  SobolPostProcessResult result = everyKind();
};

TEST_F(SobolSelection, OfAnEarlierTableIsLeftAlone)
{
  EXPECT_EQ(SampleRuns::selectedRows(container), std::set<vtkIdType>({1, 90}));
  EXPECT_EQ(chart()->GetPlot(0)->GetSelection(), nullptr);
  container.redraw();
  EXPECT_EQ(SampleRuns::selectedRows(container), std::set<vtkIdType>({1, 90}));
}

TEST_F(SobolSelection, IsNoneThatTheMouseMakes)
{
  ASSERT_FALSE(container.getMetaData()->parameterColumns.empty());
  const vtkSmartPointer<vtkChartXY> before = chart();
  const std::string title = before->GetTitle();
  const unsigned long drawings = stateOf(container).drawings;
  drag();
  EXPECT_EQ(chart(), before);
  EXPECT_EQ(std::string(before->GetTitle()), title);
  EXPECT_EQ(stateOf(container).drawings, drawings);
  EXPECT_EQ(SampleRuns::selectedRows(container), std::set<vtkIdType>({1, 90}));
}

TEST_F(SobolSelection, OfAProgramIsKeptWithoutAReaction)
{
  ASSERT_FALSE(container.getMetaData()->parameterColumns.empty());
  const vtkSmartPointer<vtkChartXY> before = chart();
  const std::string title = before->GetTitle();
  const unsigned long drawings = stateOf(container).drawings;
  container.getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection({2, 70}));
  container.annotationUpdate();
  EXPECT_EQ(SampleRuns::selectedRows(container), std::set<vtkIdType>({2, 70}));
  EXPECT_EQ(stateOf(container).drawings, drawings);
  EXPECT_EQ(chart(), before);
  EXPECT_EQ(std::string(before->GetTitle()), title);
}

TEST_F(SobolSelection, OfAProgramLeavesADistributionAlone)
{
  UniformDistribution uniform(0.0, 1.0);
  container.setDistribution(&uniform);
  const vtkSmartPointer<vtkChartXY> before = chart();
  const unsigned long drawings = stateOf(container).drawings;
  container.getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection({2, 70}));
  EXPECT_EQ(SampleRuns::selectedRows(container), std::set<vtkIdType>({2, 70}));
  EXPECT_EQ(stateOf(container).drawings, drawings);
  EXPECT_FALSE(before->GetInteractive());
}

TEST_F(SobolSelection, ComparesRunsAgainOnceTheyAreTheTable)
{
  SampleRuns::load(container, SampleRuns::runs(30, 4));
  container.getMetaData()->setPlotStyle(selectionCdfPlot);
  container.setScene(scene.scene());
  container.getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection({2, 70}));
  EXPECT_EQ(container.getDerivedTables().size(), 8U);
}

} // namespace
