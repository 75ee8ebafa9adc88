#ifndef ShownPair_h
#define ShownPair_h

#include "app/document/LaterCall.h"

#include <vtkScatterPlotMatrix.h>
#include <vtkWeakPointer.h>

#include <QObject>

class vtkAbstractContextItem;

namespace Talmesh::app
{

/// Hears that the user has a scatter-plot matrix show another pair in its large chart.
class ShownPair : public QObject
{
  Q_OBJECT

public:
  explicit ShownPair(QObject* parent = nullptr);
  ~ShownPair() override;

  /// Turns to the chart now shown, not kept alive; any other item has no pairs.
  void watch(vtkAbstractContextItem* item);

signals:
  /// It shows another pair. Emitted from the event loop, once for changes that come together.
  void changed();

private:
  void announce();

  vtkWeakPointer<vtkScatterPlotMatrix> matrix;
  unsigned long observerTag = 0;
  LaterCall telling;
};

} // namespace Talmesh::app

#endif
