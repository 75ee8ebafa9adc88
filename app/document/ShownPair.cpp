#include "app/document/ShownPair.h"

#include <vtkCommand.h>

#include <QMetaObject>

namespace Talmesh::app
{

ShownPair::ShownPair(QObject* parent)
    : QObject(parent)
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
        matrix->AddObserver(vtkCommand::AnnotationChangedEvent, this, &ShownPair::announceLater);
}

/// The matrix tells of it before it shows the pair.
void ShownPair::announceLater()
{
  if (announcing)
    return;
  announcing = true;
  QMetaObject::invokeMethod(
      this,
      [this]
      {
        announcing = false;
        emit changed();
      },
      Qt::QueuedConnection);
}

} // namespace Talmesh::app
