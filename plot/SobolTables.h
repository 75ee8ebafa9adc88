#ifndef SobolTables_h
#define SobolTables_h

#include <vtkSmartPointer.h>

#include <cstddef>
#include <string>

class vtkTable;
struct SobolPostProcessResult;

namespace Talmesh::plot
{

/// Which indices of a sensitivity analysis are shown.
enum class SobolIndex
{
  FirstOrder,
  Total
};

/// The indices of output `output` over time: one single-precision column per parameter, named by
/// it, and the column "Time" in seconds; one row per time point. Negative indices become 0; what
/// the result does not hold becomes NaN.
vtkSmartPointer<vtkTable> sobolTimeSeriesTable(const SobolPostProcessResult& result,
                                               SobolIndex index, std::size_t output);

/// The indices at time point `timePoint`: columns as above, but the last one is the string column
/// "Name"; one row per molecule, complex with molecule or pattern among all outputs but the last.
vtkSmartPointer<vtkTable> sobolTimePointTable(const SobolPostProcessResult& result,
                                              SobolIndex index, std::size_t timePoint);

/// "Sensitivity of " and the output's label, behind "Total " for total indices.
std::string sobolTimeSeriesTitle(const SobolPostProcessResult& result, SobolIndex index,
                                 std::size_t output);

/// "Sensitivities at t= ", the time with six significant digits and " s", behind "Total " for total
/// indices.
std::string sobolTimePointTitle(const SobolPostProcessResult& result, SobolIndex index,
                                std::size_t timePoint);

} // namespace Talmesh::plot

#endif
