#ifndef RunNormaliser_h
#define RunNormaliser_h

#include <vtkDoubleArray.h>
#include <vtkSmartPointer.h>

#include <QObject>
#include <QPointer>

#include <map>
#include <vector>

class PlotContainer;
class QUndoCommand;

namespace Talmesh::app
{

/// Scales the runs of columns of a container to their maxima, and reloads their values.
///
/// Scaling changes the values in place, and with them those of the study that lent them; so the
/// normaliser keeps a copy of each column that it scales and writes it back when it leaves the
/// container.
class RunNormaliser : public QObject
{
  Q_OBJECT

public:
  explicit RunNormaliser(QObject* parent = nullptr);
  ~RunNormaliser() override;

  /// Turns to another container, not owned, after reloading the values of the one before; null
  /// turns to none.
  void follow(PlotContainer* container);

  /// Whether every one of `columns`, of which there must be one, is scaled now.
  bool isNormalised(const std::vector<int>& columns) const;
  /// Scales or reloads each of `columns` that is not yet so, and forgets the axis windows that were
  /// chosen for their former values.
  void setNormalised(const std::vector<int>& columns, bool on);
  /// A new command that does so, the caller's; without the normaliser it does nothing.
  QUndoCommand* makeCommand(const std::vector<int>& columns, bool on);

signals:
  /// Values have changed.
  void changed();

private:
  struct Kept
  {
    vtkSmartPointer<vtkDoubleArray> column;
    std::vector<double> values;
  };

  bool scale(int column);
  bool reload(int column);

  QPointer<PlotContainer> container;
  std::map<int, Kept> kept;
};

} // namespace Talmesh::app

#endif
