#include "plot/vtkSelectableScatterPlotMatrix.h"

#include "plot/HandlerScope.h"
#include "plot/vtkSelectableChartXY.h"

#include <vtkObjectFactory.h>

vtkStandardNewMacro(vtkSelectableScatterPlotMatrix);

namespace
{

/// Another scene in an item's place for one, also where its painting fails.
class SceneInstead
{
public:
  SceneInstead(vtkContextScene*& ofItem, vtkContextScene* other)
      : scene(ofItem)
      , own(ofItem)
  {
    scene = other;
  }
  ~SceneInstead() { scene = own; }
  SceneInstead(const SceneInstead&) = delete;
  SceneInstead& operator=(const SceneInstead&) = delete;

private:
  vtkContextScene*& scene;
  vtkContextScene* own;
};

} // namespace

vtkSelectableScatterPlotMatrix::vtkSelectableScatterPlotMatrix()
{
  NumberOfFrames = 0;
}

vtkChart* vtkSelectableScatterPlotMatrix::GetChart(const vtkVector2i& position)
{
  const vtkIdType before = GetNumberOfItems();
  vtkChart* cell = Superclass::GetChart(position);
  // A cell that VTK has just filled has a chart of VTK's.
  return GetNumberOfItems() == before ? cell : vtkSelectableChartXY::PlaceIn(this, position);
}

bool vtkSelectableScatterPlotMatrix::Paint(vtkContext2D* painter)
{
  const Talmesh::plot::HandlerScope running;
  // New cells get their scene here.
  Update();
  const auto roomBefore = SpecificResize;
  vtkContextScene* const shownIn = Scene;
  Wishes->SetGeometry(shownIn->GetSceneWidth(), shownIn->GetSceneHeight());
  const bool painted = [&]
  {
    const SceneInstead wishes(Scene, Wishes);
    return Superclass::Paint(painter);
  }();
  // VTK's matrix takes the room beside its large chart away after each painting, gives it back and
  // finds its layout outdated, even where nothing has changed. All points would be painted twice.
  if (SpecificResize == roomBefore)
    LayoutIsDirty = false;
  else
    Scene->SetDirty(true);
  return painted;
}

bool vtkSelectableScatterPlotMatrix::MouseButtonReleaseEvent(const vtkContextMouseEvent& mouse)
{
  const Talmesh::plot::HandlerScope running;
  return Superclass::MouseButtonReleaseEvent(mouse);
}
