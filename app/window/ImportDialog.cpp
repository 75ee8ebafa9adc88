#include "app/window/ImportDialog.h"

#include "app/import/RequestWords.h"
#include "app/window/ImportModel.h"
#include "app/window/ImportSummary.h"
#include "app/window/ReadingChoices.h"
#include "app/window/ReadingQuestion.h"
#include "app/window/ReadingTemplates.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QTableView>

#include <algorithm>
#include <utility>

namespace Talmesh::app
{

ImportDialog::ImportDialog(const QStringList& paths, const ImportRequest& request, QWidget* parent)
    : QDialog(parent)
    , files(paths)
    , asked(request)
    , preview(new ReadingPreview(paths, this))
    , model(new ImportModel(this))
    , choices(new ReadingChoices)
    , table(makeTable())
    , roleLabel(new QLabel)
    , roleBox(new QComboBox)
    , count(new QLabel)
    , notes(new QListWidget)
    , commandLine(new QLineEdit)
    , remember(new QCheckBox(tr("&Remember for tables with these columns")))
    , buttons(new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel))
{
  setObjectName(QStringLiteral("importDialog"));
  setWindowTitle(tr("Open %1 as")
                     .arg(paths.size() == 1 ? QFileInfo(paths.front()).fileName()
                                            : tr("%1 files").arg(paths.size())));
  layOut();
  connectParts();
  takeFirstSize();
  showRequest();
  readAgain();
}

void ImportDialog::connectParts()
{
  connect(choices, &ReadingChoices::changed, this, &ImportDialog::readAgain);
  connect(model, &ImportModel::rolesChanged, this, &ImportDialog::readAgain);
  connect(model, &ImportModel::headerDataChanged, this, &ImportDialog::showRole);
  connect(preview, &ReadingPreview::rowsRead, this, &ImportDialog::showRows);
  connect(preview, &ReadingPreview::understood, this, &ImportDialog::showReading);
  connect(table->selectionModel(), &QItemSelectionModel::currentChanged, this,
          &ImportDialog::showRole);
  connect(table->horizontalHeader(), &QHeaderView::sectionClicked, this, &ImportDialog::offerRoles);
  connect(table, &QWidget::customContextMenuRequested, this,
          [this] { offerRoles(table->currentIndex().column()); });
  connect(roleBox, QOverload<int>::of(&QComboBox::activated), this,
          [this]
          {
            if (table->currentIndex().isValid())
              model->setRole(table->currentIndex().column(),
                             static_cast<ColumnRole>(roleBox->currentData().toInt()));
          });
  connect(notes, &QListWidget::currentRowChanged, this, &ImportDialog::showLine);
  connect(notes, &QListWidget::itemClicked, this,
          [this](QListWidgetItem* item) { showLine(notes->row(item)); });
  connect(buttons, &QDialogButtonBox::accepted, this, &ImportDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &ImportDialog::reject);
}

ImportRequest ImportDialog::request() const
{
  ImportRequest said = asked;
  choices->addTo(said);
  // Before the rows are there nothing is known of columns.
  if (model->columnCount() > 0)
    model->addTo(said);
  return said;
}

/// Brings the fields into line with what is asked.
void ImportDialog::showRequest()
{
  choices->offer(true, !asked.sheet.empty(), files.size() > 1 || !asked.files.empty());
  choices->take(asked);
  model->takeRoles(asked);
}

void ImportDialog::readAgain()
{
  asked = request();
  std::string words = "talmesh-plot";
  for (const QString& file : files.mid(0, 20))
    words += ' ' + quotedForShell(file.toStdString());
  const std::string options = optionsOf(asked);
  commandLine->setText(QString::fromStdString(options.empty() ? words : words + ' ' + options));
  commandLine->setCursorPosition(0);
  count->setText(tr("Reading ..."));
  latest = {};
  buttons->button(QDialogButtonBox::Open)->setEnabled(true);
  preview->read(asked);
}

void ImportDialog::showRows(const FirstRows& rows)
{
  const bool isKnown = !rows.roles.headers.empty();
  choices->offer(rows.isText() || !isKnown, preview->hasParts(),
                 files.size() > 1 || QFileInfo(files.front()).isDir());
  if (model->setRows(rows))
  {
    table->resizeColumnsToContents();
    table->setCurrentIndex(model->index(0, 0));
  }
  if (!isLookedUp)
    takeRemembered();
}

void ImportDialog::takeRemembered()
{
  isLookedUp = true;
  remember->setEnabled(!preview->headerKey().empty());
  const ReadingTemplates kept = ReadingTemplates::kept();
  const ImportRequest* remembered = kept.find(preview->headerKey());
  remember->setChecked(remembered != nullptr);
  if (!remembered || !optionsOf(asked).empty())
    return;
  asked = *remembered;
  showRequest();
  readAgain();
}

