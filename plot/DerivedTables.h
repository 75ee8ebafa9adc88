#ifndef DerivedTables_h
#define DerivedTables_h

#include <vtkSmartPointer.h>
#include <vtkTable.h>

#include <cstddef>
#include <vector>

/// Which slot of a container's derived tables holds what, and what the columns in there are called.
///
/// The plot table's ranks and densities have slots 0 and 1. Every further data set k = 1, 2, ...
/// has three: its data in 3k - 1, their ranks in 3k and their densities in 3k + 1.
namespace Talmesh::plot
{

/// Columns of a rank table; a parameter's label follows.
inline constexpr char rankPrefix[] = "Rank of ";
inline constexpr char sortedPrefix[] = "Sorted ";
/// Columns of a density table; a parameter's label follows.
inline constexpr char densityPrefix[] = "Density of ";
inline constexpr char locationsPrefix[] = "Locations of ";

constexpr std::size_t ownRankSlot = 0;
/// Number of slots that belong to the plot table.
constexpr std::size_t ownSlots = 2;

/// Slot of the ranks of the further data set `dataSet`, counted from 1.
constexpr std::size_t rankSlot(std::size_t dataSet)
{
  return 3 * dataSet;
}

/// Slot of the densities that belong to the ranks in slot `ranks`.
constexpr std::size_t densitySlotOf(std::size_t ranks)
{
  return ranks + 1;
}

/// The table in a slot; null for an empty slot and for one beyond the list.
inline vtkTable* tableInSlot(const std::vector<vtkSmartPointer<vtkTable>>& tables, std::size_t slot)
{
  return slot < tables.size() ? tables[slot].Get() : nullptr;
}

} // namespace Talmesh::plot

#endif
