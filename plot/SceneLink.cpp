#include "plot/SceneLink.h"

#include <vtkCommand.h>

namespace Talmesh::plot
{

SceneLink::~SceneLink()
{
  watch(nullptr);
}

void SceneLink::watch(vtkContextScene* scene)
{
  if (scene == watched)
    return;
  if (watched)
    watched->RemoveObserver(observerTag);
  watched = scene;
  if (scene)
    observerTag = scene->AddObserver(vtkCommand::DeleteEvent, this, &SceneLink::onDelete);
}

void SceneLink::onDelete()
{
  vtkContextScene* dying = watched;
  watched = nullptr;
  if (sceneDied)
    sceneDied(dying);
}

} // namespace Talmesh::plot
