#include "app/SelectionController.h"

#include "app/RunSelectionFile.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/RunLayout.h"
#include "plot/SelectionNodes.h"

#include <vtkCommand.h>
#include <vtkIntArray.h>
#include <vtkTable.h>

#include <QMetaObject>

#include <memory>
#include <numeric>
#include <vector>

namespace Talmesh::app
{

namespace
{

/// Each step keeps copies of the selected rows.
constexpr int mostSteps = 100;

std::unique_ptr<ParameterSelection> runsOf(PlotContainer* container)
{
  return std::unique_ptr<ParameterSelection>(container ? container->getSelection() : nullptr);
}

vtkIdType selectedRows(const PlotContainer& container)
{
  const auto flags = vtkSmartPointer<vtkIntArray>::Take(container.getCurrentSelection());
  if (!flags)
    return 0;
  const int* first = flags->GetPointer(0);
  return std::accumulate(first, first + flags->GetNumberOfValues(), vtkIdType(0));
}

} // namespace

SelectionController::SelectionController(QObject* parent)
    : QObject(parent)
    , history(stack)
{
  stack.setUndoLimit(mostSteps);
}

SelectionController::~SelectionController()
{
  stopObserving();
}

void SelectionController::follow(PlotContainer* followed)
{
  stopObserving();
  container = followed;
  link = followed ? followed->getAnnotationLink() : nullptr;
  if (link)
    observerTag = link->AddObserver(vtkCommand::AnnotationChangedEvent, this,
                                    &SelectionController::announceLater);
  history.follow(followed);
  history.restart();
}

void SelectionController::restartHistory()
{
  history.restart();
}

void SelectionController::stopObserving()
{
  if (link)
    link->RemoveObserver(observerTag);
  link = nullptr;
}

void SelectionController::announceLater()
{
  if (announcing)
    return;
  announcing = true;
  QMetaObject::invokeMethod(
      this,
      [this]
      {
        announcing = false;
        emit changed();
      },
      Qt::QueuedConnection);
}

void SelectionController::selectAll()
{
  if (!container)
    return;
  std::vector<vtkIdType> rows(static_cast<std::size_t>(container->getTable()->GetNumberOfRows()));
  std::iota(rows.begin(), rows.end(), 0);
  container->getAnnotationLink()->SetCurrentSelection(plot::makeRowSelection(rows));
}

void SelectionController::clear()
{
  if (container)
    container->getAnnotationLink()->SetCurrentSelection(plot::makeRowSelection({}));
}

std::string SelectionController::save(const QString& path) const
{
  const std::unique_ptr<ParameterSelection> runs = runsOf(container);
  if (!runs)
    return tr("This table has no runs to select.").toStdString();
  return saveRunSelection(path, *runs);
}

std::string SelectionController::load(const QString& path)
{
  LoadedRunSelection loaded = loadRunSelection(path);
  if (!loaded.error.empty())
    return loaded.error;
  if (!runsOf(container))
    return tr("This table has no runs to select.").toStdString();
  container->setSelection(&loaded.selection, 0);
  return {};
}

QString SelectionController::summary() const
{
  if (!container)
    return {};
  const vtkIdType rows = container->getTable()->GetNumberOfRows();
  if (const std::unique_ptr<ParameterSelection> runs = runsOf(container))
  {
    const plot::RunLayout layout = {rows, container->getMetaData()->getStride()};
    return tr("%1 of %2 runs selected").arg(runs->runs.size()).arg(layout.runs());
  }
  return tr("%1 of %2 rows selected").arg(selectedRows(*container)).arg(rows);
}

} // namespace Talmesh::app
