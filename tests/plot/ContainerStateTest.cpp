#include "plot/ContainerAccess.h"
#include "plot/vtkSelectionUpdateCallback.h"
#include "plot/vtkShiftScaleCallback.h"
#include "support/CapturedOutput.h"
#include "support/PlotFixture.h"

#include <vtkCommand.h>
#include <vtkPlotPoints.h>

#include <gtest/gtest.h>

#include <QPointer>

#include <memory>

namespace
{

class DrawnContainer : public PlotFixture
{
};

TEST(NewContainer, HasEverythingThatIsEverDrawnInto)
{
  PlotContainer container(nullptr);
  const Talmesh::plot::PlotState& state = stateOf(container);
  ASSERT_NE(state.table, nullptr);
  EXPECT_EQ(state.table->GetNumberOfColumns(), 0);
  EXPECT_NE(state.scatterPlotMatrix, nullptr);
  EXPECT_NE(state.chartMatrix, nullptr);
  EXPECT_NE(state.chartXYZ, nullptr);
  EXPECT_NE(state.parallelCoordinates, nullptr);
  EXPECT_NE(state.extractSelectedRows, nullptr);
  EXPECT_NE(state.annotationLink, nullptr);
  ASSERT_NE(state.chartXY, nullptr);
  EXPECT_EQ(state.currentChart, state.chartXY);
  EXPECT_EQ(container.getItem(), state.chartXY);
  EXPECT_EQ(state.chartXY->GetAnnotationLink(), state.annotationLink);
  ASSERT_EQ(state.chartXY->GetNumberOfPlots(), 1);
  EXPECT_STREQ(state.chartXY->GetPlot(0)->GetClassName(), "vtkPlotPoints");
}

TEST(NewContainer, HasNoData)
{
  PlotContainer container(nullptr);
  const Talmesh::plot::PlotState& state = stateOf(container);
  EXPECT_TRUE(state.derivedTables.empty());
  EXPECT_TRUE(state.columnItems.empty());
  EXPECT_TRUE(state.parameterBounds.empty());
  EXPECT_TRUE(state.coordinateWindows.empty());
  EXPECT_EQ(state.coordinateWindows.max_load_factor(), 1.0F);
  EXPECT_TRUE(state.ksResults.empty());
  EXPECT_EQ(state.decorationTable, nullptr);
  EXPECT_EQ(state.clusterMembership, nullptr);
  EXPECT_EQ(state.pointColors, nullptr);
  EXPECT_EQ(state.quartileTable, nullptr);
  EXPECT_EQ(state.xTickLabels, nullptr);
  EXPECT_EQ(state.xTickPositions, nullptr);
  EXPECT_EQ(state.linePlotTable, nullptr);
  EXPECT_FALSE(state.showDecorations);
  EXPECT_FALSE(state.selectionUpdatePending);
  EXPECT_FALSE(state.useIndexForXSeries);
}

TEST(NewContainer, OwnsItsSettings)
{
  auto container = std::make_unique<PlotContainer>(nullptr);
  const QPointer<PlotMetaData> settings = container->getMetaData();
  ASSERT_NE(settings, nullptr);
  EXPECT_EQ(settings->parent(), container.get());
  EXPECT_EQ(settings->getPlotStyle(), xyPlot);
  container.reset();
  EXPECT_EQ(settings, nullptr);
}

TEST(NewContainer, BelongsToItsParent)
{
  auto parent = std::make_unique<QObject>();
  const QPointer<PlotContainer> container = new PlotContainer(parent.get());
  EXPECT_EQ(container->parent(), parent.get());
  parent.reset();
  EXPECT_EQ(container, nullptr);
}

TEST(NewContainer, ListensToItsSelectionAndNotYetToItsChart)
{
  PlotContainer container(nullptr);
  const Talmesh::plot::PlotState& state = stateOf(container);
  ASSERT_NE(state.selectionUpdateCallback, nullptr);
  ASSERT_NE(state.shiftScaleCallback, nullptr);
  EXPECT_EQ(state.selectionUpdateCallback->Container, &container);
  EXPECT_EQ(state.shiftScaleCallback->Container, &container);
  EXPECT_TRUE(state.annotationLink->HasObserver(vtkCommand::AnnotationChangedEvent,
                                                state.selectionUpdateCallback));
  EXPECT_FALSE(state.chartXY->HasObserver(vtkCommand::InteractionEvent, state.shiftScaleCallback));
}

TEST_F(DrawnContainer, ListensToItsChartInStyleZeroAlone)
{
  const auto& callback = stateOf(container).shiftScaleCallback;
  EXPECT_TRUE(chart()->HasObserver(vtkCommand::InteractionEvent, callback));
  container.redraw();
  chart()->RemoveObservers(vtkCommand::InteractionEvent, callback);
  EXPECT_FALSE(chart()->HasObserver(vtkCommand::InteractionEvent));
  container.redraw();
  drawStyle(1);
  EXPECT_FALSE(chart()->HasObserver(vtkCommand::InteractionEvent, callback));
}

TEST_F(DrawnContainer, RemovesForeignObserversOfTheChartToo)
{
  vtkNew<vtkShiftScaleCallback> foreign;
  chart()->AddObserver(vtkCommand::InteractionEvent, foreign);
  container.redraw();
  EXPECT_FALSE(chart()->HasObserver(vtkCommand::InteractionEvent, foreign));
}

TEST_F(DrawnContainer, MovesItsChartToAnotherScene)
{
  scene.render(container);
  ASSERT_EQ(scene.scene()->GetNumberOfItems(), 1U);
  PlotScene other;
  container.setScene(other.scene());
  EXPECT_EQ(scene.scene()->GetNumberOfItems(), 0U);
  EXPECT_EQ(other.scene()->GetNumberOfItems(), 0U) << "only the widget adds items";
  EXPECT_EQ(container.getItem()->GetScene(), other.scene());
  drawStyle(3);
  EXPECT_EQ(container.getItem()->GetScene(), other.scene());
  other.render(container);
}

TEST_F(DrawnContainer, MovesNoSceneWithoutAChart)
{
  stateOf(container).currentChart = nullptr;
  PlotScene other;
  container.setScene(other.scene());
  EXPECT_EQ(container.getItem(), nullptr);
}

TEST_F(DrawnContainer, IsDrawnNowhereInNoScene)
{
  container.setScene(nullptr);
  const CapturedOutput output(std::cout);
  container.redraw();
  EXPECT_EQ(output.text(), "void PlotContainer::redraw(): invalid scene\n");
}

TEST_F(DrawnContainer, StoresTheIndexFlagAndMarksTheScene)
{
  EXPECT_FALSE(container.getUseIndexForXSeries());
  scene.scene()->SetDirty(false);
  newDrawings();
  container.setUseIndexForXSeries(true);
  EXPECT_TRUE(container.getUseIndexForXSeries());
  EXPECT_TRUE(scene.scene()->GetDirty());
  EXPECT_EQ(newDrawings(), 0U);
  container.setUseIndexForXSeries(false);
  EXPECT_FALSE(container.getUseIndexForXSeries());
}

} // namespace
