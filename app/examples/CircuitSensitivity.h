#ifndef CircuitSensitivity_h
#define CircuitSensitivity_h

#include "app/import/ImportProgress.h"
#include "app/import/Result.h"
#include "external/Distribution.h"
#include "external/SobolPostProcessResult.h"

#include <memory>
#include <string>
#include <vector>

/// What the example circuit's parameters do to its proteins and mRNAs.
namespace Talmesh::app
{

/// Shared, only to be read.
using CircuitIndices = std::shared_ptr<SobolPostProcessResult>;

/// First-order and total sensitivity of every protein and mRNA to alpha, alpha0, beta and n over
/// time, estimated from `samples` * 6 simulations with the parameters distributed as in the example
/// study. The outputs are the study's items: proteins, mRNAs and last the time, whose indices are 0
/// and which no chart shows. The same numbers every time.
/// @param progress told before each simulation; the result is cancelled when it cancels
Result<CircuitIndices> circuitSensitivity(std::size_t samples, const ImportProgress& progress = {});

/// The same from as many samples as the viewer's charts are drawn from, some seconds of work:
/// first-order indices near zero still scatter around it. Computed once for all, as the numbers are
/// always the same. May be called in any thread.
Result<CircuitIndices> keptCircuitSensitivity(const ImportProgress& progress = {});

struct NamedDistribution
{
  std::string name;
  std::shared_ptr<Distribution> distribution;
};

/// The distributions from which the example study draws its parameters.
std::vector<NamedDistribution> circuitPriors();

} // namespace Talmesh::app

#endif
