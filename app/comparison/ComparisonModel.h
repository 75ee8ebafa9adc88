#ifndef ComparisonModel_h
#define ComparisonModel_h

#include "app/comparison/ComparisonResults.h"

#include <QAbstractTableModel>

namespace Talmesh::app
{

/// A comparison as a table: one row per parameter. A parameter that was not tested has dashes for
/// the results, and the reason as their tool tip.
class ComparisonModel : public QAbstractTableModel
{
  Q_OBJECT

public:
  enum Column
  {
    Name,
    Statistic,
    PValue,
    AdjustedPValue,
    Selected,
    Others,
    Significant,
    columns
  };

  enum Role
  {
    /// What rows are ordered by: numbers as numbers. No value for NaN and for what was not tested.
    SortRole = Qt::UserRole,
    /// The value in full, as text for other programs. Empty for numbers that were not computed.
    FullTextRole
  };

  using QAbstractTableModel::QAbstractTableModel;

  void setParameters(std::vector<ComparedParameter> compared);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
  static QVariant untested(const ComparedParameter& parameter, int column, int role);
  QVariant valueAt(const ComparedParameter& parameter, int column) const;

  std::vector<ComparedParameter> parameters;
};

} // namespace Talmesh::app

#endif
