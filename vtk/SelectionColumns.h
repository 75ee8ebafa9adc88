#ifndef SelectionColumns_h
#define SelectionColumns_h

/// Names of the per-row marker columns that the row filters write into their input table and of
/// the row-number column that they append to their outputs. All hold vtkIdType values.
namespace Talmesh
{
/// 1 where the row joined the comparison set without having been selected.
inline constexpr char ComplementSelectionColumn[] = "vtkComplementSelection";
/// 1 where the row was selected but its run was not selected at every selected time.
inline constexpr char ReducedSelectionColumn[] = "vtkReducedSelection";
/// 1 where the row was selected and so was its run at every selected time.
inline constexpr char RemainderSelectionColumn[] = "vtkRemainderSelection";
/// Input row number of each output row.
inline constexpr char OriginalRowIdsColumn[] = "vtkOriginalRowIds";
} // namespace Talmesh

#endif
