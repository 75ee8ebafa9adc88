#include "app/comparison/ComparisonTable.h"

#include "app/comparison/ComparisonModel.h"
#include "widgets/FileWriter.h"
#include "widgets/WidgetSupport.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QSortFilterProxyModel>
#include <QStackedWidget>
#include <QTableView>
#include <QToolButton>

#include <algorithm>
#include <functional>

namespace Talmesh::app
{

namespace
{

constexpr int charactersOfAName = 36;
using Quote = std::function<QString(const QString&)>;

QString onOneLine(const QString& cell)
{
  return cell.simplified();
}

QString quotedIfNeeded(const QString& cell)
{
  const bool plain = !cell.contains(QLatin1Char(',')) && !cell.contains(QLatin1Char('"')) &&
                     !cell.contains(QLatin1Char('\n')) && !cell.contains(QLatin1Char('\r'));
  if (plain)
    return cell;
  return QLatin1Char('"') + QString(cell).replace(QLatin1Char('"'), QLatin1String("\"\"")) +
         QLatin1Char('"');
}

QString lineOf(const QStringList& cells, QChar separator, const Quote& quote)
{
  QStringList written;
  for (const QString& cell : cells)
    written.append(quote(cell));
  return written.join(separator) + QLatin1Char('\n');
}

QString textOf(const QAbstractItemModel& table, const QList<int>& rows, QChar separator,
               const Quote& quote)
{
  QStringList cells;
  for (int column = 0; column < table.columnCount(); ++column)
    cells.append(table.headerData(column, Qt::Horizontal).toString());
  QString text = lineOf(cells, separator, quote);
  for (const int row : rows)
  {
    cells.clear();
    for (int column = 0; column < table.columnCount(); ++column)
      cells.append(table.index(row, column).data(ComparisonModel::FullTextRole).toString());
    text += lineOf(cells, separator, quote);
  }
  return text;
}

std::string writeText(const QString& path, const QString& text)
{
  const QByteArray bytes = text.toUtf8();
  const QString reason = writeFile(path, bytes.constData(), bytes.size());
  return reason.isEmpty() ? std::string() : (path + QLatin1String(": ") + reason).toStdString();
}

QList<int> allRows(const QAbstractItemModel& table)
{
  QList<int> rows;
  for (int row = 0; row < table.rowCount(); ++row)
    rows.append(row);
  return rows;
}

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

QString explanationOf(Comparison::State state)
{
  switch (state)
  {
  case Comparison::State::noParameters:
    return ComparisonTable::tr("This table has no parameters to compare.");
  case Comparison::State::nothingSelected:
    return ComparisonTable::tr(
        "Nothing is selected. Drag a rectangle over some runs with the right mouse button to "
        "compare their parameters with those of the other runs.");
  case Comparison::State::noRunSelected:
    return ComparisonTable::tr("No run is selected at every time that the selection covers.");
  case Comparison::State::noOthers:
    return ComparisonTable::tr("All runs are selected; there are none to compare them with.");
  case Comparison::State::compared:
    break;
  }
  return {};
}

} // namespace

ComparisonTable::ComparisonTable(QWidget* parent)
    : QWidget(parent)
    , model(new ComparisonModel(this))
    , sorted(new ValuesFirst(this))
    , pages(new QStackedWidget)
    , explanation(new QLabel)
    , view(makeView())
    , copyStep(addStep(tr("&Copy"), "copyComparison", &ComparisonTable::copy))
    , saveStep(addStep(tr("&Save..."), "saveComparison", &ComparisonTable::chooseFileAndSave))
{
  copyStep->setShortcut(QKeySequence::Copy);
  copyStep->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  copyStep->setToolTip(tr("Copy the table, or its selected rows, for a spreadsheet (Ctrl+C)"));
  saveStep->setToolTip(tr("Write the table to a CSV file"));
  explanation->setObjectName(QStringLiteral("comparisonExplanation"));
  explanation->setWordWrap(true);
  explanation->setAlignment(Qt::AlignCenter);
  explanation->setMargin(explanation->fontMetrics().averageCharWidth());

  auto* results = new QWidget;
  auto* row = new QHBoxLayout(results);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(view, 1);
  row->addWidget(makeButtons());
  pages->addWidget(explanation);
  pages->addWidget(results);
  auto* whole = new QHBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(pages);
  // It takes the room that is left and scrolls.
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  setComparison({});
}

QTableView* ComparisonTable::makeView()
{
  sorted->setSourceModel(model);
  sorted->setSortRole(ComparisonModel::SortRole);
  sorted->setSortCaseSensitivity(Qt::CaseInsensitive);
  auto* table = new QTableView;
  table->setObjectName(QStringLiteral("comparisonTable"));
  table->setModel(sorted);
  table->setSortingEnabled(true);
  table->sortByColumn(ComparisonModel::Statistic, Qt::DescendingOrder);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setContextMenuPolicy(Qt::ActionsContextMenu);
  table->setTabKeyNavigation(false);
  table->setAlternatingRowColors(true);
  table->verticalHeader()->hide();
  table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  table->horizontalHeader()->setStretchLastSection(true);
  // Longer names would push the numbers out of sight; the tool tip has all of them.
  const int widest = charactersOfAName * table->fontMetrics().averageCharWidth();
  table->horizontalHeader()->setMaximumSectionSize(widest);
  table->setTextElideMode(Qt::ElideMiddle);
  return table;
}

QAction* ComparisonTable::addStep(const QString& text, const char* name,
                                  void (ComparisonTable::*slot)())
{
  auto* action = new QAction(text, this);
  action->setObjectName(QLatin1String(name));
  connect(action, &QAction::triggered, this, slot);
  view->addAction(action);
  return action;
}

QWidget* ComparisonTable::makeButtons()
{
  auto* buttons = new QWidget;
  auto* column = new QVBoxLayout(buttons);
  column->setContentsMargins(0, 0, 0, 0);
  for (QAction* step : {copyStep, saveStep})
  {
    auto* button = new QToolButton;
    button->setDefaultAction(step);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    column->addWidget(button);
  }
  column->addStretch();
  return buttons;
}

/// The row of a parameter; -1 without it.
int ComparisonTable::rowOf(const QVariant& name) const
{
  for (int row = 0; row < sorted->rowCount(); ++row)
    if (sorted->index(row, ComparisonModel::Name).data() == name)
      return row;
  return -1;
}

/// The table forgets what the user has marked when its rows are replaced.
void ComparisonTable::replaceRows(const std::vector<ComparedParameter>& parameters)
{
  QItemSelectionModel& marks = *view->selectionModel();
  const auto nameIn = [this](int row) { return sorted->index(row, ComparisonModel::Name).data(); };
  QVariantList marked;
  for (const QModelIndex& index : marks.selectedRows())
    marked.append(nameIn(index.row()));
  const QModelIndex current = marks.currentIndex();
  const int currentColumn = current.column();
  const QVariant currentName = nameIn(current.row());
  model->setParameters(parameters);
  for (const QVariant& name : marked)
    marks.select(sorted->index(rowOf(name), ComparisonModel::Name),
                 QItemSelectionModel::Select | QItemSelectionModel::Rows);
  if (currentName.isValid())
    marks.setCurrentIndex(sorted->index(rowOf(currentName), currentColumn),
                          QItemSelectionModel::NoUpdate);
}

void ComparisonTable::setComparison(const Comparison& comparison)
{
  const bool compared = comparison.state == Comparison::State::compared;
  replaceRows(comparison.parameters);
  explanation->setText(explanationOf(comparison.state));
  pages->setCurrentIndex(compared ? 1 : 0);
  copyStep->setEnabled(compared);
  saveStep->setEnabled(compared);
}

QString ComparisonTable::tabbedText() const
{
  QList<int> rows;
  for (const QModelIndex& index : view->selectionModel()->selectedRows())
    rows.append(index.row());
  std::sort(rows.begin(), rows.end());
  return textOf(*sorted, rows.isEmpty() ? allRows(*sorted) : rows, QLatin1Char('\t'), onOneLine);
}

QString ComparisonTable::commaText() const
{
  return textOf(*sorted, allRows(*sorted), QLatin1Char(','), quotedIfNeeded);
}

void ComparisonTable::copy()
{
  QApplication::clipboard()->setText(tabbedText());
  emit said(tr("Copied the comparison"));
}

std::string ComparisonTable::save(const QString& path) const
{
  return writeText(path, commaText());
}

/// The table may change while the user chooses a file; what was asked for is written.
void ComparisonTable::chooseFileAndSave()
{
  auto* dialog = new QFileDialog(this, tr("Save the comparison"), {}, tr("Table (*.csv)"));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setOptions(getFileDialogOption());
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setDefaultSuffix(QStringLiteral("csv"));
  const QString base = QFileInfo(window()->windowFilePath()).completeBaseName();
  if (!base.isEmpty())
    dialog->selectFile(base + QStringLiteral("-comparison.csv"));
  connect(dialog, &QFileDialog::fileSelected, this,
          [this, text = commaText()](const QString& path)
          {
            const std::string error = writeText(path, text);
            if (error.empty())
              emit said(tr("Wrote %1").arg(path));
            else
              emit failed(QString::fromStdString(error));
          });
  dialog->open();
}

} // namespace Talmesh::app
