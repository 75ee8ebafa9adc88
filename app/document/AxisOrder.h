#ifndef AxisOrder_h
#define AxisOrder_h

#include <vtkChartParallelCoordinates.h>
#include <vtkWeakPointer.h>

#include <QObject>

#include <string>
#include <vector>

class vtkAbstractContextItem;

namespace Talmesh::app
{

/// Hears of axes that the user moves in parallel coordinates.
class AxisOrder : public QObject
{
  Q_OBJECT

public:
  explicit AxisOrder(QObject* parent = nullptr);
  ~AxisOrder() override;

  /// Turns to the chart now shown, not kept alive; any other item has no axes to move.
  void watch(vtkAbstractContextItem* item);
  /// The columns of its axes, from left to right.
  std::vector<std::string> names() const;

signals:
  /// The user has moved an axis.
  void changed();

private:
  void announce();

  vtkWeakPointer<vtkChartParallelCoordinates> chart;
  unsigned long observerTag = 0;
};

} // namespace Talmesh::app

#endif
