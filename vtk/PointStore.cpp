#include "vtk/PointStore.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace Talmesh
{
std::optional<SharedPoints> PointStore::find(const Key& key)
{
  const auto found = std::find_if(entries.begin(), entries.end(),
                                  [&key](const Entry& entry) { return entry.key == key; });
  if (found == entries.end())
    return {};
  entries.splice(entries.begin(), entries, found);
  return found->shared;
}

void PointStore::keep(Key key, SharedPoints points)
{
  // What is not a number is found by no key.
  if (std::any_of(key.begin(), key.end(), [](double part) { return std::isnan(part); }))
    return;
  const vtkIdType count = points.points->GetNumberOfPoints();
  dropUnused(count);
  entries.push_front({std::move(key), std::move(points)});
}

void PointStore::dropUnused(vtkIdType most)
{
  for (auto entry = entries.begin(); entry != entries.end();)
  {
    vtkPoints2D* const points = entry->shared.points;
    const bool isUsed = points->GetReferenceCount() > 1;
    const vtkIdType count = isUsed ? 0 : points->GetNumberOfPoints();
    const bool fits = count <= most;
    most -= fits ? count : 0;
    entry = fits ? std::next(entry) : entries.erase(entry);
  }
}
} // namespace Talmesh
