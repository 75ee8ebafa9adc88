#ifndef CombinedSelection_h
#define CombinedSelection_h

#include <vtkSmartPointer.h>
#include <vtkType.h>

#include <vector>

class vtkAbstractArray;
class vtkAnnotation;
class vtkAnnotationLayers;
class vtkSelection;
class vtkTable;

/// The steps that turn VTK selections and annotations into marked table rows, shared by the row
/// filters and by everything else that reads an annotation link.
namespace Talmesh
{
/// True unless the annotation is disabled, or enabled and hidden. An annotation that says nothing
/// about being enabled contributes.
bool contributes(vtkAnnotation* annotation);

/// A selection together with the number of sources it was made from.
struct CombinedSelection
{
  vtkSmartPointer<vtkSelection> selection; ///< never null, shares nothing with its sources
  int sources = 0;                         ///< the selection, if any, and contributing annotations
};

/// Unites a selection with the contributing annotations. Both arguments may be null and neither
/// is changed. An annotation without a selection is counted and adds nothing.
CombinedSelection combineSelections(vtkSelection* selection, vtkAnnotationLayers* annotations);

/// Converts to a selection of row indices of @p table.
/// @param combined as combineSelections() gives it; its nodes become row nodes.
/// @return null if VTK cannot convert it.
vtkSmartPointer<vtkSelection> toRowIndices(vtkSelection* combined, vtkTable* table);

/// The rows that a selection of row indices names.
struct SelectedRows
{
  std::vector<vtkIdType> listed; ///< in node order, then list order; a row may occur repeatedly
  std::vector<bool> marked;      ///< one flag per table row
};

/// Reads the row nodes of @p indices for a table of @p rowCount rows; an inverse node names every
/// row that it does not list. Ids outside the table are skipped.
SelectedRows selectedRows(vtkSelection* indices, vtkIdType rowCount);

/// First component of @p column for each of @p rowCount rows, NaN where there is no value (and
/// everywhere if @p column is null or not numeric).
std::vector<double> rowTimes(vtkAbstractArray* column, vtkIdType rowCount);
} // namespace Talmesh

#endif
