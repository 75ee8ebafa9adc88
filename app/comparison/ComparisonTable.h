#ifndef ComparisonTable_h
#define ComparisonTable_h

#include "app/comparison/ComparisonResults.h"

#include <QWidget>

class QAction;
class QLabel;
class QSortFilterProxyModel;
class QStackedWidget;

namespace Talmesh::app
{

class ComparisonModel;
class ComparisonView;

/// The comparison of selected runs with the others as a table that can be sorted, copied and saved;
/// without a comparison a line that says why there is none.
class ComparisonTable : public QWidget
{
  Q_OBJECT

public:
  explicit ComparisonTable(QWidget* parent = nullptr);

  /// Shows a comparison. Parameters that were there before keep the marks that the user has given
  /// their rows, and the current cell.
  /// @param selections how many selections the user has looked at
  void setComparison(const Comparison& comparison, std::size_t selections);

  /// The selected rows, or all without any, in the order shown, with the columns of files and tabs
  /// between the cells.
  QString tabbedText() const;
  /// The whole table in the order shown, as files have it.
  QString commaText() const;
  /// Writes the whole table; the file appears complete or not at all.
  /// @return why that failed, in one line of UTF-8 that begins with the file's name; empty on
  /// success
  std::string save(const QString& path) const;

public slots:
  /// Puts the tabbed text on the clipboard.
  void copy();
  /// Asks for a file and writes the whole table as it was when this was called.
  void chooseFileAndSave();

signals:
  /// What has become of the last step, in one line.
  void said(const QString& message);
  /// Why the last step could not be done, in one line.
  void failed(const QString& message);

private:
  std::vector<ComparedParameter> inOrder(const QList<int>& rows) const;
  int rowOf(const QVariant& name) const;
  void replaceRows(const std::vector<ComparedParameter>& parameters);

  ComparisonModel* model;
  QStackedWidget* pages;
  QLabel* explanation;
  QLabel* summary;
  ComparisonView* view;
  QSortFilterProxyModel* sorted;
  QAction* copyStep;
  QAction* saveStep;
};

} // namespace Talmesh::app

#endif
