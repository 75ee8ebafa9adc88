#ifndef ImportModel_h
#define ImportModel_h

#include "app/import/FirstRows.h"
#include "app/import/ImportReport.h"
#include "app/import/ImportRequest.h"

#include <QAbstractTableModel>
#include <QString>

#include <map>
#include <vector>

namespace Talmesh::app
{

/// What a column of a table may be.
enum class ColumnRole
{
  /// As it is recognised.
  Automatic,
  Time,
  Run,
  Item,
  Value,
  Measured,
  Parameter,
  Condition,
  Ignored
};

/// In the order in which they are offered.
const std::vector<ColumnRole>& columnRoles();
/// A role in one word.
QString nameOf(ColumnRole role);

/// The first rows of a table as they are read. Headers say a column's name and what it is; one that
/// is recognised, and not asked for, stands in brackets.
class ImportModel : public QAbstractTableModel
{
  Q_OBJECT

public:
  using QAbstractTableModel::QAbstractTableModel;

  /// Roles of columns that the rows do not have are forgotten.
  /// @return whether these rows differ from those shown before
  bool setRows(FirstRows rows);
  /// What is understood of the table.
  void setReport(ImportReport report);
  void takeRoles(const ImportRequest& request);
  /// Says the roles that were asked for, and no others.
  void addTo(ImportRequest& request) const;

  /// Time, item and value have one column each: another one that was asked for is let go.
  void setRole(int column, ColumnRole role);
  ColumnRole askedRole(int column) const;
  /// What the column is taken for: Automatic where that is not known.
  ColumnRole role(int column) const;
  QString nameOfColumn(int column) const;
  /// The row of a line of the file; -1 where it is not shown.
  int rowOfLine(std::size_t line) const;
  const FirstRows& rows() const { return shown; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
  /// The user wants the table read otherwise.
  void rolesChanged();

private:
  const std::string& name(int column) const;
  ColumnRole recognisedRole(int column) const;
  void tellHeaders();

  FirstRows shown;
  ImportReport understood;
  /// By the names of columns.
  std::map<std::string, ColumnRole> asked;
};

} // namespace Talmesh::app

#endif
