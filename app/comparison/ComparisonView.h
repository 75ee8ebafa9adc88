#ifndef ComparisonView_h
#define ComparisonView_h

#include <QTableView>

class QSortFilterProxyModel;

namespace Talmesh::app
{

class ComparisonModel;

/// Shows a comparison, in the order of any column, so that what is most asked for is in sight.
class ComparisonView : public QTableView
{
  Q_OBJECT

public:
  /// @param model not owned
  explicit ComparisonView(ComparisonModel* model, QWidget* parent = nullptr);

  /// The rows in the order shown.
  QSortFilterProxyModel* sorted() const { return sortedRows; }
  /// Gives the columns their widths, for other rows.
  void fitColumns();

protected:
  void resizeEvent(QResizeEvent* event) override;

private:
  QSortFilterProxyModel* sortedRows;
};

} // namespace Talmesh::app

#endif
