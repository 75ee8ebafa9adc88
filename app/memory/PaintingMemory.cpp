#include "app/memory/PaintingMemory.h"

#include "app/import/TranslatedText.h"
#include "app/styles/ViewerStyles.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/SelectionFlags.h"

#include <vtkAbstractContextItem.h>
#include <vtkContextScene.h>
#include <vtkTable.h>

#include <algorithm>

namespace Talmesh::app
{

namespace
{

/// A point is kept by its plot, by the painter and by the driver, in two floats each.
constexpr std::size_t bytesPerPoint = 3 * 2 * sizeof(float);

/// A pixel is kept by what is painted on, by the layer and the counters of both threads that runs
/// are counted with, by their opacity, and by the picture of the runs while highlighted ones are
/// counted.
constexpr std::size_t bytesPerPixel = 4 + 4 + 2 * 4 + 1 + 4;

/// Those that a style shows which shows all.
vtkIdType shownColumns(const PlotContainer& container)
{
  vtkTable* table = container.getTable();
  vtkIdType columns = table->GetNumberOfColumns();
  if (container.getOptions().showsSelectionMarks)
    return columns;
  for (vtkIdType i = 0; i < table->GetNumberOfColumns(); ++i)
  {
    const char* name = table->GetColumn(i)->GetName();
    if (name && plot::isSelectionMark(name))
      --columns;
  }
  return columns;
}

/// Pages of several charts draw all rows in some of them.
bool drawsOnlyRuns(const PlotContainer& container)
{
  return container.showsSummary() && !styleOf(*container.getMetaData()).comparesRuns;
}

std::size_t bytesPerRow(const PlotContainer& container)
{
  const PlotMetaData& settings = *container.getMetaData();
  PageColumns columns = pageColumns(settings, shownColumns(container));
  if (drawsOnlyRuns(container))
  {
    columns.all = container.getSummary().columns.size();
    columns.chosen = columns.all;
    columns.limited = false;
  }
  return styleOf(settings).pointsOfRow(columns) * bytesPerPoint;
}

std::size_t drawnRows(const PlotContainer& container)
{
  const bool runs = drawsOnlyRuns(container);
  vtkTable* table = runs ? container.getSummary().table.Get() : container.getTable();
  return static_cast<std::size_t>(table->GetNumberOfRows());
}

/// Pages that compare selected runs with others hold copies of both.
std::size_t splitBytesPerRow(const PlotContainer& container)
{
  const PlotMetaData& settings = *container.getMetaData();
  if (!styleOf(settings).comparesRuns || settings.parameterColumns.empty())
    return 0;
  return static_cast<std::size_t>(container.getTable()->GetNumberOfColumns()) * sizeof(double);
}

QSize sceneOf(const PlotContainer& container)
{
  const vtkAbstractContextItem* item = container.getItem();
  vtkContextScene* scene = item ? const_cast<vtkAbstractContextItem*>(item)->GetScene() : nullptr;
  return scene ? QSize(scene->GetSceneWidth(), scene->GetSceneHeight()) : QSize();
}

} // namespace

std::size_t memoryToPaint(const PlotContainer& container, const QSize& pixels)
{
  const std::size_t rows = drawnRows(container);
  const auto width = static_cast<std::size_t>(std::max(pixels.width(), 0));
  const auto height = static_cast<std::size_t>(std::max(pixels.height(), 0));
  return rows * bytesPerRow(container) + width * height * bytesPerPixel;
}

std::size_t memoryToDraw(const PlotContainer& container)
{
  const auto rows = static_cast<std::size_t>(container.getTable()->GetNumberOfRows());
  return memoryToPaint(container, sceneOf(container)) + rows * splitBytesPerRow(container);
}

std::string missingMemory()
{
  return translated("PaintingMemory", "there is not enough memory for this picture");
}

} // namespace Talmesh::app
