#include "app/examples/Gallery.h"

#include "app/document/PlotChoice.h"
#include "app/document/ShownStudy.h"
#include "app/document/TimeCourses.h"
#include "app/examples/PublishedViews.h"
#include "app/examples/StatisticsViews.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkTable.h>

#include <QDir>

#include <algorithm>

namespace Talmesh::app
{

namespace
{

/// So many columns are drawn over x in the view of several series.
constexpr int mostSeries = 3;

std::string drawExample(const Study&, PlotContainer& container)
{
  container.example();
  return {};
}

std::string drawRuns(const Study& study, PlotContainer& container)
{
  showStudy(study, container);
  return applyChoice(container, choiceOf(container));
}

std::string drawPoints(const Study& study, PlotContainer& container)
{
  const Study last = lastPoints(study);
  showStudy(last, container);
  PlotChoice choice = choiceOf(container);
  const std::vector<int>& parameters = container.getMetaData()->parameterColumns;
  if (!parameters.empty())
    choice.x = parameters.front();
  return applyChoice(container, choice);
}

std::string drawSeveralSeries(const Study& study, PlotContainer& container)
{
  showStudy(study, container);
  PlotChoice choice = choiceOf(container);
  const int columns = static_cast<int>(container.getTable()->GetNumberOfColumns());
  const int first = choice.y.front();
  for (int column = first + 1; column < std::min(columns, first + mostSeries); ++column)
    if (column != choice.x)
      choice.y.push_back(column);
  choice.legend = true;
  return applyChoice(container, choice);
}

/// The page of single runs, with its legend.
std::string drawCourses(const Study& study, PlotContainer& container)
{
  if (study.runs)
    drawTimeCourses(*study.runs, 0, mostSeries, container);
  container.setShowLegend(true);
  return {};
}

/// The first plotted items and all parameters; without runs all columns.
std::vector<int> plottedAndParameters(const PlotContainer& container)
{
  const auto& items = container.getColumnItems();
  std::vector<int> columns;
  int plotted = 0;
  for (std::size_t i = 0; i < items.size(); ++i)
  {
    const bool wanted =
        items[i].first == Parameter || (items[i].first != TimeOrValue && ++plotted <= mostSeries);
    if (wanted)
      columns.push_back(static_cast<int>(i));
  }
  return columns.empty() ? std::vector<int>{0} : columns;
}

/// The matrix, the 3-D chart and the parallel coordinates show one point or line per row, which for
/// runs is their last point.
std::string drawLastPoints(const Study& study, PlotContainer& container, plotStyles style)
{
  showStudy(lastPoints(study), container);
  PlotChoice choice = choiceOf(container);
  choice.style = style;
  const std::vector<int>& parameters = container.getMetaData()->parameterColumns;
  if (parameters.size() > 1)
  {
    choice.x = parameters[0];
    choice.z = parameters[1];
  }
  if (style == parallelCoordinates)
    choice.y = plottedAndParameters(container);
  return applyChoice(container, choice);
}

std::string write(const GalleryView& view, const Study& study, const QDir& folder,
                  VtkPlotWidget& widget, Vectors vectors, int dotsPerInch)
{
  PlotContainer container(nullptr);
  container.setDiagnosticsShown(false);
  PlotContainer* const own = widget.plotContainer();
  widget.setPlotContainer(&container);
  std::string error = view.draw(study, container);
  for (const char* suffix : {".png", ".pdf"})
    if (error.empty())
      error = exportPlot(widget, folder.filePath(QString::fromStdString(view.name) + suffix),
                         vectors, dotsPerInch);
  widget.setPlotContainer(own);
  return error;
}

/// These views and those of the comparisons and of published data.
std::vector<GalleryView> joined(std::vector<GalleryView> views)
{
  for (const auto* further : {&statisticsViews(), &publishedViews()})
    views.insert(views.end(), further->begin(), further->end());
  return views;
}

} // namespace

const std::vector<GalleryView>& galleryViews()
{
  const auto lastPointsIn = [](plotStyles style)
  {
    return [style](const Study& study, PlotContainer& container)
    { return drawLastPoints(study, container, style); };
  };
  static const std::vector<GalleryView> views =
      joined({{"example", drawExample},
              {"xyPlot-runs", drawRuns},
              {"xyPlot-series", drawSeveralSeries},
              {"xyPlot-points", drawPoints},
              {"timeCourses", drawCourses},
              {"scatterPlotMatrix", lastPointsIn(scatterPlotMatrix)},
              {"xyzPlot", lastPointsIn(xyzPlot)},
              {"parallelCoordinates", lastPointsIn(parallelCoordinates)}});
  return views;
}

std::string writeGallery(const Study& study, const QString& path, const QSize& pixels,
                         Vectors vectors, int dotsPerInch)
{
  const QDir folder(path);
  if (!folder.mkpath(QStringLiteral(".")))
    return path.toStdString() + ": the folder cannot be made";
  const auto widget = makeHiddenPlot(pixels);
  for (const GalleryView& view : galleryViews())
  {
    const std::string error = write(view, study, folder, *widget, vectors, dotsPerInch);
    if (!error.empty())
      return error;
  }
  return {};
}

} // namespace Talmesh::app
