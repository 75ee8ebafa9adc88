#include "plot/ContainerAccess.h"
#include "plot/vtkSelectionUpdateCallback.h"
#include "plot/vtkShiftScaleCallback.h"
#include "support/LineTables.h"
#include "support/PlotFixture.h"
#include "support/PlotStyleCount.h"
#include "support/RecordingDevice.h"
#include "support/VtkErrors.h"
#include "vtk/RowSelections.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkCommand.h>
#include <vtkContext2D.h>

#include <gtest/gtest.h>

#include <QPointer>

#include <algorithm>
#include <memory>
#include <numeric>

using Talmesh::Complex;
using Talmesh::Parameter;
using Talmesh::TimeOrValue;

namespace
{

/// A container in a scene of the client's, whose parts the client holds and drops in any order.
class SharedParts
{
public:
  enum Part
  {
    Container,
    Scene,
    Link,
    Chart,
    Table,
    PartCount
  };

  explicit SharedParts(int style)
      // These two charts ask their painter for more than a recording one has.
      : paints(style != xyzPlot && style != parallelCoordinates)
      , scene(vtkSmartPointer<vtkContextScene>::New())
      , container(std::make_unique<PlotContainer>(nullptr))
  {
    scene->SetGeometry(640, 480);
    container->setScene(scene);
    container->setLinePlotTable(lineTableOf({{Complex, "A"},
                                             {TimeOrValue, "Time [s]"},
                                             {TimeOrValue, "Run Index"},
                                             {Parameter, "k"},
                                             {Parameter, "q"}},
                                            {{0.0, 1000.0}, {0.0, 1000.0}}, 4, 3),
                                true);
    container->getMetaData()->setPlotStyle(static_cast<plotStyles>(style));
    paint();
    link = container->getAnnotationLink();
    chart = container->getItem();
    table = container->getTable();
  }

  void drop(int part)
  {
    switch (part)
    {
    case Container:
      container.reset();
      break;
    case Scene:
      scene = nullptr;
      break;
    case Link:
      link = nullptr;
      break;
    case Chart:
      chart = nullptr;
      break;
    default:
      table = nullptr;
      break;
    }
  }

  /// Makes what is left do what it does in a living program.
  void use()
  {
    if (link)
    {
      link->SetCurrentSelection(Talmesh::makeRowSelection({1}));
      link->InvokeEvent(vtkCommand::AnnotationChangedEvent);
    }
    if (chart)
    {
      chart->InvokeEvent(vtkCommand::InteractionEvent);
      // VTK's parallel coordinates ask their scene for its age.
      if (chart->GetScene())
        chart->Update();
    }
    if (table)
    {
      EXPECT_EQ(table->GetValue(5, 0).ToDouble(), lineValue(0, 5));
    }
    if (container)
    {
      container->dirty();
      container->setLeftMargin(33);
      if (scene)
        container->redraw();
    }
    if (scene)
      paint();
  }

private:
  /// What a widget's rendering does.
  void paint()
  {
    scene->ClearItems();
    if (container)
      scene->AddItem(container->getItem());
    if (paints)
      scene->Paint(painter.painter);
  }

