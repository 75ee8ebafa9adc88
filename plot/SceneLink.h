#ifndef SceneLink_h
#define SceneLink_h

#include <vtkContextScene.h>
#include <vtkWeakPointer.h>

#include <functional>

namespace Talmesh::plot
{

/// Watches the scene that charts were put into without owning it.
///
/// A chart keeps a bare pointer to its scene and nobody clears that pointer of a chart that is not
/// an item of the scene, so the link calls back when the scene dies.
class SceneLink
{
public:
  SceneLink() = default;
  ~SceneLink();
  SceneLink(const SceneLink&) = delete;
  SceneLink& operator=(const SceneLink&) = delete;

  /// Watches `scene` instead of the one watched so far. Null watches nothing.
  void watch(vtkContextScene* scene);

  /// The watched scene, or null when it is gone.
  vtkContextScene* scene() const { return watched; }

  /// Called with the dying scene, whose address may only be compared.
  std::function<void(vtkContextScene*)> sceneDied;

private:
  void onDelete();

  vtkWeakPointer<vtkContextScene> watched;
  unsigned long observerTag = 0;
};

} // namespace Talmesh::plot

#endif
