#include "app/document/RunNormaliser.h"

#include "external/PlotMetaData.h"
#include "plot/AxisWindows.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotTable.h"
#include "plot/TableColumns.h"

#include <vtkTable.h>

#include <QUndoCommand>

#include <algorithm>
#include <iterator>

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

/// A column behind those of the items has been added to the runs.
bool RunNormaliser::isScalable(int column) const
{
  // Without runs over time there would be nothing to compare a maximum with.
  const bool runs = container && container->getMetaData()->getStride() > 1;
  if (!runs || !plot::doubleColumn(container->getTable(), column) ||
      plot::columnName(container->getTable(), column).empty())
    return false;
  const auto& items = container->getColumnItems();
  const auto item = static_cast<std::size_t>(column);
  return item >= items.size() ||
         (items[item].first != TimeOrValue && items[item].first != Parameter);
}

std::vector<int> RunNormaliser::scalable(const std::vector<int>& columns) const
{
  std::vector<int> found;
  std::copy_if(columns.begin(), columns.end(), std::back_inserter(found),
               [this](int column) { return isScalable(column); });
  return found;
}

std::vector<int> RunNormaliser::normalised() const
{
  std::vector<int> columns;
  for (const auto& [column, original] : kept)
    columns.push_back(column);
  return columns;
}

vtkSmartPointer<vtkTable> RunNormaliser::originalTable() const
{
  auto table = vtkSmartPointer<vtkTable>::New();
  if (container)
    table->ShallowCopy(container->getTable());
  // A column of the same name takes the place of the one that is there.
  for (const auto& [column, original] : kept)
    table->AddColumn(plot::makeColumn(plot::columnName(table, column), original.values));
  return table;
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
  // A window belongs to the first y column, but shows all of them.
  const std::vector<int>& shown = container->getMetaData()->yColumns;
  std::vector<int> changedColumns = columns;
  if (std::find_first_of(shown.begin(), shown.end(), columns.begin(), columns.end()) != shown.end())
    changedColumns.push_back(shown.front());
  plot::forgetWindows(stateOf(*container), changedColumns);
  emit changed();
}

bool RunNormaliser::scale(int column)
{
  if (!isScalable(column) || kept.count(column) > 0)
    return false;
  vtkDoubleArray* values = plot::doubleColumn(container->getTable(), column);
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
  plot::tableChanged(stateOf(*container));
  container->generateQuartiles();
  return true;
}

QUndoCommand* RunNormaliser::makeCommand(const std::vector<int>& columns, bool on)
{
  return new NormaliseCommand(this, columns, on);
}

} // namespace Talmesh::app