  bool paints;
  RecordingPainter painter;
  vtkSmartPointer<vtkContextScene> scene;
  std::unique_ptr<PlotContainer> container;
  vtkSmartPointer<vtkAnnotationLink> link;
  vtkSmartPointer<vtkAbstractContextItem> chart;
  vtkSmartPointer<vtkTable> table;
};

class Destruction : public ::testing::TestWithParam<int>
{
};

TEST_P(Destruction, WorksInEveryOrder)
{
  std::vector<int> order(SharedParts::PartCount);
  std::iota(order.begin(), order.end(), 0);
  do
  {
    SharedParts parts(GetParam());
    for (const int part : order)
    {
      parts.drop(part);
      parts.use();
    }
  } while (std::next_permutation(order.begin(), order.end()));
}

INSTANTIATE_TEST_SUITE_P(InEveryStyle, Destruction, ::testing::Range(0, plotStyleCount + 1));

TEST(DestructionAfterARendering, WorksWithTheSceneFirstOrLast)
{
  for (int style = 0; style <= plotStyleCount; ++style)
  {
    for (const bool sceneFirst : {true, false})
    {
      auto scene = std::make_unique<PlotScene>();
      auto container = std::make_unique<PlotContainer>(nullptr);
      container->setPlotData(plainTable());
      container->setScene(scene->scene());
      container->redraw();
      container->setPlotStyle(static_cast<plotStyles>(style));
      scene->render(*container);
      if (sceneFirst)
      {
        scene.reset();
        EXPECT_EQ(container->getItem()->GetScene(), nullptr);
        container->dirty();
      }
      else
      {
        container.reset();
        scene->scene()->ClearItems();
      }
    }
  }
}

TEST(DestructionWithAWidget, WorksInEveryOrder)
{
  const VtkErrors errors;
  std::vector<int> order{0, 1, 2, 3};
  do
  {
    auto container = std::make_unique<PlotContainer>(nullptr);
    container->setPlotData(plainTable());
    auto widget = std::make_unique<VtkPlotWidget>();
    widget->setPlotContainer(container.get());
    container->redraw();
    widget->updatePlot(true);
    vtkSmartPointer<vtkAnnotationLink> link = container->getAnnotationLink();
    vtkSmartPointer<vtkChartXY> chart = container->getChartXY();
    for (const int part : order)
    {
      if (part == 0)
        container.reset();
      else if (part == 1)
        widget.reset();
      else if (part == 2)
        link = nullptr;
      else
        chart = nullptr;

      if (link)
        link->InvokeEvent(vtkCommand::AnnotationChangedEvent);
      if (chart)
        chart->InvokeEvent(vtkCommand::InteractionEvent);
      if (container && widget)
      {
        container->redraw();
        EXPECT_FALSE(container->getMetaData()->signalsBlocked());
        EXPECT_EQ(container->getItem()->GetScene(), widget->contextView()->GetScene());
      }
      else if (container)
      {
        EXPECT_EQ(container->getItem()->GetScene(), nullptr) << "it went with the widget";
      }
      if (container)
        container->dirty();
      if (widget)
        widget->updatePlot(true);
    }
  } while (std::next_permutation(order.begin(), order.end()));
  EXPECT_EQ(errors.text(), "");
}

TEST(DestructionWithAWidget, LeavesTheOwnContainerToTheWidget)
{
  const VtkErrors errors;
  auto widget = std::make_unique<VtkPlotWidget>();
  const QPointer<PlotContainer> own = widget->plotContainer();
  vtkSmartPointer<vtkChartXY> chart = own->getChartXY();
  vtkSmartPointer<vtkAnnotationLink> link = own->getAnnotationLink();
  const vtkSmartPointer<vtkSelectionUpdateCallback> callback =
      stateOf(*own).selectionUpdateCallback;
  widget.reset();
  EXPECT_EQ(own, nullptr);
  EXPECT_EQ(callback->Container, nullptr);
  EXPECT_EQ(chart->GetScene(), nullptr);
  link->InvokeEvent(vtkCommand::AnnotationChangedEvent);
  chart->InvokeEvent(vtkCommand::InteractionEvent);
  EXPECT_EQ(errors.text(), "");
}

TEST(Callbacks, ForgetTheContainerThatIsGone)
{
  auto container = std::make_unique<PlotContainer>(nullptr);
  const vtkSmartPointer<vtkSelectionUpdateCallback> selection =
      stateOf(*container).selectionUpdateCallback;
  const vtkSmartPointer<vtkShiftScaleCallback> shift = stateOf(*container).shiftScaleCallback;
  const vtkSmartPointer<vtkAnnotationLink> link = container->getAnnotationLink();
  const vtkSmartPointer<vtkChartXY> chart = container->getChartXY();
  container.reset();
  EXPECT_EQ(selection->Container, nullptr);
  EXPECT_EQ(shift->Container, nullptr);
  selection->Execute(link, vtkCommand::AnnotationChangedEvent, nullptr);
  shift->Execute(chart, vtkCommand::InteractionEvent, nullptr);
}

} // namespace
