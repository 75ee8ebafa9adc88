#include "app/document/PlotChoice.h"

#include "app/document/FeatureColumns.h"
#include "app/document/RunSummary.h"
#include "app/import/ColumnRoles.h"
#include "app/import/TranslatedText.h"
#include "app/styles/ViewerStyles.h"
#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/RunSplit.h"
#include "plot/SelectionFlags.h"
#include "plot/TableColumns.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkTable.h>

#include <QCoreApplication>
#include <QSignalBlocker>

#include <algorithm>
#include <exception>
#include <tuple>
#include <utility>

namespace Talmesh::app
{

namespace
{

std::string joinedLabels(const PlotContainer& container, const std::vector<int>& columns)
{
  std::string joined;
  for (const int column : columns)
    joined += (joined.empty() ? "" : ", ") + columnTitle(container, column);
  return joined;
}

/// Columns of the table that stand for those of a choice, as far as features have a place in what
/// is drawn.
std::vector<int> tableColumns(const std::vector<int>& columns, bool features)
{
  std::vector<int> found;
  for (const int column : columns)
    if ((features || !isFeature(column)) &&
        std::find(found.begin(), found.end(), itemOf(column)) == found.end())
      found.push_back(itemOf(column));
  return found;
}

/// The settings must not announce each change, or every one of them would draw.
void writeSettings(PlotContainer& container, const PlotChoice& choice)
{
  PlotMetaData& settings = *container.getMetaData();
  const QSignalBlocker silence(settings);
  const bool runs = container.getSummary().table != nullptr;
  const int time = plot::timeColumnOf(stateOf(container));
  settings.xColumns = {isFeature(choice.x) && !runs && time >= 0 ? time : itemOf(choice.x)};
  settings.yColumns = tableColumns(choice.y, runs);
  settings.zColumns = {itemOf(choice.z)};
  const RunAxes axes = axesOfRuns(container, choice);
  settings.xLabel = columnTitle(container, runs ? axes.x : plot::firstOf(settings.xColumns));
  std::vector<int> over = runs ? axes.columns : settings.yColumns;
  if (!viewerStyle(choice.style).hasSeries && over.size() > 1)
    over.resize(1);
  settings.yLabel = joinedLabels(container, over);
  settings.setPlotStyle(choice.style);
  settings.setPlotLine(choice.lines);
  settings.setLogX(choice.logX);
}

} // namespace

bool operator==(const PlotChoice& left, const PlotChoice& right)
{
  const auto values = [](const PlotChoice& choice)
  {
    return std::tie(choice.style, choice.x, choice.y, choice.z, choice.axes, choice.lines,
                    choice.legend, choice.logX, choice.logY);
  };
  return values(left) == values(right);
}

PlotChoice choiceOf(const PlotContainer& container)
{
  const PlotMetaData& settings = *container.getMetaData();
  PlotChoice choice;
  choice.style = settings.getPlotStyle();
  choice.x = plot::firstOf(settings.xColumns);
  choice.y = settings.yColumns;
  choice.z = plot::firstOf(settings.zColumns);
  choice.lines = settings.getPlotLine();
  choice.logX = settings.getLogX();
  if (vtkChartXY* chart = container.getChartXY())
  {
    choice.legend = chart->GetShowLegend();
    choice.logY = chart->GetAxis(vtkAxis::LEFT)->GetLogScale();
  }
  return choice;
}

std::string cannotDraw(const std::string& why)
{
  return withValues(translated("PlotChoice", "cannot draw this: %1"), {why});
}

std::string whyNotDone(const std::function<void()>& drawing)
{
  try
  {
    drawing();
  }
  catch (const std::exception& failure)
  {
    return cannotDraw(failure.what());
  }
  return {};
}

std::string applyChoice(PlotContainer& container, const PlotChoice& choice,
                        const std::function<std::string()>& draw)
{
  writeSettings(container, choice);
  const std::string error = draw ? draw() : whyNotDone([&container] { container.redraw(); });
  if (!error.empty())
    return error;
  const PlotControls& controls = viewerStyle(choice.style).controls;
  if (controls.logY)
    container.setLogScaleY(choice.logY);
  if (controls.legend)
    container.setShowLegend(choice.legend);
  return {};
}

namespace
{

/// What of the choice has no place in what is drawn; empty for nothing.
QString remarkOnColumns(const PlotChoice& choice, const PlotContainer& container)
{
  // Such styles show the parameters, whatever is chosen.
  if (viewerStyle(choice.style).unit == ChartUnit::Rows)
    return {};
  const bool runs = container.getSummary().table != nullptr;
  const auto isOut = [&](int column)
  { return runs ? roleOf(container, column) == ColumnRole::Other : isFeature(column); };
  const auto out = std::find_if(choice.y.begin(), choice.y.end(), isOut);
  if (out == choice.y.end())
    return {};
  const QString text =
      runs
          ? QCoreApplication::translate("PlotChoice", "%1 has no single value for a run: not shown")
          : QCoreApplication::translate(
                "PlotChoice",
                "%1 is one value for a run: shown only over parameters and other such values");
  return text.arg(QString::fromStdString(columnTitle(container, *out)));
}

} // namespace

QString remarkOn(const PlotChoice& choice, const PlotContainer& container)
{
  const ViewerStyle& style = viewerStyle(choice.style);
  const QString columns = remarkOnColumns(choice, container);
  if (!columns.isEmpty())
    return columns;
  if (choice.y.empty() && !style.hasColumnsAsAxes)
    return QCoreApplication::translate("PlotChoice",
                                       "No y column is ticked: nothing to show over x");
  if (!style.controls.legend)
    return {};
  const PlotChoice drawn = choiceOf(container);
  const bool linear =
      (drawn.logX && !container.showsLogScaleX()) || (drawn.logY && !container.showsLogScaleY());
  return linear ? QCoreApplication::translate(
                      "PlotChoice", "Linear scale: a logarithmic one needs positive values")
                : QString();
}

void chooseOpeningStyle(PlotContainer& container, const PlotWishes& wishes)
{
  PlotMetaData& settings = *container.getMetaData();
  const bool comparable = settings.getStride() > 1 && !settings.parameterColumns.empty();
  const bool shown = wishes.y.size() <= 1 && wishes.z.empty();
  if (wishes.style || !comparable || !shown)
    return;
  const QSignalBlocker silence(settings);
  settings.setPlotStyle(selectionCdfPlot);
}

} // namespace Talmesh::app
