#include "widgets/TableExport.h"

#include "plot/PlotContainer.h"

#include <QByteArray>
#include <QFileInfo>
#include <QSaveFile>

#include <cstring>
#include <memory>
#include <string>

namespace
{

/// A pipe or a device cannot be replaced; the bytes go into it.
bool writeInto(const QString& fileName, const char* text, qint64 size)
{
  QFile file(fileName);
  return file.open(QIODevice::WriteOnly) && file.write(text, size) == size && file.flush();
}

bool replaceFile(const QString& fileName, const char* text, qint64 size)
{
  QSaveFile file(fileName);
  // A folder that takes no new file may hold one that can be written.
  file.setDirectWriteFallback(true);
  // What is still in Qt's buffer when it commits may be lost without a word.
  return file.open(QIODevice::WriteOnly) && file.write(text, size) == size && file.flush() &&
         file.commit();
}

} // namespace

bool exportTable(PlotContainer& container, const QString& fileName)
{
  // Written to a file by its own writer the table would cut an older one before it is whole.
  const std::unique_ptr<char[]> saved(container.saveData("", true));
  const char* text = saved ? saved.get() : "";
  const auto size = static_cast<qint64>(std::strlen(text));
  const QFileInfo old(fileName);
  const bool replaceable = !old.exists() || old.isFile();
  return replaceable ? replaceFile(fileName, text, size) : writeInto(fileName, text, size);
}
