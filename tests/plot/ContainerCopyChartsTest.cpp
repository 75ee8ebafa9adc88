#include "plot/ContainerAccess.h"
#include "plot/vtkSelectionUpdateCallback.h"
#include "plot/vtkShiftScaleCallback.h"
#include "support/PlotStyleCount.h"

#include <vtkCommand.h>

#include <utility>
#include <vector>

#include "ContainerCopyFixture.h"

namespace
{

using ContainerCopyCharts = ContainerCopyFixture;

TEST_F(ContainerCopyCharts, HasChartsOfItsOwnAndNoParallelCoordinates)
{
  const auto copy = copied();
  const auto& own = stateOf(*copy);
  const auto& others = stateOf(container);
  for (const auto& [mine, theirs] : std::vector<std::pair<vtkObject*, vtkObject*>>{
           {own.chartXY, others.chartXY},
           {own.scatterPlotMatrix, others.scatterPlotMatrix},
           {own.chartMatrix, others.chartMatrix},
           {own.chartXYZ, others.chartXYZ},
           {own.extractSelectedRows, others.extractSelectedRows},
           {own.annotationLink, others.annotationLink}})
  {
    EXPECT_NE(mine, nullptr);
    EXPECT_NE(mine, theirs);
  }
  EXPECT_EQ(own.parallelCoordinates, nullptr);
  EXPECT_EQ(own.currentChart, own.chartXY);
  EXPECT_EQ(own.chartXY->GetScene(), nullptr);
  EXPECT_EQ(own.chartXY->GetNumberOfPlots(), 1);
  EXPECT_EQ(own.chartXY->GetAnnotationLink(), own.annotationLink);
  EXPECT_EQ(others.chartXY->GetAnnotationLink(), others.annotationLink);
}

TEST_F(ContainerCopyCharts, HasCallbacksThatPointAtIt)
{
  const auto copy = copied();
  EXPECT_EQ(stateOf(*copy).selectionUpdateCallback->Container, copy.get());
  EXPECT_EQ(stateOf(*copy).shiftScaleCallback->Container, copy.get());
  EXPECT_EQ(stateOf(container).selectionUpdateCallback->Container, &container);
  EXPECT_TRUE(copy->getAnnotationLink()->HasObserver(vtkCommand::AnnotationChangedEvent,
                                                     stateOf(*copy).selectionUpdateCallback));
  EXPECT_FALSE(container.getAnnotationLink()->HasObserver(vtkCommand::AnnotationChangedEvent,
                                                          stateOf(*copy).selectionUpdateCallback));
}

TEST_F(ContainerCopyCharts, DrawsNoParallelCoordinatesAndSaysSoOnce)
{
  const auto copy = copied();
  PlotScene other;
  copy->setScene(other.scene());
  copy->redraw();
  const CapturedOutput output(std::cout);
  const CapturedOutput errors(std::cerr);
  copy->setPlotStyle(parallelCoordinates);
  EXPECT_EQ(output.text() + errors.text(),
            "Warning void Talmesh::plot::drawParallelCoordinates(PlotState&, vtkContextScene*): a "
            "copied container has no parallel-coordinates chart\n");
  EXPECT_FALSE(copy->getMetaData()->signalsBlocked());
  other.render(*copy);
  copy->setPlotStyle(xyPlot);
  EXPECT_EQ(copy->getItem(), copy->getChartXY());
  other.render(*copy);
}

TEST_F(ContainerCopyCharts, CanBeTakenInEveryStyleAndOfACopy)
{
  for (int style = 0; style <= plotStyleCount; ++style)
  {
    drawStyle(style);
    std::unique_ptr<PlotContainer> first;
    std::unique_ptr<PlotContainer> second;
    {
      const CapturedOutput output(std::cout);
      first = std::make_unique<PlotContainer>(container);
      second = std::make_unique<PlotContainer>(*first);
    }
    first.reset();
    ASSERT_NE(second->getChartXY(), nullptr);
    EXPECT_EQ(second->getMetaData()->getPlotStyle(), style);
    PlotScene other;
    second->setScene(other.scene());
    for (int own = 0; own <= plotStyleCount; ++own)
    {
      const CapturedOutput errors(std::cerr);
      second->setPlotStyle(static_cast<plotStyles>(own));
      second->redraw();
      other.render(*second);
    }
    EXPECT_EQ(settings().getPlotStyle(), style);
  }
}

} // namespace
