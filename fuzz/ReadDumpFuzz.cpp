#include "external/PlotMetaData.h"
#include "plot/BinaryDump.h"
#include "plot/PlotState.h"
#include "plot/SelectionFlags.h"

#include <QByteArray>

#include <cstdint>
#include <cstdlib>
#include <iostream>

namespace
{

using namespace Talmesh::plot;

/// Tables of more zeros would take the time of a thousand small ones.
constexpr double zeroBytes = 64.0 * 1024;
constexpr int mostStrides = 5;

void require(bool condition)
{
  if (!condition)
    std::abort();
}

/// What of a container reading touches; its charts would only cost time.
class Restored
{
public:
  Restored(const QByteArray& bytes, int stride)
  {
    settings.setStride(stride);
    settings.storedCoordinateWindow.valid = true;
    state.metaData = &settings;
    state.annotationLink = vtkSmartPointer<vtkAnnotationLink>::New();
    restoreDump(state, bytes, zeroBytes);
  }

  void check() const
  {
    for (vtkIdType column = 0; column < state.table->GetNumberOfColumns(); ++column)
      require(state.table->GetColumn(column)->GetNumberOfTuples() ==
              state.table->GetNumberOfRows());
    const auto flags = selectionFlags(state);
    require(!flags || flags->GetNumberOfTuples() == state.table->GetNumberOfRows());
  }

  QByteArray dump() const { return writeDump(state); }

private:
  PlotMetaData settings;
  PlotState state;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  std::cerr.rdbuf(nullptr);
  std::cout.rdbuf(nullptr);
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
  const int stride = static_cast<int>(size) % mostStrides;
  const Restored first(bytes, stride);
  first.check();
  // What was read can be written, and reads back as the same.
  const QByteArray written = first.dump();
  require(Restored(written, stride).dump() == written);
  return 0;
}
