#include "plot/DumpRestore.h"

#include "external/PlotMetaData.h"
#include "plot/AxisWindows.h"
#include "plot/BinaryDump.h"
#include "plot/PlotState.h"
#include "plot/Quartiles.h"
#include "plot/SelectionFlags.h"

namespace Talmesh::plot
{

void restoreDump(PlotState& state, const QByteArray& bytes, double zeroBytes)
{
  readDump(state, bytes, zeroBytes);
  selectFlaggedRows(state);
  const CoordinateWindow& stored = state.metaData->storedCoordinateWindow;
  if (stored.valid)
  {
    // Its scales are not known.
    state.windowScales.erase(currentKey(state));
    state.coordinateWindows[currentKey(state)] = stored;
  }
  generateQuartiles(state);
  state.selectionUpdatePending = false;
}

} // namespace Talmesh::plot
