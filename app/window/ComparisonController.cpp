#include "app/window/ComparisonController.h"

#include "app/comparison/ComparisonDock.h"
#include "app/comparison/SideBoxes.h"
#include "app/document/Document.h"
#include "app/tasks/TaskRunner.h"
#include "app/window/TaskBar.h"

namespace Talmesh::app
{

namespace
{

std::vector<NamedSide> keptSides(const KeptSelections& kept)
{
  std::vector<NamedSide> sides;
  for (const KeptSelection& selection : kept.list())
    sides.push_back({selection.name, QColor::fromRgb(selection.colour)});
  return sides;
}

} // namespace

ComparisonController::ComparisonController(ComparisonDock& panel, Document& shown, TaskBar& bar,
                                           QObject* parent)
    : QObject(parent)
    , dock(panel)
    , document(shown)
    , runner(new TaskRunner(this))
{
  bar.follow(*runner, QStringLiteral("cancelComparing"));
  SelectionComparison& comparison = document.comparison();
  connect(&bar, &TaskBar::cancelled, &comparison, &SelectionComparison::giveUp);
  const auto start = [this, &comparison](const SelectionComparison::Work& work,
                                         const std::function<void(const Comparison&)>& deliver)
  {
    runner->start<Comparison>(
        this, [work](const TaskProgress& progress) { return Result<Comparison>(work(progress)); },
        [this, &comparison, deliver](const Result<Comparison>& found)
        {
          if (found.hasValue())
          {
            deliver(found.value());
            return;
          }
          comparison.giveUp();
          emit failed(QString::fromStdString(found.error()));
        });
  };
  comparison.setBackground({start, [this] { runner->cancel(); }});
}

ComparisonController::~ComparisonController()
{
  document.comparison().setBackground({});
  // Its thread must not outlive what it reports to.
  delete runner;
}

bool ComparisonController::isComparing() const
{
  return runner->isRunning();
}

void ComparisonController::refresh()
{
  // The panel rests while a chart of its own is shown.
  const bool own = document.study().chart != nullptr;
  SelectionComparison& comparison = document.comparison();
  dock.refresh(*document.container(), own ? Comparison() : comparison.current(),
               comparison.selections(), keptSides(document.kept()));
}

} // namespace Talmesh::app
