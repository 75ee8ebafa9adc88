#include "widgets/TableExport.h"

#include "plot/PlotContainer.h"
#include "widgets/FileWriter.h"

#include <cstring>
#include <memory>

bool exportTable(PlotContainer& container, const QString& fileName)
{
  // Written to a file by its own writer the table would cut an older one before it is whole.
  const std::unique_ptr<char[]> saved(container.saveData("", true));
  const char* text = saved ? saved.get() : "";
  const auto size = static_cast<qint64>(std::strlen(text));
  return Talmesh::writeFile(fileName, text, size).isEmpty();
}
