#include "external/PlotMetaData.h"
#include "plot/BinaryDump.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"

#include <QByteArray>

QByteArray* PlotContainer::binaryDump()
{
  return new QByteArray(Talmesh::plot::writeDump(*d));
}

void PlotContainer::readDump(QByteArray* data)
{
  if (!data)
    return;
  Talmesh::plot::readDump(*d, *data);
  selectionFromFlagColumn();
  const CoordinateWindow& stored = d->metaData->storedCoordinateWindow;
  if (stored.valid)
  {
    // Its scales are not known.
    d->windowScales.erase(Talmesh::plot::currentKey(*d));
    d->coordinateWindows[Talmesh::plot::currentKey(*d)] = stored;
  }
  generateQuartiles();
  d->selectionUpdatePending = false;
}
