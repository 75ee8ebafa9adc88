#include "widgets/ExportName.h"

QString exportPrefix(const QString& fileName)
{
  static const QString suffix = QStringLiteral(".pdf");
  const int position = fileName.lastIndexOf(suffix);
  QString prefix = fileName;
  if (position > 1)
    prefix.remove(position, suffix.size());
  return prefix;
}
