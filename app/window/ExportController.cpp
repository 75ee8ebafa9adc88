#include "app/window/ExportController.h"

#include "app/export/ExportDialog.h"
#include "app/tasks/TaskRunner.h"
#include "app/window/FileDialogs.h"
#include "app/window/TaskBar.h"
#include "widgets/VtkPlotWidget.h"
#include "widgets/WidgetSupport.h"

#include <QFileDialog>

#include <memory>
#include <optional>
#include <utility>

namespace Talmesh::app
{

ExportController::ExportController(VtkPlotWidget& exported, TaskBar& bar, QWidget& parent)
    : QObject(&parent)
    , plot(exported)
    , runner(new TaskRunner(this))
    , window(parent)
{
  bar.follow(*runner, QStringLiteral("cancelExport"));
  connect(&bar, &TaskBar::cancelled, this, &ExportController::cancel);
}

ExportController::~ExportController()
{
  runner->waitForEnd();
  delete runner;
  for (const PaintedPlot& painted : waiting)
    writePlot(painted);
}

void ExportController::choose()
{
  auto* dialog = new QFileDialog(&window, tr("Export"), {}, exportFilters());
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setOptions(getFileDialogOption());
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  const auto suffixOfFilter = [dialog](const QString& filter)
  { dialog->setDefaultSuffix(filter.section(QStringLiteral("*."), 1).section(')', 0, 0)); };
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
            exportTo(path, {dialog->paper(), dialog->vectors(), dialog->dotsPerInch(),
                            dialog->textSize()});
          });
  dialog->open();
}

void ExportController::exportTo(const QString& path, const ExportWishes& wishes)
{
  Result<PaintedPlot> painted = paintPlot(plot, path, wishes);
  if (!painted.hasValue())
  {
    announce(path, painted.error());
    return;
  }
  waiting.push_back(std::move(painted.value()));
  if (!runner->isRunning())
    writeNext();
}

bool ExportController::isExporting() const
{
  return runner->isRunning() || !waiting.empty();
}

void ExportController::whenWritten(std::function<void()> then)
{
  following = std::move(then);
  if (!isExporting())
    end();
}

void ExportController::announce(const QString& path, const std::string& error)
{
  if (!error.empty())
    following = {};
  emit written(path, error);
}

void ExportController::end()
{
  if (const auto then = std::exchange(following, {}))
    then();
}

void ExportController::writeNext()
{
  if (waiting.empty())
  {
    end();
    return;
  }
  const auto next = std::make_shared<const PaintedPlot>(std::move(waiting.front()));
  waiting.pop_front();
  emit said(tr("Writing %1 ...").arg(next->path));
  runner->start<QString>(
      this,
      [this, next](const TaskProgress& progress)
      {
        // What was cancelled may still be at work, on the same file.
        const std::lock_guard<std::mutex> alone(writing);
        return writePlot(*next, progress);
      },
      [this, next](const Result<QString>& result)
      {
        announce(next->path, result.error());
        // Who hears of a file may have asked for another one.
        if (!runner->isRunning())
          writeNext();
      });
}

/// Files that are written already stay.
void ExportController::cancel()
{
  waiting.clear();
  runner->cancel();
  emit stopped(tr("Cancelled"));
  end();
}

} // namespace Talmesh::app
