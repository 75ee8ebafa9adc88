#ifndef RunPieces_h
#define RunPieces_h

#include "vtk/RunTracer.h"

#include <vtkType.h>

#include <vector>

namespace Talmesh
{
/// The lines that a line set draws for its runs if it knows no gaps, in this order. Behind the last
/// bad point a line of at most a run's length leads on; if it has no two points to lead to, there
/// are no lines at all. Then come all whole runs, bad points or not.
std::vector<CountedRun> linesOfRuns(vtkIdType pointCount, vtkIdType stride,
                                    const vtkIdType* badPoints, vtkIdType badCount);

/// All whole runs.
std::vector<CountedRun> wholeRuns(vtkIdType pointCount, vtkIdType stride);

/// Each of @p runs that is listed, once, with the number of its entries as weight, in order of the
/// runs. Entries that name none of @p runCount runs are passed over.
std::vector<CountedRun> countRuns(const vtkIdType* listed, vtkIdType count, vtkIdType runCount,
                                  vtkIdType stride);

/// Each of @p runCount runs that has marked rows, those that are not 0 of the @p rowCount there
/// are, with their number as weight.
std::vector<CountedRun> countMarkedRuns(const vtkIdType* rows, vtkIdType rowCount,
                                        vtkIdType runCount, vtkIdType stride);

/// One entry per point, 1 for the bad ones.
std::vector<unsigned char> maskOf(vtkIdType pointCount, const vtkIdType* badPoints,
                                  vtkIdType badCount);

/// The parts of a run between its gaps, which are bad points and those with a coordinate that is no
/// finite number. A part may be a single point.
std::vector<CountedRun> piecesOf(const CountedRun& run, const float* points,
                                 const unsigned char* broken);
} // namespace Talmesh

#endif
