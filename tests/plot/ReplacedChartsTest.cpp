#include "support/PlotFixture.h"

#include <vtkCommand.h>
#include <vtkNew.h>
#include <vtkWeakPointer.h>

#include <gtest/gtest.h>

#include <QApplication>

#include <functional>
#include <memory>

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
    drawStyle(style);
    scene.render(container);
    ASSERT_EQ(chart(), nullptr);
    EXPECT_NE(dropped, nullptr);
    QApplication::processEvents();
    QApplication::processEvents();
    EXPECT_EQ(dropped, nullptr);
  }
}

/// Draws another style from inside the chart's own event, or ends the container.
class Intruder : public vtkCommand
{
public:
  static Intruder* New() { return new Intruder; }
  void Execute(vtkObject*, unsigned long, void*) override { act(); }
  std::function<void()> act;
};

TEST_F(ReplacedCharts, SurviveARedrawFromTheirOwnHandler)
{
  for (int style = 0; style <= 10; ++style)
  {
    drawStyle(0);
    vtkNew<Intruder> intruder;
    intruder->act = [&] { drawStyle(style); };
    vtkChartXY* bare = chart();
    bare->AddObserver(vtkCommand::LeftButtonPressEvent, intruder);
    bare->InvokeEvent(vtkCommand::LeftButtonPressEvent);
    bare->GetNumberOfPlots();
    bare->RemoveObserver(intruder);
    QApplication::processEvents();
    scene.render(container);
  }
}

TEST(SelectionHandler, MayEndTheContainer)
{
  PlotScene scene;
  auto container = std::make_unique<PlotContainer>(nullptr);
  container->setPlotData(plainTable());
  container->setScene(scene.scene());
  container->redraw();
  const vtkSmartPointer<vtkAnnotationLink> link = container->getAnnotationLink();
  vtkNew<Intruder> intruder;
  intruder->act = [&] { container.reset(); };
  link->AddObserver(vtkCommand::AnnotationChangedEvent, intruder, 1.0F);
  link->InvokeEvent(vtkCommand::AnnotationChangedEvent);
  EXPECT_EQ(container, nullptr);
}

} // namespace
