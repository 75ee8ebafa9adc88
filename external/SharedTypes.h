#ifndef SharedTypes_h
#define SharedTypes_h

#include "../export/TalmeshPlotExport.h"
#include "../external/ScientificFormat.h"
#include "../external/TypedConcentrationName.h"

#include <ctime>
#include <random>

namespace Talmesh
{

/// The one generator of the process, MT19937 of the C++ standard. Not for use from several threads.
TALMESHPLOT_EXPORT inline std::mt19937 MersenneTwister;

/// Its construction seeds the generator with the current time in seconds.
struct init
{
  init() { MersenneTwister.seed(static_cast<std::mt19937::result_type>(std::time(nullptr))); }
};

/// Every source file that includes this header seeds the generator when it is loaded; the last one
/// to be loaded decides. Code that needs a repeatable sequence seeds again or uses its own
/// generator.
static const init seedOnLoad;

} // namespace Talmesh

#endif
