#ifndef ExampleStudy_h
#define ExampleStudy_h

#include "app/examples/Repressilator.h"
#include "app/import/ImportProgress.h"
#include "app/import/Study.h"
#include "external/LinePlotTable.h"

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <vector>

namespace Talmesh::app
{

/// The study that the viewer opens without a file: the repressilator from one starting point under
/// sampled parameters. The same numbers every time.
namespace exampleStudy
{
constexpr std::size_t runs = 400;
constexpr std::size_t pointsPerRun = 200;
/// The distance of two points, in seconds.
constexpr double timeStep = 180.0;
} // namespace exampleStudy

/// The bounds between which one parameter is sampled.
struct ParameterRange
{
  double lower = 0.0;
  double upper = 0.0;
  /// Whether its logarithm is uniform rather than itself.
  bool logarithmic = false;
};

/// The items of the study, in column order.
std::vector<TypedConcentrationName> exampleItems();

/// The ranges of alpha, alpha0, beta and n, in this order.
const std::vector<ParameterRange>& exampleParameterRanges();

/// The parameters of every run.
std::vector<RepressilatorParameters> exampleParameters();

/// The state at which every run starts. It is not symmetric, because from equal genes the circuit
/// runs into its steady state even where that is unstable.
RepressilatorState exampleStart();

/// Simulates all runs. Items in order: the proteins TetR, LacI and cI (molecules), their mRNAs
/// (patterns), ": Time [s]", ": Run Index", and the parameters alpha, alpha0, beta and n with the
/// ranges above.
/// @param progress told after each run
/// @return null when the progress cancels
boost::shared_ptr<LinePlotTable> makeExampleStudy(const ImportProgress& progress = {});

/// The simulated example study as the viewer shows it; without runs when the progress cancels.
Study exampleStudyOfRepressilator(const ImportProgress& progress = {});

} // namespace Talmesh::app

#endif
