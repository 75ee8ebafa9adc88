#include "FuzzedContainer.h"

#include "external/PlotMetaData.h"
#include "plot/RunClustering.h"

#include <vtkAnnotationLink.h>
#include <vtkChartXY.h>
#include <vtkGenericRenderWindowInteractor.h>

#include <QCoreApplication>

#include <stdexcept>

namespace
{

constexpr int width = 400;
constexpr int height = 300;

} // namespace

FuzzedContainer::FuzzedContainer(FuzzChoices& choices)
    : choose(choices)
    , container(std::make_unique<PlotContainer>(nullptr))
{
  recording.device->setSize(width, height);
  addScene();
}

void FuzzedContainer::addScene()
{
  scenes.push_back(vtkSmartPointer<vtkContextScene>::New());
  scenes.back()->SetGeometry(width, height);
  container->setScene(scenes.back());
}

FuzzedContainer::~FuzzedContainer()
{
  container.reset();
  QCoreApplication::processEvents();
}

void FuzzedContainer::act(const Actions& actions)
{
  actions[static_cast<std::size_t>(choose.pick(static_cast<int>(actions.size())))]();
}

void FuzzedContainer::act()
{
  using Group = Actions (FuzzedContainer::*)();
  constexpr std::array<Group, 8> groups = {
      &FuzzedContainer::dataActions,      &FuzzedContainer::specialActions,
      &FuzzedContainer::settingActions,   &FuzzedContainer::appearanceActions,
      &FuzzedContainer::selectionActions, &FuzzedContainer::statisticsActions,
      &FuzzedContainer::lifeActions,      &FuzzedContainer::tableActions};
  const Group group =
      groups[static_cast<std::size_t>(choose.pick(static_cast<int>(groups.size())))];
  try
  {
    act((this->*group)());
  }
  catch (const std::out_of_range&)
  {
    // What pages throw for parameters with short names.
  }
}

void FuzzedContainer::paint()
{
  recording.device->clear();
  const vtkSmartPointer<vtkContextScene> scene = scenes.back();
  scene->ClearItems();
  if (container->getItem())
    scene->AddItem(container->getItem());
  scene->Paint(recording.painter);
}

FuzzedContainer::Actions FuzzedContainer::dataActions()
{
  PlotContainer& plot = *container;
  return {[&] { plot.setPlotData(choose.table()); },
          [&] { setLines(false); },
          [&] { setLines(true); },
          [&] { setSeries(false); },
          [&] { setSeries(true); },
          [&]
          {
            auto items = choose.items();
            plot.setLinePlotItems(&items);
          },
          [&] { plot.updateFromLinePlotTable(choose.flip()); },
          [&] { plot.findParameterColumns(); },
          [&] { plot.clearColumnItems(); },
          [&]
          { plot.setPlotCols(choose.column(), choose.column(), choose.pick(4), choose.flip()); },
          [&] { plot.setPlotCols(choose.name(), choose.name(), choose.pick(4), choose.flip()); },
          [&] { plot.addColumn(choose.numbers(20), choose.name()); },
          [&] { plot.example(); }};
}

FuzzedContainer::Actions FuzzedContainer::settingActions()
{
  PlotMetaData& settings = *container->getMetaData();
  const auto style = [&] { container->setPlotStyle(static_cast<plotStyles>(choose.pick(11))); };
  return {style,
          style,
          style,
          [&] { settings.setStride(choose.pick(8) - 1); },
          [&] { settings.setStride(choose.pick(8) - 1); },
          [&] { setLists(); },
          [&] { setLists(); },
          [&] { setOptions(); },
          [&] { settings.blockSignals(choose.flip()); },
          [&] { container->setUseIndexForXSeries(choose.flip()); }};
}

void FuzzedContainer::setLists()
{
  PlotMetaData& settings = *container->getMetaData();
  for (auto* list :
       {&settings.xColumns, &settings.yColumns, &settings.zColumns, &settings.parameterColumns})
  {
    if (choose.flip())
      *list = choose.columns();
  }
  settings.colorColumn = choose.column();
}

void FuzzedContainer::setOptions()
{
  PlotMetaData& settings = *container->getMetaData();
  settings.solidColor = choose.flip();
  settings.setPlotLine(choose.flip());
  settings.setLogX(choose.flip());
  settings.setLogParameterAxes(choose.flip());
  settings.setUseDensity(choose.flip());
  settings.setCommonDensityScale(choose.flip());
  settings.setShowQuantiles(choose.flip());
  settings.setLimitColumVisibility(choose.flip());
  settings.setKsThreshold(choose.number());
  settings.setPThreshold(choose.number());
}

