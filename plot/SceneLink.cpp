#include "plot/SceneLink.h"

#include <vtkCommand.h>

#include <algorithm>

namespace Talmesh::plot
{

SceneLink::~SceneLink()
{
  for (const Watched& watched : scenes)
  {
    if (watched.scene)
      watched.scene->RemoveObserver(watched.observerTag);
  }
}

void SceneLink::watch(vtkContextScene* scene)
{
  const auto isScene = [scene](const Watched& watched) { return watched.scene == scene; };
  if (!scene || std::any_of(scenes.begin(), scenes.end(), isScene))
    return;
  scenes.push_back(
      {scene, scene->AddObserver(vtkCommand::DeleteEvent, this, &SceneLink::onDelete)});
}

void SceneLink::onDelete(vtkObject* dying, unsigned long, void*)
{
  auto* scene = static_cast<vtkContextScene*>(dying);
  const auto isGone = [scene](const Watched& watched)
  { return !watched.scene || watched.scene == scene; };
  scenes.erase(std::remove_if(scenes.begin(), scenes.end(), isGone), scenes.end());
  if (sceneDied)
    sceneDied(scene);
}

} // namespace Talmesh::plot
