#include "app/OutputFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <set>
#include <vector>

namespace Talmesh::app
{

namespace
{

/// Where a file lies, whatever links lead there; empty for what is no file.
QString placeOf(const std::string& name)
{
  const QFileInfo info(QFile::decodeName(name.c_str()));
  if (info.exists())
    return info.isFile() ? info.canonicalFilePath() : QString();
  const QString folder = QDir(info.absolutePath()).canonicalPath();
  // Folders that do not exist have no canonical path, and are told apart all the same.
  return (folder.isEmpty() ? info.absolutePath() : folder) + QLatin1Char('/') + info.fileName();
}

} // namespace

std::string lostFile(const CommandLineOptions& options)
{
  std::vector<std::string> outputs = options.exports;
  for (const std::string& table : {options.compare, options.runs})
    if (!table.empty())
      outputs.push_back(table);
  const QString input = options.file.empty() ? QString() : placeOf(options.file);
  std::set<QString> written;
  for (const std::string& output : outputs)
  {
    const QString place = placeOf(output);
    if (place.isEmpty())
      continue;
    if (place == input)
      return output + ": is the file that is read";
    if (!written.insert(place).second)
      return output + ": would be written twice";
  }
  return {};
}

} // namespace Talmesh::app