FuzzedContainer::Actions FuzzedContainer::appearanceActions()
{
  PlotContainer& plot = *container;
  return {[&] { plot.setDecorations(choose.flip() ? choose.table() : nullptr, choose.flip()); },
          [&] { plot.setColor(choose.pick(256), 3, 4, 255); },
          [&] { plot.setColorScheme(choose.name(), choose.flip()); },
          [&] { plot.useColors(nullptr); },
          [&] { plot.setMarkerStyle(choose.pick(7)); },
          [&] { plot.setPointSize(choose.number()); },
          [&] { plot.setLineWidth(choose.pick(5)); },
          [&] { plot.setPlotTitle(choose.name()); },
          [&] { plot.setXLabel(choose.name()); },
          [&] { plot.setYLabel(choose.name()); },
          [&] {
            plot.setXTickLabels({choose.name(), choose.name()});
          },
          [&] { plot.setXTickPosition(choose.numbers(4)); },
          [&] { plot.LogScaleX(); },
          [&] { plot.drawDecorations(nullptr); },
          [&] { plot.setLogScaleY(choose.flip()); },
          [&] { plot.setShowLegend(choose.flip()); },
          [&] { plot.setLeftMargin(choose.pick(200)); }};
}

FuzzedContainer::Actions FuzzedContainer::selectionActions()
{
  PlotContainer& plot = *container;
  return {[&] { plot.getAnnotationLink()->SetCurrentSelection(choose.selection()); },
          [&] { plot.getAnnotationLink()->SetCurrentSelection(choose.selection()); },
          [&] { plot.getAnnotationLink()->SetCurrentSelection(nullptr); },
          [&] { plot.selectionFromFlagColumn(); },
          [&] { chooseRuns(); },
          [&] { dragMouse(); },
          [&] { dragMouse(); },
          [&] { answerGestures(); },
          [&] { plot.annotationUpdate(); }};
}

void FuzzedContainer::answerGestures()
{
  PlotContainer& plot = *container;
  plot.setSelectionTool(static_cast<Talmesh::SelectionTool>(choose.pick(3)));
  const bool answers = choose.flip();
  const bool redraws = choose.flip();
  if (answers)
    plot.setGestureHandler(
        [&plot, redraws](const Talmesh::SelectionGesture&)
        {
          if (redraws)
            plot.redraw();
          return redraws;
        });
  else
    plot.setGestureHandler(nullptr);
}

void FuzzedContainer::dragMouse()
{
  vtkChartXY* chart = container->getChartXY();
  if (!chart || !chart->GetScene())
    return;
  const vtkSmartPointer<vtkChartXY> kept = chart;
  vtkNew<vtkGenericRenderWindowInteractor> keys;
  keys->SetControlKey(choose.flip());
  keys->SetShiftKey(choose.flip());
  vtkContextMouseEvent mouse;
  mouse.SetInteractor(keys);
  mouse.SetButton(1 << choose.pick(3));
  const auto place = [&] { return vtkVector2f(choose.pick(256), choose.pick(256)); };
  mouse.SetPos(place());
  mouse.SetScreenPos(vtkVector2i(0, 0));
  chart->MouseButtonPressEvent(mouse);
  for (int moves = 1 + choose.pick(4); moves > 0; --moves)
  {
    mouse.SetLastPos(mouse.GetPos());
    mouse.SetPos(place());
    chart->MouseMoveEvent(mouse);
  }
  chart->MouseButtonReleaseEvent(mouse);
  if (choose.flip())
    chart->MouseWheelEvent(mouse, choose.pick(5) - 2);
}

FuzzedContainer::Actions FuzzedContainer::statisticsActions()
{
  PlotContainer& plot = *container;
  return {
      [&] { plot.generateQuartiles(); },
      [&] { plot.clusterTimeSeries(choose.pick(5), choose.pick(4)); },
      [&]
      {
        Talmesh::RunClustering clustering(plot, choose.pick(5), choose.pick(4));
        clustering.compute();
        clustering.handOver(plot);
      },
      [&] { collectClusters(); },
      [&]
      { plot.generateRankedParameters(plot.getTable(), static_cast<std::size_t>(choose.pick(8))); },
      [&]
      { plot.generateRankedParameters(choose.table(), static_cast<std::size_t>(choose.pick(8))); },
      [&]
      {
        plot.ksTestSelection(static_cast<unsigned long>(choose.pick(8)),
                             static_cast<unsigned long>(choose.pick(8)));
      },
      [&]
      {
        // One factor for each row is enough for any stride.
        std::vector<double> factors = choose.numbers(20);
        factors.resize(static_cast<std::size_t>(plot.getTable()->GetNumberOfRows()), 2.0);
        plot.scaleColumn(choose.flip() ? factors.data() : nullptr, choose.column());
      },
      [&] { plot.scaleRelativeToMaxWithinTrajectory(choose.column()); },
      [&] { plot.scaleColumnByColumn(choose.column(), choose.column(), choose.flip()); },
      [&] { plot.shrinkToColumnSelection(); },
      [&] { delete[] plot.saveData("", choose.flip()); },
      [&]
      {
        PlotContainer::writeTable(plot.getTable(), [this](const char*, std::size_t, double)
                                  { return choose.flip(); });
      },
      [&] { plot.withoutDrawing([&] { plot.redraw(); }); },
      [&] { plot.getLabels(); }};
}
