#include "plot/ContainerAccess.h"
#include "support/PlotFixture.h"
#include "support/PlotStyleCount.h"
#include "support/Reaction.h"
#include "support/SampleRuns.h"
#include "support/SoundPicture.h"
#include "support/VtkErrors.h"
#include "vtk/HandlerScope.h"
#include "vtk/RowSelections.h"

#include <vtkCommand.h>
#include <vtkNew.h>
#include <vtkWeakPointer.h>

#include <gtest/gtest.h>

#include <QApplication>

#include <memory>
#include <vector>

namespace
{

class ReplacedCharts : public PlotFixture
{
};

TEST_F(ReplacedCharts, LiveUntilControlReturnsToTheEventLoop)
{
  for (const int style : {3, 4})
  {
    drawStyle(0);
    const vtkWeakPointer<vtkChartXY> dropped = chart();
    storeStyle(style);
    settings().blockSignals(false);
    container.redraw();
    scene.render(container);
    ASSERT_EQ(chart(), nullptr);
    EXPECT_NE(dropped, nullptr);
    QApplication::processEvents();
    QApplication::processEvents();
    EXPECT_EQ(dropped, nullptr);
  }
}

TEST_F(ReplacedCharts, SurviveARedrawFromTheirOwnHandler)
{
  const VtkErrors errors;
  for (int style = 0; style <= plotStyleCount; ++style)
  {
    SCOPED_TRACE(style);
    drawStyle(0);
    vtkNew<Reaction> intruder;
    intruder->react = [&]
    {
      const Talmesh::HandlerScope running;
      drawStyle(style);
    };
    vtkChartXY* bare = chart();
    newDrawings();
    const unsigned long tag = bare->AddObserver(vtkCommand::LeftButtonPressEvent, intruder);
    bare->InvokeEvent(vtkCommand::LeftButtonPressEvent);
    EXPECT_GE(newDrawings(), 1U);
    // What the handler does at its end.
    EXPECT_GE(bare->GetNumberOfPlots(), 0);
    bare->RemoveObserver(tag);
    QApplication::processEvents();
    expectSoundPicture(scene, container);
  }
  EXPECT_EQ(errors.text(), "");
}

/// A plot of runs with parameters, whose pages have charts in every cell.
class ReplacedChartsOfRuns : public PlotFixture, public ::testing::WithParamInterface<int>
{
protected:
  ReplacedChartsOfRuns()
  {
    SampleRuns::load(container, SampleRuns::runs(4, 3));
    settings().xColumns = {SampleRuns::timeColumn};
    settings().yColumns = {SampleRuns::complexColumn, SampleRuns::timeColumn,
                           SampleRuns::firstParameterColumn};
    settings().setLimitColumVisibility(true);
  }

