#include "app/document/ColouredRuns.h"

#include "app/document/ColourKey.h"
#include "app/import/TranslatedText.h"
#include "plot/PlotContainer.h"
#include "plot/TableColumns.h"

#include <vtkChart.h>
#include <vtkChartParallelCoordinates.h>
#include <vtkLookupTable.h>
#include <vtkPlotParallelCoordinates.h>
#include <vtkPlotPoints.h>
#include <vtkScatterPlotMatrix.h>

#include <algorithm>

namespace Talmesh::app
{

namespace
{

const QColor colourOfOthers(190, 190, 190);

ColourKey::Entries entriesOf(const RunGroups& groups)
{
  ColourKey::Entries entries;
  for (std::size_t group = 0; group < groups.names.size(); ++group)
    entries.emplace_back(groups.names[group], colourOf(groups, static_cast<int>(group)));
  return entries;
}

/// How runs are coloured.
struct RunColours
{
  vtkSmartPointer<vtkLookupTable> ofGroups;
  vtkIdType runs;
};

RunColours coloursOf(const RunGroups& groups)
{
  const auto count = static_cast<int>(groups.names.size());
  auto colours = vtkSmartPointer<vtkLookupTable>::New();
  colours->SetNumberOfTableValues(count);
  // Each number in the middle of its part of the range.
  colours->SetRange(-0.5, count - 0.5);
  for (int group = 0; group < count; ++group)
  {
    const QColor colour = colourOf(groups, group);
    colours->SetTableValue(group, colour.redF(), colour.greenF(), colour.blueF(), 1.0);
  }
  return {colours, static_cast<vtkIdType>(groups.groupOfRun.size())};
}

/// VTK's plots of points and of lines across axes have the same way to be coloured, but no common
/// class that has it.
/// @return whether it is
template <typename Plot>
bool colourBy(Plot* plot, const RunColours& colours)
{
  const int column = plot ? plot::columnIndex(plot->GetInput(), groupColumnName()) : -1;
  // Groups of other runs say nothing of these.
  if (column < 0 || plot->GetInput()->GetNumberOfRows() != colours.runs)
    return false;
  plot->SetLookupTable(colours.ofGroups);
  plot->SelectColorArray(static_cast<vtkIdType>(column));
  plot->SetScalarVisibility(true);
  return true;
}

bool colourCell(vtkChart* cell, const RunColours& colours)
{
  bool any = false;
  for (vtkIdType i = 0; cell && i < cell->GetNumberOfPlots(); ++i)
    any = colourBy(vtkPlotPoints::SafeDownCast(cell->GetPlot(i)), colours) || any;
  return any;
}

bool colourMatrix(vtkScatterPlotMatrix* matrix, const RunGroups& groups)
{
  // Its cells are made here.
  matrix->Update();
  const vtkVector2i size = matrix->GetSize();
  const RunColours colours = coloursOf(groups);
  for (int column = 0; column < size.GetX(); ++column)
    for (int row = 0; row + column + 1 < size.GetY(); ++row)
      colourCell(matrix->GetChart({column, row}), colours);
  return colourCell(matrix->GetMainChart(), colours);
}

} // namespace

RunGroups groupsOfKept(const std::vector<KeptSelection>& kept, std::size_t runs)
{
  RunGroups groups;
  if (kept.empty())
    return groups;
  groups.groupOfRun.assign(runs, othersOfKept);
  groups.names.push_back(translated("ColouredRuns", "Other runs"));
  groups.colours.push_back(colourOfOthers);
  for (const KeptSelection& selection : kept)
  {
    const auto group = static_cast<int>(groups.names.size());
    groups.names.push_back(selection.name);
    groups.colours.push_back(QColor::fromRgb(selection.colour));
    for (std::size_t run = 0; run < std::min(runs, selection.runs.size()); ++run)
      if (selection.runs[run])
        groups.groupOfRun[run] = group;
  }
  return groups;
}

const char* groupColumnName()
{
  return "TalmeshRunGroup";
}

void colourCharts(PlotContainer& container, const RunGroups& groups)
{
  vtkAbstractContextItem* item = container.getItem();
  auto* lines = vtkChartParallelCoordinates::SafeDownCast(item);
  auto* matrix = vtkScatterPlotMatrix::SafeDownCast(item);
  if (!lines && !matrix)
    return;
  // Of rows no groups are known.
  bool any = !groups.names.empty() && container.showsSummary();
  if (any && lines)
    any = colourBy(vtkPlotParallelCoordinates::SafeDownCast(lines->GetPlot(0)), coloursOf(groups));
  else if (any)
    any = colourMatrix(matrix, groups);
  ColourKey::placeIn(item, any ? entriesOf(groups) : ColourKey::Entries());
}

void colourPair(PlotContainer& container, const RunGroups& groups)
{
  auto* matrix = vtkScatterPlotMatrix::SafeDownCast(container.getItem());
  if (matrix && !groups.names.empty() && container.showsSummary())
    colourCell(matrix->GetMainChart(), coloursOf(groups));
}

} // namespace Talmesh::app
