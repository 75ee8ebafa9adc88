#include "app/window/ExportController.h"

#include "app/export/ExportDialog.h"
#include "app/window/FileDialogs.h"
#include "widgets/VtkPlotWidget.h"
#include "widgets/WidgetSupport.h"

#include <QFileDialog>

#include <optional>

namespace Talmesh::app
{

ExportController::ExportController(VtkPlotWidget& exported, QWidget& parent)
    : QObject(&parent)
    , plot(exported)
    , window(parent)
{
}

void ExportController::choose()
{
  auto* dialog = new QFileDialog(&window, tr("Export"), {},
                                 tr("Picture (*.png);;Vector picture (*.pdf);;Table (*.csv)"));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setOptions(getFileDialogOption());
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  const auto suffixOfFilter = [dialog](const QString& filter)
  { dialog->setDefaultSuffix(filter.section(QStringLiteral("*."), 1).left(3)); };
  suffixOfFilter(dialog->selectedNameFilter());
  suggestName(*dialog);
  connect(dialog, &QFileDialog::filterSelected, dialog, suffixOfFilter);
  connect(dialog, &QFileDialog::fileSelected, this, &ExportController::askForSize);
  dialog->open();
}

void ExportController::askForSize(const QString& path)
{
  const ExportKind kind = exportKindOf(path);
  if (kind != ExportKind::Pixels && kind != ExportKind::Vectors)
  {
    exportTo(path);
    return;
  }
  const std::optional<int> most = kind == ExportKind::Pixels ? mostPixels : std::optional<int>();
  auto* dialog = new ExportDialog(most, plot.size(), &window);
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

bool ExportController::exportTo(const QString& path, Vectors vectors, int dotsPerInch)
{
  return announce(path, exportPlot(plot, path, vectors, dotsPerInch));
}

bool ExportController::exportTo(const QString& path, const PaperSize& paper, Vectors vectors)
{
  return announce(path, exportPlot(plot, path, paper, vectors));
}

bool ExportController::announce(const QString& path, const std::string& error)
{
  emit written(path, error);
  return error.empty();
}

} // namespace Talmesh::app