  /// The charts of the style that take the mouse.
  std::vector<vtkSmartPointer<vtkAbstractContextItem>> chartsOf(int style)
  {
    drawStyle(style);
    scene.render(container);
    const Talmesh::plot::PlotState& state = stateOf(container);
    if (style == scatterPlotMatrix)
      return {state.scatterPlotMatrix, state.scatterPlotMatrix->GetMainChart(),
              state.scatterPlotMatrix->GetChart(vtkVector2i(0, 0))};
    if (style == parallelCoordinates)
      return {state.parallelCoordinates};
    return {state.chartMatrix, chart(), state.chartMatrix->GetChart(vtkVector2i(0, 0))};
  }
};

INSTANTIATE_TEST_SUITE_P(Styles, ReplacedChartsOfRuns,
                         ::testing::Values(scatterPlotMatrix, multiPlot, selectionCdfPlot,
                                           parallelCoordinates));

TEST_P(ReplacedChartsOfRuns, SurviveARedrawFromTheirOwnHandler)
{
  const std::size_t charts = chartsOf(GetParam()).size();
  for (int style = 0; style <= plotStyleCount; ++style)
  {
    for (std::size_t i = 0; i < charts; ++i)
    {
      SCOPED_TRACE(::testing::Message() << "style " << style << ", chart " << i);
      // Bare, as the handler of a chart knows itself.
      vtkAbstractContextItem* bare = chartsOf(GetParam())[i];
      ASSERT_NE(bare, nullptr);
      vtkNew<Reaction> intruder;
      int calls = 0;
      intruder->react = [&]
      {
        const Talmesh::HandlerScope running;
        ++calls;
        drawStyle(style);
      };
      const unsigned long tag = bare->AddObserver(vtkCommand::SelectionChangedEvent, intruder);
      bare->InvokeEvent(vtkCommand::SelectionChangedEvent);
      EXPECT_EQ(calls, 1);
      // What handlers do at their end.
      if (auto* asChart = vtkChart::SafeDownCast(bare))
        asChart->GetNumberOfPlots();
      ASSERT_NE(bare->GetScene(), nullptr);
      bare->GetScene()->SetDirty(true);
      bare->RemoveObserver(tag);
      QApplication::processEvents();
      scene.render(container);
    }
  }
}

TEST_P(ReplacedChartsOfRuns, SurviveASelectionFromTheirOwnHandler)
{
  const std::size_t charts = chartsOf(GetParam()).size();
  for (std::size_t i = 0; i < charts; ++i)
  {
    vtkAbstractContextItem* bare = chartsOf(GetParam())[i];
    vtkNew<Reaction> intruder;
    intruder->react = [&]
    {
      const Talmesh::HandlerScope running;
      const auto row = static_cast<vtkIdType>(i);
      container.getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection({row}));
    };
    const unsigned long tag = bare->AddObserver(vtkCommand::SelectionChangedEvent, intruder);
    bare->InvokeEvent(vtkCommand::SelectionChangedEvent);
    ASSERT_NE(bare->GetScene(), nullptr) << i;
    bare->GetScene()->SetDirty(true);
    bare->RemoveObserver(tag);
    EXPECT_EQ(container.getDerivedTables().size(), 8U) << i;
    scene.render(container);
    QApplication::processEvents();
    scene.render(container);
  }
}

TEST_P(ReplacedChartsOfRuns, SurviveTheEndOfTheContainerInTheirOwnHandler)
{
  auto other = std::make_unique<PlotContainer>(nullptr);
  PlotScene view;
  other->setScene(view.scene());
  SampleRuns::load(*other, SampleRuns::runs(4, 3));
  other->getMetaData()->yColumns = settings().yColumns;
  other->setPlotStyle(static_cast<plotStyles>(GetParam()));
  view.render(*other);
  vtkAbstractContextItem* bare = other->getItem();
  vtkNew<Reaction> intruder;
  intruder->react = [&] { other.reset(); };
  const unsigned long tag = bare->AddObserver(vtkCommand::SelectionChangedEvent, intruder);
  bare->InvokeEvent(vtkCommand::SelectionChangedEvent);
  EXPECT_EQ(other, nullptr);
  ASSERT_NE(bare->GetScene(), nullptr);
  bare->GetScene()->SetDirty(true);
  bare->RemoveObserver(tag);
  QApplication::processEvents();
}

TEST(SelectionHandler, MayEndTheContainer)
{
  PlotScene scene;
  auto container = std::make_unique<PlotContainer>(nullptr);
  container->setPlotData(plainTable());
  container->setScene(scene.scene());
  container->redraw();
  const vtkSmartPointer<vtkAnnotationLink> link = container->getAnnotationLink();
  vtkNew<Reaction> intruder;
  intruder->react = [&] { container.reset(); };
  link->AddObserver(vtkCommand::AnnotationChangedEvent, intruder, 1.0F);
  link->InvokeEvent(vtkCommand::AnnotationChangedEvent);
  EXPECT_EQ(container, nullptr);
}

} // namespace
