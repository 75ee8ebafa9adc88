#include "plot/BorrowedColumn.h"

#include <vtkCommand.h>

#include <limits>

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
  if (!values)
  {
    // Leaving the column out would shift the positions of those after it.
    column->SetNumberOfValues(count);
    column->Fill(std::numeric_limits<double>::quiet_NaN());
    return column;
  }
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
