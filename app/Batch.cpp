#include "app/Batch.h"

#include "app/document/Document.h"
#include "app/examples/ExampleStudy.h"
#include "app/examples/Gallery.h"
#include "app/export/PictureFile.h"
#include "app/session/StudyFile.h"
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
  auto widget = makeHiddenPlot(size);
  Document document([&widget](PlotContainer& container)
                    { widget->placePlotContainer(&container); });
  std::string error = document.open(opened, options);
  if (error.empty())
    error = document.drawingError();
  for (const std::string& path : options.exports)
    if (error.empty())
      error = writeExport(options, *widget, QFile::decodeName(path.c_str()));
  // What shows a container ends before it.
  widget.reset();
  return error;
}

Result<OpenedStudy> openNamed(const CommandLineOptions& options)
{
  if (!options.file.empty())
    return openStudyFile(QFile::decodeName(options.file.c_str()));
  OpenedStudy example;
  example.study = exampleStudyOfRepressilator();
  return example;
}

} // namespace

std::string runBatch(const CommandLineOptions& options)
{
  const Result<OpenedStudy> result = openNamed(options);
  if (!result.hasValue())
    return result.error();
  const OpenedStudy& opened = result.value();
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
