#include "app/formats/FileFormats.h"

#include "app/formats/ForeignFormats.h"
#include "app/formats/GzipText.h"
#include "app/formats/Hdf5File.h"
#include "app/formats/NumpyFiles.h"
#include "app/formats/OdsSheets.h"
#include "app/formats/XlsxSheets.h"
#include "app/formats/ZipArchive.h"
#include "app/formats/ZippedText.h"
#include "app/import/TranslatedText.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace Talmesh::app
{

namespace
{

constexpr qint64 startBytes = 4096;

FileStart startOf(const QString& path)
{
  FileStart start;
  QFile file(path);
  // A pipe would wait for who writes into it.
  if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
    return start;
  start.bytes = file.read(startBytes).toStdString();
  const std::string mark = start.bytes.substr(0, 4);
  if (mark != "PK\x03\x04" && mark != "PK\x05\x06")
    return start;
  const Result<std::shared_ptr<ZipArchive>> archive = ZipArchive::open(path);
  if (archive.hasValue())
    for (const ZipMember& member : archive.value()->members())
      start.members.push_back(member.name);
  return start;
}

} // namespace

const std::vector<FileFormat>& fileFormats()
{
  static const std::vector<FileFormat> all = []
  {
    std::vector<FileFormat> formats = {
        {"gzip", "*.gz", isGzip, readGzipText},
        {"NumPy", "*.npy", isNpy, readNpy},
        {"NumPy", "*.npz", isNpz, readNpz},
        {"Excel", "*.xlsx *.xlsm", isXlsx, readXlsx},
        {"OpenDocument", "*.ods", isOds, readOds},
        {"ZIP", "*.zip", isZip, readZippedText},
        {"HDF5", "*.h5 *.hdf5 *.hdf *.nc *.mat", isHdf5, readHdf5},
    };
    const std::vector<FileFormat>& foreign = foreignFormats();
    formats.insert(formats.end(), foreign.begin(), foreign.end());
    return formats;
  }();
  return all;
}

const FileFormat* formatOf(const FileStart& start)
{
  const auto found =
      std::find_if(fileFormats().begin(), fileFormats().end(),
                   [&](const FileFormat& format) { return format.recognises(start); });
  return found == fileFormats().end() ? nullptr : &*found;
}

const FileFormat* formatOf(const QString& path)
{
  return formatOf(startOf(path));
}

Result<FileContent> readFormat(const FileFormat& format, const QString& path,
                               const FormatRequest& request, const ImportProgress& progress)
{
  if (format.read)
    return format.read(path, request, progress);
  return Result<FileContent>::failed(
      withValues(translated("FileFormats", "this is a file of %1, which is not read; %2"),
                 {format.name, format.advice()}));
}

QStringList readableEndings()
{
  QStringList endings = {QStringLiteral("*.csv"),  QStringLiteral("*.tsv"),
                         QStringLiteral("*.txt"),  QStringLiteral("*.dat"),
                         QStringLiteral("*.gdat"), QStringLiteral("*.cdat"),
                         QStringLiteral("*.scan"), QStringLiteral("*.exp")};
  for (const FileFormat& format : fileFormats())
    if (format.read)
      endings += QString::fromLatin1(format.endings).split(QLatin1Char(' '));
  return endings;
}

} // namespace Talmesh::app
