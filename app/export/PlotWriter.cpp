#include "app/export/PlotWriter.h"

#include "app/import/TranslatedText.h"
#include "plot/PlotContainer.h"
#include "widgets/FileWriter.h"

#include <QBuffer>
#include <QIODevice>

#include <algorithm>
#include <cstddef>

namespace Talmesh::app
{

namespace
{

QByteArray pngBytes(const QImage& picture)
{
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  const bool made = picture.convertToFormat(QImage::Format_RGB32).save(&buffer, "PNG");
  return made ? bytes : QByteArray();
}

/// Writes into a device while the progress allows it.
class CancellableWriting
{
public:
  explicit CancellableWriting(const TaskProgress& told)
      : progress(told)
  {
  }

  /// Tells that a part is done.
  /// @return whether to go on
  bool goOn(double done)
  {
    givenUp = givenUp || (progress && !progress(done));
    return !givenUp;
  }
  bool isGivenUp() const { return givenUp; }

  bool write(QIODevice& device, const QByteArray& bytes)
  {
    for (qint64 at = 0; at < bytes.size(); at += piece)
    {
      const qint64 size = std::min<qint64>(piece, bytes.size() - at);
      if (!goOn(static_cast<double>(at) / bytes.size()) ||
          device.write(bytes.constData() + at, size) != size)
        return false;
    }
    return goOn(1.0);
  }

  bool write(QIODevice& device, vtkTable* table)
  {
    return PlotContainer::writeTable(table,
                                     [&](const char* bytes, std::size_t size, double done)
                                     {
                                       return device.write(bytes, static_cast<qint64>(size)) ==
                                                  static_cast<qint64>(size) &&
                                              goOn(done);
                                     });
  }

private:
  static constexpr qint64 piece = 4 << 20; ///< bytes

  const TaskProgress& progress;
  bool givenUp = false;
};

Result<QString> write(const PaintedPlot& painted, const TaskProgress& progress)
{
  CancellableWriting writing(progress);
  if (!writing.goOn(0.0))
    return Result<QString>::cancelled();
  const QByteArray bytes = painted.picture.isNull() ? painted.page : pngBytes(painted.picture);
  if (bytes.isEmpty() && !painted.table)
    return Result<QString>::failed(notPainted());
  const QString error = writeFile(painted.path,
                                  [&](QIODevice& device) {
                                    return painted.table ? writing.write(device, painted.table)
                                                         : writing.write(device, bytes);
                                  });
  if (writing.isGivenUp())
    return Result<QString>::cancelled();
  return error.isEmpty() ? Result<QString>(painted.path)
                         : Result<QString>::failed(error.toStdString());
}

} // namespace

std::string notPainted()
{
  return translated("PictureFile", "the plot could not be painted");
}

Result<QString> writePlot(const PaintedPlot& painted, const TaskProgress& progress)
{
  return forFile<QString>(painted.path, [&] { return write(painted, progress); });
}

} // namespace Talmesh::app
