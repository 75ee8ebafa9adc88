#include "app/comparison/ComparisonView.h"

#include "app/comparison/ComparisonModel.h"

#include <QHeaderView>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>

#include <algorithm>

namespace Talmesh::app
{

namespace
{

constexpr int charactersOfAName = 36;
/// Of names and directions where there is no room for more.
constexpr int charactersAtLeast = 8;

/// Rows without a value come last, whichever way the others are ordered.
class ValuesFirst : public QSortFilterProxyModel
{
public:
  using QSortFilterProxyModel::QSortFilterProxyModel;

protected:
  bool lessThan(const QModelIndex& left, const QModelIndex& right) const override
  {
    const bool leftMissing = !left.data(sortRole()).isValid();
    const bool rightMissing = !right.data(sortRole()).isValid();
    if (leftMissing == rightMissing)
      return !leftMissing && QSortFilterProxyModel::lessThan(left, right);
    // A descending order asks with the two exchanged.
    return leftMissing == (sortOrder() == Qt::DescendingOrder);
  }
};

/// Shows the beginning of texts that are wider than their cell.
class FirstWords : public QStyledItemDelegate
{
public:
  using QStyledItemDelegate::QStyledItemDelegate;

protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
  {
    QStyledItemDelegate::initStyleOption(option, index);
    option->textElideMode = Qt::ElideRight;
  }
};

} // namespace

ComparisonView::ComparisonView(ComparisonModel* model, QWidget* parent)
    : QTableView(parent)
    , sortedRows(new ValuesFirst(this))
{
  sortedRows->setSourceModel(model);
  sortedRows->setSortRole(ComparisonModel::SortRole);
  sortedRows->setSortCaseSensitivity(Qt::CaseInsensitive);
  setObjectName(QStringLiteral("comparisonTable"));
  setModel(sortedRows);
  setSortingEnabled(true);
  sortByColumn(ComparisonModel::Statistic, Qt::DescendingOrder);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setContextMenuPolicy(Qt::ActionsContextMenu);
  setTabKeyNavigation(false);
  setAlternatingRowColors(true);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  horizontalHeader()->setSectionResizeMode(ComparisonModel::Name, QHeaderView::Fixed);
  horizontalHeader()->setSectionResizeMode(ComparisonModel::DirectionOfDifference,
                                           QHeaderView::Fixed);
  horizontalHeader()->setStretchLastSection(true);
  setTextElideMode(Qt::ElideMiddle);
  setWordWrap(false);
  setItemDelegateForColumn(ComparisonModel::DirectionOfDifference, new FirstWords(this));
}

/// What is most asked for, up to the adjusted p, is seen without scrolling: names and directions
/// get the room that the numbers leave, and are elided; their tool tips have all of them.
void ComparisonView::fitColumns()
{
  const QHeaderView& header = *horizontalHeader();
  const int letter = fontMetrics().averageCharWidth();
  const auto wished = [&](int column)
  { return std::max(sizeHintForColumn(column), header.sectionSizeHint(column)); };
  int room = viewport()->width();
  for (int column = ComparisonModel::Statistic; column <= ComparisonModel::AdjustedPValue; ++column)
    room -= header.sectionSize(column);
  const int direction = wished(ComparisonModel::DirectionOfDifference);
  const int name = std::min(wished(ComparisonModel::Name), charactersOfAName * letter);
  const int narrowest = charactersAtLeast * letter;
  const int shortest = std::max(narrowest, header.sectionSizeHint(ComparisonModel::Name));
  const int nameThen = std::clamp(room - direction, std::min(shortest, name), name);
  const int directionThen = std::clamp(room - nameThen, std::min(narrowest, direction), direction);
  setColumnWidth(ComparisonModel::Name, nameThen);
  setColumnWidth(ComparisonModel::DirectionOfDifference, directionThen);
}

void ComparisonView::resizeEvent(QResizeEvent* event)
{
  QTableView::resizeEvent(event);
  fitColumns();
}

} // namespace Talmesh::app
