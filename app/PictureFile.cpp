#include "app/PictureFile.h"

#include "app/TranslatedText.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QSaveFile>
#include <QTemporaryDir>

#include <memory>

namespace Talmesh::app
{

namespace
{

/// Content of an export, or why there is none.
struct Content
{
  QByteArray bytes;
  std::string error;
};

Content pngOf(VtkPlotWidget& widget)
{
  widget.updatePlot(true);
  const QImage picture = widget.grabFramebuffer();
  Content content;
  QBuffer buffer(&content.bytes);
  buffer.open(QIODevice::WriteOnly);
  if (picture.isNull() || !picture.convertToFormat(QImage::Format_RGB32).save(&buffer, "PNG"))
    content.error = translated("PictureFile", "the plot could not be painted");
  return content;
}

/// The exporter writes to a file by name and reports no failure, so it gets a folder of its own.
Content pdfOf(VtkPlotWidget& widget)
{
  Content content;
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("plot.pdf"));
  if (folder.isValid())
  {
    widget.updatePlot(true);
    widget.printPlot(path);
  }
  QFile file(path);
  if (file.open(QIODevice::ReadOnly))
    content.bytes = file.readAll();
  if (!content.bytes.startsWith("%PDF"))
    content.error = translated("PictureFile", "the plot could not be painted");
  return content;
}

Content csvOf(VtkPlotWidget& widget)
{
  Content content;
  const std::unique_ptr<char[]> text(widget.plotContainer()->saveData({}, true));
  if (text)
    content.bytes = QByteArray(text.get());
  else
    content.error = translated("PictureFile", "the table could not be written");
  return content;
}

std::string writeWhole(const QString& path, const QByteArray& bytes)
{
  QSaveFile file(path);
  const bool written =
      file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
  return written ? std::string() : file.errorString().toStdString();
}

} // namespace

std::string exportPlot(VtkPlotWidget& widget, const QString& path)
{
  Content content;
  if (path.endsWith(QLatin1String(".png")))
    content = pngOf(widget);
  else if (path.endsWith(QLatin1String(".pdf")))
    content = pdfOf(widget);
  else if (path.endsWith(QLatin1String(".csv")))
    content = csvOf(widget);
  else
    content.error = translated("PictureFile", "the name must end with .png, .pdf or .csv");
  if (content.error.empty())
    content.error = writeWhole(path, content.bytes);
  return content.error.empty() ? content.error : path.toStdString() + ": " + content.error;
}

std::unique_ptr<VtkPlotWidget> makeHiddenPlot(const QSize& pixels)
{
  auto widget = std::make_unique<VtkPlotWidget>();
  // Shown, but on no screen: only a shown widget has a framebuffer of its size.
  widget->setAttribute(Qt::WA_DontShowOnScreen);
  widget->resize(pixels / widget->devicePixelRatioF());
  widget->show();
  QCoreApplication::processEvents();
  return widget;
}

} // namespace Talmesh::app
