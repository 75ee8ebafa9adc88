#ifndef PointStore_h
#define PointStore_h

#include <vtkIdTypeArray.h>
#include <vtkPoints2D.h>
#include <vtkSmartPointer.h>

#include <array>
#include <list>
#include <optional>
#include <vector>

namespace Talmesh
{
/// What a vtkPlotPoints caches of its table.
struct SharedPoints
{
  vtkSmartPointer<vtkPoints2D> points;
  vtkSmartPointer<vtkIdTypeArray> badPoints; ///< null for none
  std::array<double, 4> bounds{};            ///< of the input, without shift or logarithm
};

/// Points that outlive the item that read them, so that a later one of the same data takes them
/// over instead of reading its table. Nobody may change points that are in a store.
class PointStore
{
public:
  /// What the points are made of, told by content.
  using Key = std::vector<double>;

  /// None if there are none.
  std::optional<SharedPoints> find(const Key& key);
  /// Those that items use are kept, others as far as they take no more memory than these.
  void keep(Key key, SharedPoints points);

private:
  struct Entry
  {
    Key key;
    SharedPoints shared;
  };

  void dropUnused(vtkIdType most);

  std::list<Entry> entries; ///< the one used last comes first
};
} // namespace Talmesh

#endif
