#include "app/document/AxisOrder.h"

#include <vtkCommand.h>
#include <vtkStringArray.h>

namespace Talmesh::app
{

AxisOrder::AxisOrder(QObject* parent)
    : QObject(parent)
{
}

AxisOrder::~AxisOrder()
{
  watch(nullptr);
}

void AxisOrder::watch(vtkAbstractContextItem* item)
{
  auto* next = vtkChartParallelCoordinates::SafeDownCast(item);
  if (chart == next)
    return;
  if (chart)
    chart->RemoveObserver(observerTag);
  chart = next;
  if (chart)
    observerTag = chart->AddObserver(vtkCommand::InteractionEvent, this, &AxisOrder::announce);
}

std::vector<std::string> AxisOrder::names() const
{
  std::vector<std::string> names;
  vtkStringArray* columns = chart ? chart->GetVisibleColumns() : nullptr;
  for (vtkIdType i = 0; columns && i < columns->GetNumberOfValues(); ++i)
    names.push_back(columns->GetValue(i));
  return names;
}

void AxisOrder::announce()
{
  emit changed();
}

} // namespace Talmesh::app
