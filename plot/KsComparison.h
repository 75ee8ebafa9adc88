#ifndef KsComparison_h
#define KsComparison_h

#include <cstddef>

class vtkTable;

namespace Talmesh::plot
{

struct PlotState;

/// Fills `ksResults` with the Kolmogorov-Smirnov test of every parameter of two rank tables, in
/// their order, and empties `testedSamples`.
///
/// `first` and `second` are slots of the derived tables. Every odd column, 1, 3, ..., holds the
/// ascending values of one parameter; the first table says how many there are. A column that is
/// missing or not a vtkDoubleArray of one component counts as an empty sample; a slot that is null
/// or does not exist leaves `ksResults` empty.
/// @throws std::overflow_error where the log-gamma function overflows, for immense samples
void testKolmogorovSmirnov(PlotState& state, std::size_t first, std::size_t second);

/// Brings `ksResults`, whose order is that of the parameters in the rank table of slot `first`,
/// into the order of the settings' parameter list. They differ when a parameter could not be
/// ranked: it has no columns in that table and gets the result of empty samples, a distance of 0
/// with p = 1.
void alignResults(PlotState& state, std::size_t first);

/// A group of runs that was compared with another.
struct ComparedGroup
{
  vtkTable* rows;  ///< of its runs
  vtkTable* ranks; ///< of its parameters
  std::size_t runs;
};

/// Fills `testedSamples` with what was compared, in the order of the settings' parameter list.
void noteSamples(PlotState& state, const ComparedGroup& selected, const ComparedGroup& others);

} // namespace Talmesh::plot

#endif
