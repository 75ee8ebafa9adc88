#ifndef SceneLink_h
#define SceneLink_h

#include "export/ViewerExport.h"

#include <vtkContextScene.h>
#include <vtkWeakPointer.h>

#include <functional>
#include <vector>

namespace Talmesh::plot
{

/// Watches the scenes that charts were put into without owning them.
///
/// A chart keeps a bare pointer to its scene and nobody clears that pointer of a chart that is not
/// an item of the scene, so the link calls back when a scene dies. The charts of one container can
/// be in several scenes: a client moves the one now shown, the others stay where they were.
class SceneLink
{
public:
  SceneLink() = default;
  TALMESHPLOT_VIEWER_EXPORT ~SceneLink();
  SceneLink(const SceneLink&) = delete;
  SceneLink& operator=(const SceneLink&) = delete;

  /// Watches `scene` too, until it dies. Null and a scene watched already change nothing.
  void watch(vtkContextScene* scene);

  /// Called with a dying scene, whose address may only be compared.
  std::function<void(vtkContextScene*)> sceneDied;

private:
  struct Watched
  {
    vtkWeakPointer<vtkContextScene> scene;
    unsigned long observerTag = 0;
  };

  void onDelete(vtkObject* dying, unsigned long, void*);

  std::vector<Watched> scenes;
};

} // namespace Talmesh::plot

#endif
