#include "app/Batch.h"

#include "app/comparison/ComparisonChoice.h"
#include "app/document/GroupedPlots.h"
#include "app/document/PlotChoice.h"
#include "app/document/PlotSession.h"
#include "app/document/RunNormaliser.h"
#include "app/document/ShownStudy.h"
#include "app/examples/ExampleStudy.h"
#include "app/examples/Gallery.h"
#include "app/export/PictureFile.h"
#include "app/session/StudyFile.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <QFile>
#include <QString>

#include <iostream>

namespace Talmesh::app
{

namespace
{

constexpr QSize defaultSize(1000, 700);

std::string writeExport(const CommandLineOptions& options, VtkPlotWidget& widget,
                        const QString& path)
{
  if (options.paperWidth <= 0.0)
    return exportPlot(widget, path, options.vectors,
                      options.dotsPerInch.value_or(resolutionOfScreenPages));
  return exportPlot(widget, path,
                    {QSizeF(options.paperWidth, options.paperHeight),
                     options.dotsPerInch.value_or(PaperSize().dotsPerInch)},
                    options.vectors);
}

std::string writeExports(const CommandLineOptions& options, const OpenedStudy& opened,
                         const QSize& size)
{
  const auto widget = makeHiddenPlot(size);
  PlotContainer& container = *widget->plotContainer();
  container.setDiagnosticsShown(false);
  showStudy(opened.study, container);
  chooseOpeningStyle(container, options);
  RunNormaliser normaliser;
  if (opened.session)
  {
    restoreSettings(*opened.session, container);
    normaliser.follow(&container);
    normaliser.setNormalised(opened.session->settings.normalised, true);
    restoreWindow(*opened.session, container);
    restoreSelection(*opened.session, container);
  }
  PlotChoice choice =
      opened.session ? restoredChoice(*opened.session, container) : choiceOf(container);
  std::string error = chooseByName(container, options, choice);
  if (error.empty())
    error = applyChoice(container, choice);
  if (opened.session)
    dressRuns(container, namedGroups(opened.session->settings.groups.groupOfRun),
              opened.session->settings.groups.look);
  for (const std::string& path : options.exports)
    if (error.empty())
      error = writeExport(options, *widget, QFile::decodeName(path.c_str()));
  return error;
}

} // namespace

std::string runBatch(const CommandLineOptions& options)
{
  OpenedStudy opened;
  if (options.file.empty())
    opened.study = exampleStudyOfRepressilator();
  else
    opened = openStudyFile(QFile::decodeName(options.file.c_str()));
  if (!opened.error.empty())
    return opened.error;
  for (const std::string& note : opened.notes)
    std::cerr << "talmesh-plot: " << note << std::endl;
  const QSize size = options.width > 0 ? QSize(options.width, options.height) : defaultSize;
  std::string error = writeExports(options, opened, size);
  if (error.empty() && !options.gallery.empty())
    error = writeGallery(opened.study, QFile::decodeName(options.gallery.c_str()), size,
                         options.vectors, options.dotsPerInch.value_or(resolutionOfScreenPages));
  return error;
}

} // namespace Talmesh::app
