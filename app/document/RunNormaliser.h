#ifndef RunNormaliser_h
#define RunNormaliser_h

#include <vtkDoubleArray.h>
#include <vtkSmartPointer.h>
#include <vtkTable.h>

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

  /// Those of `columns` that can be scaled: numbers of the runs' own, which times, numbers of runs
  /// and parameters are not.
  std::vector<int> scalable(const std::vector<int>& columns) const;
  /// Whether every one of `columns`, of which there must be one, is scaled now.
  bool isNormalised(const std::vector<int>& columns) const;
  /// All columns that are scaled now, ascending.
  std::vector<int> normalised() const;
  /// The container's table with the values that scaled columns had before. Shares the others.
  vtkSmartPointer<vtkTable> originalTable() const;
  /// Scales or reloads each of `columns` that is not yet so, and forgets the axis windows that were
  /// chosen for their former values. Leaves out what cannot be scaled.
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

  bool isScalable(int column) const;
  bool scale(int column);
  bool reload(int column);

  QPointer<PlotContainer> container;
  std::map<int, Kept> kept;
};

} // namespace Talmesh::app

#endif
