#include "app/document/ChartDressing.h"

#include "app/comparison/ComparisonChoice.h"
#include "app/document/FurtherSeries.h"
#include "app/import/ColumnRoles.h"
#include "app/styles/ViewerStyles.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/TableColumns.h"

#include <vtkChartXYZ.h>
#include <vtkContextMouseEvent.h>
#include <vtkContextScene.h>
#include <vtkRenderWindow.h>
#include <vtkRenderWindowInteractor.h>
#include <vtkRenderer.h>

#include <QVariant>

namespace Talmesh::app
{

namespace
{

/// Pixels around the 3-D chart: top, right, bottom, left.
const vtkVector4i margins3D(50, 90, 80, 90);
constexpr const char* tilted = "talmeshTilted";

/// Turns the chart as dragging it by these parts of the scene's width and height does, which is the
/// one way that the chart offers. Versions of VTK look at either kind of place.
void drag(vtkChartXYZ* chart, vtkRenderWindowInteractor* interactor, double right, double up)
{
  const vtkVector2i to(static_cast<int>(right * chart->GetScene()->GetSceneWidth()),
                       static_cast<int>(up * chart->GetScene()->GetSceneHeight()));
  vtkContextMouseEvent mouse;
  mouse.SetInteractor(interactor);
  mouse.SetButton(vtkContextMouseEvent::LEFT_BUTTON);
  mouse.SetLastScreenPos(vtkVector2i(0, 0));
  mouse.SetLastScenePos(vtkVector2f(0.0F, 0.0F));
  mouse.SetScreenPos(to);
  mouse.SetScenePos(to.Cast<float>());
  chart->MouseMoveEvent(mouse);
}

vtkRenderWindowInteractor* interactorOf(vtkContextScene* scene)
{
  vtkRenderer* renderer = scene ? scene->GetRenderer() : nullptr;
  vtkRenderWindow* window = renderer ? renderer->GetRenderWindow() : nullptr;
  return window ? window->GetInteractor() : nullptr;
}

void tiltOnce(PlotContainer& container, vtkChartXYZ* chart)
{
  vtkContextScene* scene = chart->GetScene();
  vtkRenderWindowInteractor* interactor = interactorOf(scene);
  const bool painted = interactor && scene->GetSceneWidth() > 0 && scene->GetSceneHeight() > 0;
  if (!painted || container.property(tilted).toBool())
    return;
  container.setProperty(tilted, true);
  drag(chart, interactor, -0.15, 0.12);
}

void nameAxes(const PlotContainer& container, vtkChartXYZ* chart)
{
  const PlotMetaData& settings = *container.getMetaData();
  // A summary has such names.
  if (container.showsSummary())
    return;
  const auto name = [&container](const std::vector<int>& columns)
  { return shownName(plot::columnName(container.getTable(), plot::firstOf(columns))); };
  chart->SetXAxisLabel(name(settings.xColumns));
  chart->SetYAxisLabel(name(settings.yColumns));
  chart->SetZAxisLabel(name(settings.zColumns));
}

void makeRoom(PlotContainer& container)
{
  const PageRoom& room = styleOf(*container.getMetaData()).room;
  container.setTopMargin(room.top);
  container.setRightMargin(room.right);
  container.setBottomMargin(room.bottom);
  container.setHorizontalGutter(room.betweenColumns);
}

void dress3DChart(PlotContainer& container)
{
  auto* chart = vtkChartXYZ::SafeDownCast(container.getItem());
  if (!chart)
    return;
  chart->SetMargins(margins3D);
  // Otherwise VTK leaves names and numbers of some axes out, depending on where the points lie.
  chart->SetEnsureOuterEdgeAxisLabelling(true);
  nameAxes(container, chart);
  tiltOnce(container, chart);
}

} // namespace

void dressDrawings(PlotContainer& container)
{
  container.removeDrawingSteps(&container);
  container.addPreparation(&container,
                           [&container]
                           {
                             refreshQuartiles(container);
                             makeRoom(container);
                           });
  container.addCompletion(&container,
                          [&container]
                          {
                            dress3DChart(container);
                            addFurtherSeries(container);
                          });
}

} // namespace Talmesh::app
