#include "app/document/ShownPair.h"

#include <vtkCommand.h>

namespace Talmesh::app
{

ShownPair::ShownPair(QObject* parent)
    : QObject(parent)
    , telling(*this, [this] { emit changed(); })
{
}

ShownPair::~ShownPair()
{
  watch(nullptr);
}

void ShownPair::watch(vtkAbstractContextItem* item)
{
  auto* next = vtkScatterPlotMatrix::SafeDownCast(item);
  if (matrix == next)
    return;
  if (matrix)
    matrix->RemoveObserver(observerTag);
  matrix = next;
  if (matrix)
    observerTag =
        matrix->AddObserver(vtkCommand::AnnotationChangedEvent, this, &ShownPair::announce);
}

/// The matrix tells of it before it shows the pair.
void ShownPair::announce()
{
  telling.ask();
}

} // namespace Talmesh::app
