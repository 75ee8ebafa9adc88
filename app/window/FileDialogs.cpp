#include "app/window/FileDialogs.h"

#include "widgets/FileWriter.h"
#include "widgets/WidgetSupport.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMessageBox>

#include <utility>

namespace Talmesh::app
{

namespace
{

QFileDialog* makeDialog(QWidget* parent, const QString& title, const QString& filter,
                        FileChosen chosen)
{
  auto* dialog = new QFileDialog(parent, title, {}, filter);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setOptions(getFileDialogOption());
  QObject::connect(dialog, &QFileDialog::fileSelected, parent, std::move(chosen));
  return dialog;
}

} // namespace

QFileDialog* askToOpen(QWidget* parent, const QString& title, const QString& filter,
                       FileChosen chosen)
{
  QFileDialog* dialog = makeDialog(parent, title, filter, std::move(chosen));
  dialog->setFileMode(QFileDialog::ExistingFile);
  dialog->open();
  return dialog;
}

QFileDialog* askToOpenSeveral(QWidget* parent, const QString& title, const QString& filter,
                              std::function<void(const QStringList&)> chosen)
{
  QFileDialog* dialog = makeDialog(parent, title, filter, [](const QString&) {});
  QObject::connect(dialog, &QFileDialog::filesSelected, parent, std::move(chosen));
  dialog->setFileMode(QFileDialog::ExistingFiles);
  dialog->open();
  return dialog;
}

QFileDialog* askToSave(QWidget* parent, const QString& title, const QString& filter,
                       const QString& suffix, FileChosen chosen)
{
  QFileDialog* dialog = makeDialog(parent, title, filter, std::move(chosen));
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setDefaultSuffix(suffix);
  suggestName(*dialog);
  dialog->open();
  return dialog;
}

QFileDialog* askToSaveTable(QWidget* parent, const QString& title, const std::string& text,
                            std::function<void(const QString&, const QString&)> written)
{
  return askToSave(parent, title, QCoreApplication::translate("FileDialogs", "Table (*.csv)"),
                   QStringLiteral("csv"),
                   [text, written = std::move(written)](const QString& path)
                   {
                     const QString reason =
                         writeFile(path, text.data(), static_cast<qint64>(text.size()));
                     written(path, reason.isEmpty() ? QString() : path + ": " + reason);
                   });
}

void suggestName(QFileDialog& dialog)
{
  const QString shown = dialog.parentWidget()->window()->windowFilePath();
  const QString base = QFileInfo(shown).completeBaseName();
  if (!base.isEmpty())
    dialog.selectFile(base + QLatin1Char('.') + dialog.defaultSuffix());
}

void warn(QWidget* parent, const QString& message)
{
  auto* box = new QMessageBox(QMessageBox::Warning, QStringLiteral("Talmesh Plot"), message,
                              QMessageBox::Ok, parent);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setTextFormat(Qt::PlainText);
  box->open();
}

} // namespace Talmesh::app
