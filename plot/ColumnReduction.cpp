#include "plot/ColumnReduction.h"

#include "external/PlotMetaData.h"
#include "plot/AxisWindows.h"
#include "plot/PlotState.h"
#include "plot/PlotTable.h"
#include "plot/ScatterMatrix.h"
#include "plot/SelectionFlags.h"
#include "plot/TableColumns.h"
#include "vtk/vtkSelectableChartXY.h"

#include <vtkDataSetAttributes.h>
#include <vtkPlot.h>

#include <algorithm>
#include <iostream>
#include <map>
#include <set>

namespace Talmesh::plot
{

namespace
{

void storeWindow(PlotState& state)
{
  const auto window = state.coordinateWindows.find(currentKey(state));
  if (window != state.coordinateWindows.end())
    state.metaData->storedCoordinateWindow = window->second;
  state.coordinateWindows.clear();
  state.windowScales.clear();
}

bool hasColorColumn(const PlotState& state)
{
  return state.metaData->colorColumn > 0 &&
         state.metaData->colorColumn < state.table->GetNumberOfColumns();
}

/// In ascending order and once each: the settings may name a column in several lists.
std::set<int> usedColumns(const PlotState& state)
{
  const PlotMetaData& settings = *state.metaData;
  const int columns = static_cast<int>(state.table->GetNumberOfColumns());
  std::set<int> used;
  for (const auto* list :
       {&settings.xColumns, &settings.yColumns, &settings.zColumns, &settings.parameterColumns})
    used.insert(list->begin(), list->end());
  for (std::size_t i = 0; i < state.columnItems.size(); ++i)
  {
    if (state.columnItems[i].first == Talmesh::TimeOrValue)
      used.insert(static_cast<int>(i));
  }
  if (hasColorColumn(state))
    used.insert(settings.colorColumn);
  else
    std::cerr << "invalid color column :" << settings.colorColumn << std::endl;
  used.erase(used.begin(), used.lower_bound(0));
  used.erase(used.lower_bound(columns), used.end());
  return used;
}

void renumber(PlotState& state, const std::set<int>& used)
{
  PlotMetaData& settings = *state.metaData;
  std::map<int, int> places;
  for (const int column : used)
    places.emplace(column, static_cast<int>(places.size()));
  for (auto* list :
       {&settings.xColumns, &settings.yColumns, &settings.zColumns, &settings.parameterColumns})
  {
    for (int& column : *list)
    {
      if (const auto place = places.find(column); place != places.end())
        column = place->second;
    }
  }
  const bool colored =
      settings.colorColumn >= 0 && settings.colorColumn < state.table->GetNumberOfColumns();
  if (hasColorColumn(state))
    settings.colorColumn = places[settings.colorColumn];
  else if (colored && used.count(settings.colorColumn) == 0)
    settings.colorColumn = -1;
}

void removeUnused(PlotState& state, const std::set<int>& used)
{
  std::vector<Talmesh::TypedConcentrationName> items;
  for (int column = static_cast<int>(state.table->GetNumberOfColumns()) - 1; column >= 0; --column)
  {
    // The table's own removal goes by name and takes the first column of that name.
    if (used.count(column) == 0)
      state.table->GetRowData()->RemoveArray(column);
    else if (static_cast<std::size_t>(column) < state.columnItems.size())
      items.push_back(state.columnItems[static_cast<std::size_t>(column)]);
  }
  std::reverse(items.begin(), items.end());
  state.columnItems = items;
}

/// The chart first looks for columns that have gone from the former table: bars and areas are
/// expected to have those that their input had when the chart saw it first.
void feedFrom(vtkChart* chart, vtkTable* from, vtkTable* to)
{
  if (auto* settled = vtkSelectableChartXY::SafeDownCast(chart))
    settled->SettleScales();
  for (vtkIdType i = 0; chart && i < chart->GetNumberOfPlots(); ++i)
  {
    vtkPlot* plot = chart->GetPlot(i);
    if (plot && plot->GetInput() == from)
      plot->SetInputData(to);
  }
}

/// VTK looks the columns of a plot up by name at every update and does not expect them to vanish.
void detachPlots(PlotState& state)
{
  vtkNew<vtkTable> before;
  before->ShallowCopy(state.table);
  feedFrom(state.chartXY, state.table, before);
  feedScatterMatrixFrom(state, before);
  for (vtkChartMatrix* matrix :
       {state.chartMatrix.Get(), static_cast<vtkChartMatrix*>(state.scatterPlotMatrix.Get())})
  {
    for (vtkIdType i = 0; i < matrix->GetNumberOfItems(); ++i)
      feedFrom(vtkChart::SafeDownCast(matrix->GetItem(i)), state.table, before);
  }
  if (state.parallelCoordinates && state.parallelCoordinates->GetPlot(0)->GetInput() == state.table)
    state.parallelCoordinates->GetPlot(0)->vtkPlot::SetInputData(before);
}

/// The windows of the columns as they are numbered once `move` has changed each number.
template <typename Windows, typename Move>
Windows renumbered(const Windows& windows, const Move& move)
{
  Windows moved;
  for (const auto& [key, window] : windows)
  {
    ReducedMetaData place = key;
    move(place.xColumn);
    move(place.yColumn);
    moved.emplace(place, window);
  }
  return moved;
}

/// Takes what the settings and the remembered windows say of the columns `flags`, in ascending
/// order, to the column that will stand in their place behind all others, and lets the others move
/// up.
void renumberToEnd(PlotState& state, const std::vector<int>& flags)
{
  const int columns = static_cast<int>(state.table->GetNumberOfColumns());
  const auto move = [&](int& column)
  {
    const auto next = std::lower_bound(flags.begin(), flags.end(), column);
    if (next != flags.end() && *next == column)
      column = columns - static_cast<int>(flags.size());
    else if (column < columns)
      column -= static_cast<int>(next - flags.begin());
  };
  PlotMetaData& settings = *state.metaData;
  for (auto* list :
       {&settings.xColumns, &settings.yColumns, &settings.zColumns, &settings.parameterColumns})
    std::for_each(list->begin(), list->end(), move);
  move(settings.colorColumn);
  state.coordinateWindows = renumbered(state.coordinateWindows, move);
  state.windowScales = renumbered(state.windowScales, move);
}

/// The typed items stay parallel to the columns. If every column has one, the new flags keep that
/// of the first older ones.
void moveItemToEnd(PlotState& state, const std::vector<int>& flags)
{
  auto& items = state.columnItems;
  const bool complete = items.size() == static_cast<std::size_t>(state.table->GetNumberOfColumns());
  if (complete)
    items.push_back(items[static_cast<std::size_t>(flags.front())]);
  for (auto column = flags.rbegin(); column != flags.rend(); ++column)
  {
    if (static_cast<std::size_t>(*column) < items.size())
      items.erase(items.begin() + *column);
  }
}

} // namespace

void appendFlagColumn(PlotState& state, vtkIntArray* flags)
{
  std::vector<int> older;
  for (int column = 0; column < state.table->GetNumberOfColumns(); ++column)
  {
    if (columnName(state.table, column) == selectionFlagColumn)
      older.push_back(column);
  }
  if (!older.empty())
  {
    renumberToEnd(state, older);
    moveItemToEnd(state, older);
  }
  for (auto column = older.rbegin(); column != older.rend(); ++column)
    state.table->GetRowData()->RemoveArray(*column);
  state.table->AddColumn(flags);
}

void reduceToUsedColumns(PlotState& state)
{
  storeWindow(state);
  detachPlots(state);
  const std::set<int> used = usedColumns(state);
  renumber(state, used);
  removeUnused(state, used);
  tableChanged(state);
}

} // namespace Talmesh::plot
