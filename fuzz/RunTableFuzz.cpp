#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "ImportedChecks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  using namespace Talmesh::app;
  const Result<ImportedTable> read = importRunTable({reinterpret_cast<const char*>(data), size});
  checkImported(read);
  if (!read.hasValue() || !read.value().runs)
    return 0;
  // Common times of runs whose times differ take more rows.
  constexpr std::size_t alwaysRows = 2000000;
  const LinePlotTable& runs = *read.value().runs;
  require(runs.numberOfTrajectories * runs.pointsPerTrajectory <= std::max(4 * size, alwaysRows));
  return 0;
}
