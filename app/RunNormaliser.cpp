#include "app/RunNormaliser.h"

#include "plot/AxisWindows.h"
#include "plot/PlotContainer.h"
#include "plot/PlotTable.h"
#include "plot/TableColumns.h"

#include <vtkTable.h>

#include <QUndoCommand>

#include <algorithm>

namespace Talmesh::app
{

namespace
{

class NormaliseCommand : public QUndoCommand
{
public:
  NormaliseCommand(RunNormaliser* by, std::vector<int> ofColumns, bool normalise)
      : normaliser(by)
      , columns(std::move(ofColumns))
      , on(normalise)
  {
    setText(on ? RunNormaliser::tr("Normalise Runs") : RunNormaliser::tr("Reload Values"));
  }

  void undo() override { set(!on); }
  void redo() override { set(on); }

private:
  void set(bool normalise)
  {
    if (normaliser)
      normaliser->setNormalised(columns, normalise);
  }

  QPointer<RunNormaliser> normaliser;
  std::vector<int> columns;
  bool on;
};

} // namespace

RunNormaliser::RunNormaliser(QObject* parent)
    : QObject(parent)
{
}

RunNormaliser::~RunNormaliser()
{
  follow(nullptr);
}

void RunNormaliser::follow(PlotContainer* followed)
{
  // The study's values are the columns' own, which live on even where the container has died.
  for (auto& [index, original] : kept)
  {
    std::copy(original.values.begin(), original.values.end(), original.column->GetPointer(0));
    original.column->Modified();
  }
  kept.clear();
  container = followed;
}

bool RunNormaliser::isNormalised(const std::vector<int>& columns) const
{
  return !columns.empty() && std::all_of(columns.begin(), columns.end(),
                                         [this](int column) { return kept.count(column) > 0; });
}

void RunNormaliser::setNormalised(const std::vector<int>& columns, bool on)
{
  bool any = false;
  for (const int column : columns)
    any = (on ? scale(column) : reload(column)) || any;
  if (!any)
    return;
  plot::forgetWindows(container->state(), columns);
  emit changed();
}

bool RunNormaliser::scale(int column)
{
  vtkDoubleArray* values = container ? plot::doubleColumn(container->getTable(), column) : nullptr;
  if (!values || kept.count(column) > 0)
    return false;
  const double* first = values->GetPointer(0);
  kept[column] = {values, {first, first + values->GetNumberOfValues()}};
  container->scaleRelativeToMaxWithinTrajectory(column);
  return true;
}

bool RunNormaliser::reload(int column)
{
  const auto found = kept.find(column);
  if (found == kept.end() || !container)
    return false;
  const Kept& original = found->second;
  std::copy(original.values.begin(), original.values.end(), original.column->GetPointer(0));
  original.column->Modified();
  kept.erase(found);
  container->getTable()->Modified();
  plot::tableChanged(container->state());
  container->generateQuartiles();
  return true;
}

QUndoCommand* RunNormaliser::makeCommand(const std::vector<int>& columns, bool on)
{
  return new NormaliseCommand(this, columns, on);
}

} // namespace Talmesh::app
