#include "app/examples/Gallery.h"

#include "app/document/Document.h"
#include "app/document/OwnChart.h"
#include "app/document/TimeCourses.h"
#include "app/examples/PublishedViews.h"
#include "app/examples/StatisticsViews.h"
#include "app/styles/ViewerStyles.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <QDir>

#include <algorithm>

namespace Talmesh::app
{

namespace
{

/// So many columns are drawn over x in the view of several series.
constexpr int mostSeries = 3;

std::string drawExample(const Study&, Document& document)
{
  return showChart(document, {[](PlotContainer& container) { container.example(); }, {}});
}

std::string drawRuns(const Study& study, Document& document)
{
  return showIn(document, study, xyPlot);
}

std::string drawPoints(const Study& study, Document& document)
{
  const std::string error = showIn(document, lastPoints(study), xyPlot);
  const std::vector<int>& parameters = document.container()->getMetaData()->parameterColumns;
  if (!error.empty() || parameters.empty())
    return error;
  PlotChoice choice = document.choice();
  choice.x = parameters.front();
  return showChoice(document, choice);
}

std::string drawSeveralSeries(const Study& study, Document& document)
{
  const std::string error = showIn(document, study, xyPlot);
  if (!error.empty())
    return error;
  PlotChoice choice = document.choice();
  const int columns = document.columns().size();
  const int first = choice.y.front();
  for (int column = first + 1; column < std::min(columns, first + mostSeries); ++column)
    if (column != choice.x)
      choice.y.push_back(column);
  choice.legend = true;
  return showChoice(document, choice);
}

/// The page of single runs, with its legend.
std::string drawCourses(const Study& study, Document& document)
{
  const auto complete = [runs = study.runs](PlotContainer& container)
  {
    if (runs)
      drawTimeCourses(*runs, 0, mostSeries, container);
    container.setShowLegend(true);
  };
  return showChart(document, {[](PlotContainer&) {}, complete});
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
std::string drawLastPoints(const Study& study, Document& document, plotStyles style)
{
  const std::string error = showIn(document, lastPoints(study), xyPlot);
  const std::vector<int>& parameters = document.container()->getMetaData()->parameterColumns;
  if (!error.empty())
    return error;
  PlotChoice choice = document.choice();
  choice.style = style;
  if (parameters.size() > 1)
  {
    choice.x = parameters[0];
    choice.z = parameters[1];
  }
  if (viewerStyle(style).hasColumnsAsAxes)
    choice.y = plottedAndParameters(*document.container());
  return showChoice(document, choice);
}

std::string write(const GalleryView& view, const Study& study, const QDir& folder,
                  VtkPlotWidget& widget, Vectors vectors, int dotsPerInch)
{
  PlotContainer* const own = widget.plotContainer();
  Document document([&widget](PlotContainer& container) { widget.placePlotContainer(&container); });
  std::string error = drawView(view, study, document);
  for (const char* suffix : {".png", ".pdf"})
    if (error.empty())
      error = exportPlot(widget, folder.filePath(QString::fromStdString(view.name) + suffix),
                         vectors, dotsPerInch);
  widget.setPlotContainer(own);
  return error;
}

/// These views and those of the comparisons and of published data.
std::vector<GalleryView> allViews(std::vector<GalleryView> views)
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
    return [style](const Study& study, Document& document)
    { return drawLastPoints(study, document, style); };
  };
  static const std::vector<GalleryView> views =
      allViews({{"example", drawExample},
                {"xyPlot-runs", drawRuns},
                {"xyPlot-series", drawSeveralSeries},
                {"xyPlot-points", drawPoints},
                {"timeCourses", drawCourses},
                {"scatterPlotMatrix", lastPointsIn(scatterPlotMatrix)},
                {"xyzPlot", lastPointsIn(xyzPlot)},
                {"parallelCoordinates", lastPointsIn(parallelCoordinates)}});
  return views;
}

std::string drawView(const GalleryView& view, const Study& study, Document& document)
{
  std::string error;
  document.together([&] { error = view.draw(study, document); });
  return error.empty() ? document.drawingError() : error;
}

std::string showIn(Document& document, const Study& study, plotStyles style)
{
  OpenedStudy opened;
  opened.study = study;
  PlotWishes wishes;
  wishes.style = style;
  const std::string error = document.open(opened, wishes);
  return error.empty() ? document.drawingError() : error;
}

std::string showChoice(Document& document, const PlotChoice& choice)
{
  document.choose(choice);
  return document.drawingError();
}

std::string showChart(Document& document, const ChartSteps& steps)
{
  OwnChart chart;
  chart.steps = [steps](int) { return steps; };
  OpenedStudy opened;
  opened.study.chart = std::make_shared<const OwnChart>(chart);
  document.open(opened);
  return document.drawingError();
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
