#include "widgets/TableExport.h"

#include "plot/PlotContainer.h"

#include <QFile>

#include <memory>
#include <string>

bool exportTable(PlotContainer& container, const QString& fileName)
{
  container.saveData(fileName.toLocal8Bit().toStdString(), true);
  // The writer does not say whether it could write, so the file is compared with what it should be.
  const std::unique_ptr<char[]> text(container.saveData("", true));
  QFile file(fileName);
  return file.open(QIODevice::ReadOnly) && file.readAll() == QByteArray(text ? text.get() : "");
}
