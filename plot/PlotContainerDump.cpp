#include "plot/BinaryDump.h"
#include "plot/DumpRestore.h"
#include "plot/PlotContainer.h"

QByteArray* PlotContainer::binaryDump()
{
  return new QByteArray(Talmesh::plot::writeDump(*d));
}

void PlotContainer::readDump(QByteArray* data)
{
  if (data)
    Talmesh::plot::restoreDump(*d, *data);
}
