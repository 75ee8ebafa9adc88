#include "app/window/RunTableModel.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace Talmesh::app
{

namespace
{

/// As many digits as a reader compares.
constexpr int shortDigits = 6;

QString shortText(double value, bool isNumberOfRun)
{
  if (std::isnan(value))
    return QStringLiteral("–");
  constexpr int allDigits = 17;
  return QString::number(value, 'g', isNumberOfRun ? allDigits : shortDigits);
}

} // namespace

void RunTableModel::setTable(RunTable shown)
{
  beginResetModel();
  runs = std::move(shown);
  if (sortedColumn >= columnCount())
    sortedColumn = 0;
  arrange();
  endResetModel();
}

/// The first column has the numbers of the runs.
const std::vector<double>& RunTableModel::valuesOf(int column) const
{
  return column == 0 ? runs.numbers : runs.values[static_cast<std::size_t>(column - 1)];
}

void RunTableModel::arrange()
{
  order.resize(runs.numbers.size());
  std::iota(order.begin(), order.end(), std::size_t(0));
  const std::vector<double>& values = valuesOf(sortedColumn);
  const bool falls = sortedDirection == Qt::DescendingOrder;
  std::stable_sort(order.begin(), order.end(),
                   [&values, falls](std::size_t left, std::size_t right)
                   {
                     const double a = values[left];
                     const double b = values[right];
                     if (std::isnan(a) || std::isnan(b))
                       return !std::isnan(a);
                     return falls ? a > b : a < b;
                   });
  rows.resize(order.size());
  for (std::size_t row = 0; row < order.size(); ++row)
    rows[order[row]] = static_cast<int>(row);
}

void RunTableModel::sort(int column, Qt::SortOrder direction)
{
  if (column < 0 || column >= columnCount())
    return;
  beginResetModel();
  sortedColumn = column;
  sortedDirection = direction;
  arrange();
  endResetModel();
}

int RunTableModel::rowCount(const QModelIndex& parent) const
{
  return parent.isValid() ? 0 : static_cast<int>(runs.numbers.size());
}

int RunTableModel::columnCount(const QModelIndex& parent) const
{
  return parent.isValid() ? 0 : 1 + static_cast<int>(runs.columns.size());
}

QVariant RunTableModel::data(const QModelIndex& index, int role) const
{
  if (!index.isValid())
    return {};
  if (role == Qt::TextAlignmentRole)
    return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
  const double value = valuesOf(index.column())[runOf(index.row())];
  const std::size_t column = static_cast<std::size_t>(std::max(0, index.column() - 1));
  const bool isText = index.column() > 0 && runs.texts.count(column) > 0 && !std::isnan(value);
  if (isText && (role == Qt::DisplayRole || role == Qt::ToolTipRole))
    return QString::fromStdString(cellText(runs, column, runOf(index.row())));
  if (role == Qt::DisplayRole)
    return shortText(value, index.column() == 0);
  if (role == Qt::ToolTipRole && !std::isnan(value))
    return QString::fromStdString(fullNumber(value));
  return {};
}

QVariant RunTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount() ||
      (role != Qt::DisplayRole && role != Qt::ToolTipRole))
    return {};
  if (section == 0)
    return tr("Run");
  const RunColumn& column = runs.columns[static_cast<std::size_t>(section - 1)];
  // No filter asks for it: it has a name for readers here and another one in files.
  return column.title == "group" && column.column < 0 ? tr("Group")
                                                      : QString::fromStdString(column.words);
}

QString RunTableModel::tabbedText(const std::vector<int>& chosenRows) const
{
  std::vector<int> copied = chosenRows;
  if (copied.empty())
  {
    copied.resize(static_cast<std::size_t>(rowCount()));
    std::iota(copied.begin(), copied.end(), 0);
  }
  std::string text = "run";
  for (const RunColumn& column : runs.columns)
    text += '\t' + column.title;
  text += '\n';
  for (const int row : copied)
  {
    const std::size_t run = runOf(row);
    text += fullNumber(runs.numbers[run]);
    for (std::size_t column = 0; column < runs.columns.size(); ++column)
      text += '\t' + cellText(runs, column, run);
    text += '\n';
  }
  return QString::fromStdString(text);
}

} // namespace Talmesh::app