void ImportDialog::showReading(const PreviewedReading& reading)
{
  latest = reading;
  const bool isSure = reading.refusal.isEmpty() && !reading.report.isUnsure();
  const bool isRead = isSure && !reading.report.layout.empty();
  model->setReport(reading.report);
  choices->tell(reading.report, model->rows().separator);
  if (reading.isSample)
    count->setText(isRead ? tr("Reading ... (so far %1)").arg(sizeOf(reading.report))
                          : tr("Reading ..."));
  else
    count->setText(isSure                      ? sizeOf(reading.report)
                   : reading.report.isUnsure() ? tr("It may be read in several ways: choose one")
                                               : tr("It cannot be read so"));
  buttons->button(QDialogButtonBox::Open)->setEnabled(reading.isSample || isSure);
  showNotes(reading);
}

void ImportDialog::showNotes(const PreviewedReading& reading)
{
  const QSignalBlocker quiet(notes);
  notes->clear();
  const auto add = [this](QStyle::StandardPixmap icon, const QString& text)
  { notes->addItem(new QListWidgetItem(style()->standardIcon(icon), text)); };
  for (const ImportCandidate& candidate : reading.report.candidates)
    add(QStyle::SP_MessageBoxQuestion,
        QStringLiteral("%1: %2").arg(titleOf(candidate), QString::fromStdString(candidate.reason)));
  if (!reading.refusal.isEmpty())
    add(QStyle::SP_MessageBoxCritical, reading.refusal);
  for (const std::string& warning : reading.report.warnings)
    add(QStyle::SP_MessageBoxWarning, QString::fromStdString(warning));
  if (model->rows().columns() < model->rows().roles.headers.size())
    add(QStyle::SP_MessageBoxInformation, tr("The first %1 of %2 columns are shown.")
                                              .arg(model->rows().columns())
                                              .arg(model->rows().roles.headers.size()));
  for (const std::string& reason : reading.report.reasons)
    add(QStyle::SP_MessageBoxInformation, QString::fromStdString(reason));
}

/// Goes to the row that a note tells of.
void ImportDialog::showLine(int row)
{
  const QListWidgetItem* note = notes->item(row);
  const int shown = note ? model->rowOfLine(lineIn(note->text())) : -1;
  if (shown >= 0)
    table->setCurrentIndex(model->index(shown, std::max(table->currentIndex().column(), 0)));
}

void ImportDialog::showRole()
{
  const int column = table->currentIndex().column();
  roleLabel->setVisible(column >= 0);
  roleBox->setVisible(column >= 0);
  if (column < 0)
    return;
  roleLabel->setText(tr("&Column %1 is")
                         .arg(model->nameOfColumn(column).left(24).replace(QLatin1Char('&'),
                                                                           QStringLiteral("&&"))));
  roleBox->setAccessibleName(tr("Role of the column %1").arg(model->nameOfColumn(column)));
  const QSignalBlocker quiet(roleBox);
  roleBox->setCurrentIndex(roleBox->findData(static_cast<int>(model->askedRole(column))));
}

/// Opens a menu below the column's header.
void ImportDialog::offerRoles(int column)
{
  if (column < 0)
    return;
  table->setCurrentIndex(model->index(std::max(table->currentIndex().row(), 0), column));
  auto* menu = new QMenu(this);
  menu->setObjectName(QStringLiteral("columnRoles"));
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const ColumnRole role : columnRoles())
  {
    QAction* action = menu->addAction(nameOf(role));
    action->setCheckable(true);
    action->setChecked(role == model->askedRole(column));
    connect(action, &QAction::triggered, model,
            [this, column, role] { model->setRole(column, role); });
  }
  const QHeaderView* header = table->horizontalHeader();
  menu->popup(header->viewport()->mapToGlobal(
      QPoint(header->sectionViewportPosition(column), header->height())));
}

void ImportDialog::accept()
{
  const ImportRequest said = request();
  const std::string& key = preview->headerKey();
  if (!key.empty() && remember->isChecked() && !optionsOf(said).empty())
    ReadingTemplates::keep(key, said);
  else if (!key.empty())
    ReadingTemplates::forget(key);
  QDialog::accept();
}

ImportDialog* askHowToRead(QWidget* window, const QStringList& paths, const ImportRequest& request,
                           std::function<void(const ImportRequest&)> chosen)
{
  auto* dialog = new ImportDialog(paths, request, window);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  QObject::connect(dialog, &QDialog::accepted, window,
                   [dialog, chosen = std::move(chosen)] { chosen(dialog->request()); });
  dialog->open();
  return dialog;
}

} // namespace Talmesh::app
