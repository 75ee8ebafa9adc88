#include "app/runs/RunFilter.h"
#include "app/runs/SampleCourses.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace
{

using namespace Talmesh::app;

void require(bool condition)
{
  if (!condition)
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const SampleCourses runs;
  FilterFault fault;
  const RunFilter filter = RunFilter::read(text, runs, fault);
  require(fault.position <= size);
  bool any = false;
  for (std::size_t run = 0; run < runs.numberOfRuns(); ++run)
    any = filter.selects(runs, run) || any;
  require(fault.text.empty() || !any);

  FilterNode name;
  require(parseFilter(filterName(text), name).text.empty());
  require(name.kind == FilterNode::Kind::Name && name.name == text);
  return 0;
}
