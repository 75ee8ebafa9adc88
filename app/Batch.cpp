#include "app/Batch.h"

#include "app/OutputFiles.h"
#include "app/comparison/ComparisonFile.h"
#include "app/document/Document.h"
#include "app/document/TableRuns.h"
#include "app/examples/ExampleStudy.h"
#include "app/examples/Gallery.h"
#include "app/export/PictureFile.h"
#include "app/import/ColumnRoles.h"
#include "app/session/StudyFile.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkContextScene.h>
#include <vtkNew.h>

#include <QFile>
#include <QString>

#include <iostream>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace Talmesh::app
{

namespace
{

constexpr QSize defaultSize(1000, 700);

std::string writeExport(const CommandLineOptions& options, VtkPlotWidget& widget,
                        const QString& path)
{
  ExportWishes wishes;
  wishes.vectors = options.vectors;
  wishes.dotsPerInch = options.dotsPerInch.value_or(resolutionOfScreenPages);
  wishes.textSize = options.textSize;
  if (options.paperWidth > 0.0)
    wishes.paper = {QSizeF(options.paperWidth, options.paperHeight),
                    options.dotsPerInch.value_or(PaperSize().dotsPerInch)};
  return exportPlot(widget, path, wishes);
}

std::string writeComparison(const Comparison& comparison, const QString& path)
{
  const std::string& selected = comparison.sides.selected;
  const std::string& others = comparison.sides.others;
  switch (comparison.state)
  {
  case Comparison::State::noParameters:
    return "there are no parameters of runs to compare";
  case Comparison::State::nothingSelected:
    return selected.empty() ? "no run is selected to be compared; name some by --select"
                            : "no run is in \"" + selected + "\"";
  case Comparison::State::noOthers:
    if (!others.empty())
      return "no run to compare with is in \"" + others + "\"";
    if (!selected.empty())
      return "all runs are in \"" + selected + "\"; there are none to compare them with";
    return "all runs are selected; there are none to compare them with";
  case Comparison::State::onlyInBoth:
    return "runs in both selections count for neither; without them there is nothing to compare";
  case Comparison::State::compared:
    break;
  }
  if (comparison.units.contradictsDesign)
    return "these runs are no Saltelli design of so many parameters, which has k + 2 or 2 k + 2 "
           "runs for each base sample";
  return writeText(path, commaText(comparison.parameters));
}

/// @param notes what was noted of the table, which may tell why it has no runs
std::string writeRuns(Document& document, const std::vector<std::string>& notes, bool selects,
                      const QString& path)
{
  const TableRuns runs(*document.container());
  if (runs.numberOfRuns() == 0)
    // Notes on columns come before that on the rows.
    return notes.empty() ? "there are no runs to list"
                         : "there are no runs to list: " + notes.back();
  RunTable table = runTable(runs, allColumnsOfRuns(runs));
  addColumn(table, "group", groupNumbers(document.groups().groups()));
  const std::vector<bool> selected = runs.selected();
  if (selects)
    addColumn(table, "selected", std::vector<double>(selected.begin(), selected.end()));
  return writeText(path, QString::fromStdString(commaText(table)));
}

/// Pictures need a widget that paints; the document of tables only draws, into a scene.
/// @param remarks gets what the pictures cannot show
std::string writeNamed(const CommandLineOptions& options, const OpenedStudy& opened,
                       const QSize& size, std::vector<std::string>& remarks)
{
  const vtkNew<vtkContextScene> scene;
  std::unique_ptr<VtkPlotWidget> widget;
  if (options.writesPictures())
    widget = makeHiddenPlot(size);
  const auto stage = [&](PlotContainer& container)
  {
    if (widget)
      widget->placePlotContainer(&container);
    else
      container.setScene(scene);
  };
  Document document(stage);
  std::string error = document.open(opened, options);
  if (error.empty())
    error = document.drawingError();
  const Comparison& comparison = document.comparison().current();
  for (const std::string& path : options.exports)
    if (error.empty())
      error = writeExport(options, *widget, QFile::decodeName(path.c_str()));
  if (error.empty() && !options.compare.empty())
    error = writeComparison(comparison, QFile::decodeName(options.compare.c_str()));
  if (error.empty() && !options.runs.empty())
    error = writeRuns(document, opened.notes, !options.select.empty(),
                      QFile::decodeName(options.runs.c_str()));
  if (error.empty() && !options.exports.empty() && !document.remark().isEmpty())
    remarks.push_back(document.remark().toStdString());
  // What shows a container ends before it.
  widget.reset();
  return error;
}

Result<OpenedStudy> openNamed(const CommandLineOptions& options)
{
  if (!options.file.empty())
    return openStudyFiles(studyPaths(options.file, options.moreFiles), {}, options.import);
  OpenedStudy example;
  example.study = exampleStudyOfRepressilator();
  return example;
}

} // namespace

std::string runBatch(const CommandLineOptions& options)
{
  if (const std::string lost = lostFile(options); !lost.empty())
    return lost;
  const Result<OpenedStudy> result = openNamed(options);
  if (!result.hasValue())
    return result.error();
  const OpenedStudy& opened = result.value();
  const QSize size = options.width > 0 ? QSize(options.width, options.height) : defaultSize;
  std::vector<std::string> remarks;
  std::string error = writeNamed(options, opened, size, remarks);
  if (error.empty() && !options.gallery.empty())
    error = writeGallery(opened.study, QFile::decodeName(options.gallery.c_str()), size,
                         options.vectors, options.dotsPerInch.value_or(resolutionOfScreenPages));
  // What fails says so in one line.
  remarks.insert(remarks.end(), opened.notes.begin(), opened.notes.end());
  for (const std::string& note : remarks)
    if (error.empty())
      std::cerr << "talmesh-plot: " << note << std::endl;
  return error;
}

namespace
{

/// A session says itself what it holds.
void describeSession(const Study& study, ImportReport& report)
{
  report.layout = "session";
  if (study.reading)
  {
    report.time = study.reading->time;
    report.ignored = study.reading->ignored;
  }
  std::set<std::string> categories;
  for (const Category& category : study.categories)
  {
    categories.insert(category.column);
    report.categories.push_back(shownName(category.column));
  }
  if (!study.runs)
    return;
  report.runs = study.runs->numberOfTrajectories;
  report.fewestPoints = study.runs->pointsPerTrajectory;
  report.mostPoints = study.runs->pointsPerTrajectory;
  for (const auto& item : study.runs->items)
    if (item.first != TimeOrValue && categories.count(selectionPairToString(item)) == 0)
      (item.first == Parameter ? report.parameters : report.items).push_back(item.second);
}

} // namespace

Result<std::string> describeFile(const CommandLineOptions& options, ImportReport& report)
{
  const Result<OpenedStudy> opened =
      openStudyFiles(studyPaths(options.file, options.moreFiles), {}, options.import, &report);
  if (!opened.hasValue())
    return Result<std::string>::without(opened);
  if (opened.value().session)
    describeSession(opened.value().study, report);
  return jsonOf(report);
}

} // namespace Talmesh::app
