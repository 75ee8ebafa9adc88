#include "plot/BorrowedColumn.h"

#include <vtkCommand.h>

#include <utility>

namespace Talmesh::plot
{

namespace
{

/// An observer that reacts to nothing: an array drops its observers when it dies, and this one
/// drops the owner of the array's memory with it.
class OwnerKeeper : public vtkCommand
{
public:
  static OwnerKeeper* New() { return new OwnerKeeper; }
  void Execute(vtkObject*, unsigned long, void*) override {}

  boost::shared_ptr<const void> owner;
};

} // namespace

vtkSmartPointer<vtkDoubleArray> borrowColumn(const std::string& name, double* values,
                                             vtkIdType count,
                                             const boost::shared_ptr<const void>& owner)
{
  auto column = vtkSmartPointer<vtkDoubleArray>::New();
  column->SetName(name.c_str());
  column->SetArray(values, count, 1);
  if (owner)
  {
    vtkNew<OwnerKeeper> keeper;
    keeper->owner = owner;
    column->AddObserver(vtkCommand::DeleteEvent, keeper);
  }
  return column;
}

} // namespace Talmesh::plot
