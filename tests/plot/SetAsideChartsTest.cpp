#include "support/PlotFixture.h"
#include "support/Reaction.h"
#include "vtk/HandlerScope.h"

#include <vtkCommand.h>
#include <vtkContextMouseEvent.h>
#include <vtkWeakPointer.h>

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <algorithm>
#include <vector>

namespace
{

/// A program that draws without returning to the event loop.
class SetAsideCharts : public PlotFixture
{
protected:
  long alive() const
  {
    return std::count_if(charts.begin(), charts.end(),
                         [](const vtkWeakPointer<vtkAbstractContextItem>& chart)
                         { return chart != nullptr; });
  }

  void drawOftenIn(int style)
  {
    for (int i = 0; i < 6; ++i)
    {
      drawStyle(0);
      charts.emplace_back(chart());
      drawStyle(style);
      scene.render(container);
      if (auto* matrix = vtkChartMatrix::SafeDownCast(container.getItem()))
        charts.emplace_back(matrix->GetChart(vtkVector2i(0, 0)));
    }
    drawStyle(0);
    container.redraw();
  }

  std::vector<vtkWeakPointer<vtkAbstractContextItem>> charts;
};

TEST_F(SetAsideCharts, AreFreedByTheNextDrawing)
{
  // The matrix itself keeps its last cells.
  drawOftenIn(scatterPlotMatrix);
  EXPECT_LE(alive(), 1);
  charts.clear();
  drawOftenIn(xyzPlot);
  EXPECT_EQ(alive(), 0);
}

TEST_F(SetAsideCharts, AreFreedByTheNextSensitivities)
{
  settings().blockSignals(true);
  for (int i = 0; i < 6; ++i)
  {
    settings().setPlotStyle(reservedStyle2);
    container.setupStackedSobol(false);
    charts.emplace_back(chart());
  }
  EXPECT_LE(alive(), 2);
}

TEST_F(SetAsideCharts, LiveOnWhileAHandlerRuns)
{
  const Talmesh::HandlerScope running;
  drawOftenIn(xyzPlot);
  EXPECT_EQ(alive(), 6);
}

TEST_F(SetAsideCharts, OutliveAnEventLoopWithinAHandler)
{
  {
    const Talmesh::HandlerScope running;
    drawOftenIn(xyzPlot);
    QCoreApplication::processEvents();
    EXPECT_EQ(alive(), 6);
  }
  QCoreApplication::processEvents();
  container.redraw();
  EXPECT_EQ(alive(), 0);
}

/// Moves the mouse to a part of the chart's width and height.
vtkContextMouseEvent mouseAt(vtkChartXY* chart, float part)
{
  vtkContextMouseEvent mouse;
  mouse.SetInteractor(nullptr);
  mouse.SetButton(vtkContextMouseEvent::RIGHT_BUTTON);
  const int* low = chart->GetPoint1();
  const int* high = chart->GetPoint2();
  const vtkVector2f position(static_cast<float>(low[0]) + part * float(high[0] - low[0]),
                             static_cast<float>(low[1]) + part * float(high[1] - low[1]));
  mouse.SetPos(position);
  mouse.SetScenePos(position);
  return mouse;
}

TEST_F(SetAsideCharts, OutliveTheDrawingsOfTheirOwnMouseHandler)
{
  scene.render(container);
  vtkChartXY* bare = chart();
  const vtkWeakPointer<vtkChartXY> watched = bare;
  int reactions = 0;
  vtkNew<Reaction> reaction;
  reaction->react = [&]
  {
    ++reactions;
    for (const int style : {4, 0, 4})
      drawStyle(style);
    EXPECT_NE(watched, nullptr);
  };
  const vtkSmartPointer<vtkAnnotationLink> link = container.getAnnotationLink();
  link->AddObserver(vtkCommand::AnnotationChangedEvent, reaction);
  bare->MouseButtonPressEvent(mouseAt(bare, 0.0F));
  bare->MouseMoveEvent(mouseAt(bare, 0.9F));
  bare->MouseButtonReleaseEvent(mouseAt(bare, 1.0F));
  link->RemoveObserver(reaction);
  EXPECT_EQ(reactions, 1);
  // The scene still has it as its item.
  scene.render(container);
  container.redraw();
  EXPECT_EQ(watched, nullptr);
}

/// Counts charts, by what they say when they go.
class CountedCharts
{
public:
  CountedCharts()
  {
    reaction->react = [this] { ++gone; };
  }

  void watch(vtkObject* chart)
  {
    if (chart->HasObserver(vtkCommand::DeleteEvent, reaction))
      return;
    chart->AddObserver(vtkCommand::DeleteEvent, reaction);
    ++seen;
  }

  int seen = 0;
  int gone = 0;

private:
  vtkNew<Reaction> reaction;
};

TEST(ChartsOfDeadContainers, AreFreedWithoutAnEventLoop)
{
  PlotScene scene;
  CountedCharts charts;
  for (int i = 0; i < 60; ++i)
  {
    PlotContainer container(nullptr);
    container.setPlotData(plainTable());
    container.setScene(scene.scene());
    for (const plotStyles style : {xyPlot, xyzPlot, xyPlot, multiPlot, scatterPlotMatrix})
    {
      container.setPlotStyle(style);
      container.redraw();
      charts.watch(container.getItem());
      if (container.getChartXY())
        charts.watch(container.getChartXY());
    }
  }
  scene.scene()->ClearItems();
  EXPECT_GE(charts.seen, 60 * 4);
  EXPECT_EQ(charts.gone, charts.seen);
}

TEST(ChartsOfDeadContainers, LiveOnUntilTheHandlerEndsAndAnotherDraws)
{
  PlotScene scene;
  PlotContainer other(nullptr);
  other.setPlotData(plainTable());
  other.setScene(scene.scene());
  vtkWeakPointer<vtkChartXY> chart;
  {
    const Talmesh::HandlerScope running;
    PlotContainer container(nullptr);
    chart = container.getChartXY();
  }
  EXPECT_NE(chart, nullptr);
  other.redraw();
  EXPECT_EQ(chart, nullptr);
}

} // namespace
