#ifndef ComparisonModel_h
#define ComparisonModel_h

#include "app/comparison/ComparisonResults.h"

#include <QAbstractTableModel>

namespace Talmesh::app
{

/// A comparison as a table: one row per parameter, bold where it differs. A parameter that was not
/// tested has the reason in place of p, in full as its tool tip.
class ComparisonModel : public QAbstractTableModel
{
  Q_OBJECT

public:
  enum Column
  {
    Name,
    DirectionOfDifference,
    Statistic,
    Superiority,
    MedianDifference,
    PValue,
    AdjustedPValue,
    Selected,
    Others,
    columns
  };

  /// What rows are ordered by: numbers as numbers. No value for what there is not.
  static constexpr int SortRole = Qt::UserRole;

  using QAbstractTableModel::QAbstractTableModel;

  /// As the groups are called in the rows set next.
  void setNames(const ComparedNames& groups) { names = groups; }
  void setParameters(std::vector<ComparedParameter> compared);
  const ComparedParameter& parameter(int row) const
  {
    return parameters[static_cast<std::size_t>(row)];
  }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
  QString cellText(const ComparedParameter& parameter, int column) const;
  QString shownText(const ComparedParameter& parameter, int column) const;
  static QString testText(const stats::ParameterComparison& result, int column);
  QString headerOfGroup(int column, bool isTip) const;
  QString tipText(const ComparedParameter& parameter, int column) const;
  QVariant sortedBy(const ComparedParameter& parameter, int column) const;

  std::vector<ComparedParameter> parameters;
  ComparedNames names;
};

} // namespace Talmesh::app

#endif
