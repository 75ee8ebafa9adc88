#include "app/comparison/ComparisonTable.h"

#include "app/comparison/ComparisonFile.h"
#include "app/comparison/ComparisonModel.h"
#include "app/comparison/ComparisonSummary.h"
#include "app/comparison/ComparisonText.h"
#include "app/comparison/ComparisonView.h"
#include "app/panels/PanelParts.h"
#include "widgets/WidgetSupport.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QSortFilterProxyModel>
#include <QStackedWidget>

#include <algorithm>

namespace Talmesh::app
{

namespace
{

QString tabbedLine(const QStringList& cells)
{
  QStringList written;
  for (const QString& cell : cells)
    written.append(cell.simplified());
  return written.join(QLatin1Char('\t')) + QLatin1Char('\n');
}

QList<int> allRows(const QAbstractItemModel& table)
{
  QList<int> rows;
  for (int row = 0; row < table.rowCount(); ++row)
    rows.append(row);
  return rows;
}

} // namespace

ComparisonTable::ComparisonTable(QWidget* parent)
    : QWidget(parent)
    , model(new ComparisonModel(this))
    , pages(new QStackedWidget)
    , explanation(makeExplanation({}))
    , summary(new QLabel)
    , view(new ComparisonView(model))
    , sorted(view->sorted())
    , copyStep(addStep(*view, tr("&Copy"), "copyComparison", *this, &ComparisonTable::copy))
    , saveStep(addStep(*view, tr("&Save..."), "saveComparison", *this,
                       &ComparisonTable::chooseFileAndSave))
{
  copyStep->setShortcut(QKeySequence::Copy);
  copyStep->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  copyStep->setToolTip(tr("Copy the table, or its selected rows, for a spreadsheet (Ctrl+C)"));
  saveStep->setToolTip(tr("Write the table to a CSV file"));
  explanation->setObjectName(QStringLiteral("comparisonExplanation"));
  summary->setObjectName(QStringLiteral("comparisonSummary"));
  summary->setWordWrap(true);
  summary->setTextInteractionFlags(Qt::TextSelectableByMouse);

  auto* results = new QWidget;
  auto* grid = new QGridLayout(results);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->addWidget(summary, 0, 0, 1, 2);
  grid->addWidget(view, 1, 0);
  grid->addWidget(makeButtonColumn({copyStep, saveStep}), 1, 1);
  grid->setRowStretch(1, 1);
  grid->setColumnStretch(0, 1);
  pages->addWidget(explanation);
  pages->addWidget(results);
  auto* whole = new QHBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(pages);
  // It takes the room that is left and scrolls.
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  setComparison({}, 0);
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

void ComparisonTable::setComparison(const Comparison& comparison, std::size_t selections)
{
  const bool compared = comparison.state == Comparison::State::compared;
  model->setNames(comparison.sides);
  replaceRows(comparison.parameters);
  summary->setText(summaryText(comparison, selections));
  view->fitColumns();
  explanation->setText(explanationText(comparison));
  pages->setCurrentIndex(compared ? 1 : 0);
  copyStep->setEnabled(compared);
  saveStep->setEnabled(compared);
}

std::vector<ComparedParameter> ComparisonTable::inOrder(const QList<int>& rows) const
{
  std::vector<ComparedParameter> shown;
  for (const int row : rows)
    shown.push_back(model->parameter(sorted->mapToSource(sorted->index(row, 0)).row()));
  return shown;
}

QString ComparisonTable::tabbedText() const
{
  QList<int> rows;
  for (const QModelIndex& index : view->selectionModel()->selectedRows())
    rows.append(index.row());
  std::sort(rows.begin(), rows.end());
  QString text = tabbedLine(comparisonColumns());
  for (const ComparedParameter& row : inOrder(rows.isEmpty() ? allRows(*sorted) : rows))
    text += tabbedLine(comparisonCells(row));
  return text;
}

QString ComparisonTable::commaText() const
{
  return Talmesh::app::commaText(inOrder(allRows(*sorted)));
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
