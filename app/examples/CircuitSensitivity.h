#ifndef CircuitSensitivity_h
#define CircuitSensitivity_h

#include "app/import/ImportProgress.h"
#include "external/Distribution.h"
#include "external/SobolPostProcessResult.h"

#include <memory>
#include <string>
#include <vector>

/// What the example circuit's parameters do to its proteins and mRNAs.
namespace Talmesh::app
{

/// First-order and total sensitivity of every protein and mRNA to alpha, alpha0, beta and n over
/// time, estimated from `samples` * 6 simulations with the parameters distributed as in the example
/// study. The outputs are the study's items: proteins, mRNAs and last the time, whose indices are 0
/// and which no chart shows. The same numbers every time.
/// @param progress told after each simulation
/// @throws std::runtime_error when the progress cancels
std::unique_ptr<SobolPostProcessResult> circuitSensitivity(std::size_t samples,
                                                           const ImportProgress& progress = {});

/// The same from as many samples as the viewer's charts are drawn from, some seconds of work:
/// first-order indices near zero still scatter around it. Computed once for all, as the numbers are
/// always the same. May be called in any thread.
/// @return shared, only to be read
/// @throws std::runtime_error when the progress cancels
std::shared_ptr<SobolPostProcessResult> keptCircuitSensitivity(const ImportProgress& progress = {});

struct NamedDistribution
{
  std::string name;
  std::shared_ptr<Distribution> distribution;
};

/// The distributions from which the example study draws its parameters.
std::vector<NamedDistribution> circuitPriors();

} // namespace Talmesh::app

#endif
