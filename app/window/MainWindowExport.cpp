#include "app/export/ExportDialog.h"
#include "app/window/MainWindow.h"
#include "widgets/VtkPlotWidget.h"
#include "widgets/WidgetSupport.h"

#include <QFileDialog>
#include <QStatusBar>

namespace Talmesh::app
{

namespace
{

constexpr int noteMilliseconds = 10000;

} // namespace

void MainWindow::chooseExport()
{
  auto* dialog = new QFileDialog(this, tr("Export"), {},
                                 tr("Picture (*.png);;Vector picture (*.pdf);;Table (*.csv)"));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setOptions(getFileDialogOption());
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  const auto suffixOfFilter = [dialog](const QString& filter)
  { dialog->setDefaultSuffix(filter.section(QStringLiteral("*."), 1).left(3)); };
  suffixOfFilter(dialog->selectedNameFilter());
  connect(dialog, &QFileDialog::filterSelected, dialog, suffixOfFilter);
  connect(dialog, &QFileDialog::fileSelected, this, &MainWindow::askForSizeAndExport);
  dialog->open();
}

bool MainWindow::exportTo(const QString& path, Vectors vectors, int dotsPerInch)
{
  return sayWhatWasWritten(path, exportPlot(*plot, path, vectors, dotsPerInch));
}

bool MainWindow::exportTo(const QString& path, const PaperSize& paper, Vectors vectors)
{
  return sayWhatWasWritten(path, exportPlot(*plot, path, paper, vectors));
}

void MainWindow::askForSizeAndExport(const QString& path)
{
  const ExportKind kind = exportKindOf(path);
  if (kind != ExportKind::Pixels && kind != ExportKind::Vectors)
  {
    exportTo(path);
    return;
  }
  const std::optional<int> most = kind == ExportKind::Pixels ? mostPixels : std::optional<int>();
  auto* dialog = new ExportDialog(most, plot->size(), this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &QDialog::accepted, this,
          [this, dialog, path]
          {
            const std::optional<PaperSize> paper = dialog->paper();
            paper ? exportTo(path, *paper, dialog->vectors())
                  : exportTo(path, dialog->vectors(), dialog->dotsPerInch());
          });
  dialog->open();
}

bool MainWindow::sayWhatWasWritten(const QString& path, const std::string& error)
{
  if (error.empty())
    statusBar()->showMessage(tr("Wrote %1").arg(path), noteMilliseconds);
  else
    showError(QString::fromStdString(error));
  return error.empty();
}

} // namespace Talmesh::app
