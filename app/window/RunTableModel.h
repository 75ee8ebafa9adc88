#ifndef RunTableModel_h
#define RunTableModel_h

#include "app/runs/RunTable.h"

#include <QAbstractTableModel>

#include <cstddef>
#include <vector>

namespace Talmesh::app
{

/// The table of runs for a view: its number and then its columns, a row per run, in any order. Runs
/// are counted by their places in the table, from 0.
class RunTableModel : public QAbstractTableModel
{
  Q_OBJECT

public:
  using QAbstractTableModel::QAbstractTableModel;

  /// Shows other numbers, in the order of the column that was chosen last while there is one.
  void setTable(RunTable shown);
  const RunTable& table() const { return runs; }

  std::size_t runOf(int row) const { return order[static_cast<std::size_t>(row)]; }
  int rowOf(std::size_t run) const { return rows[run]; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  /// Runs without a value come last, whichever way the others are ordered. Resets the model.
  void sort(int column, Qt::SortOrder direction = Qt::AscendingOrder) override;

  /// These rows, or all of none, below a line of names: numbers in full, tabs between the cells.
  QString tabbedText(const std::vector<int>& chosenRows) const;

private:
  const std::vector<double>& valuesOf(int column) const;
  void arrange();

  RunTable runs;
  /// The run of each row, and the row of each run.
  std::vector<std::size_t> order;
  std::vector<int> rows;
  int sortedColumn = 0;
  Qt::SortOrder sortedDirection = Qt::AscendingOrder;
};

} // namespace Talmesh::app

#endif
