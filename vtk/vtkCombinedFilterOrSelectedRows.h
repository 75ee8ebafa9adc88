#ifndef vtkCombinedFilterOrSelectedRows_h
#define vtkCombinedFilterOrSelectedRows_h

#include "../export/TalmeshPlotExport.h"
#include "../vtk/vtkCombinedRowFilter.h"

/// Splits a table into every selected row (output 0, the union of all selections) and the
/// unselected rows whose time lies within the time range of the selected ones (output 1).
///
/// Input 0 is the table, input 1 an optional vtkSelection, input 2 optional vtkAnnotationLayers;
/// the selection and the annotations that are enabled and not hidden are united. With annotations
/// alone and none of them contributing, output 0 is a shallow copy of the input and output 1 empty.
///
/// The filter writes to its input table: the vtkIdTypeArray column "vtkComplementSelection" is 1
/// for the rows of output 1 and 0 for all others. A row that a selection lists twice appears twice
/// in output 0. A time that is NaN, or a time column that is missing or not numeric, matches
/// nothing.
///
/// Update() fails, with a VTK error and untouched outputs, without any selection input, with a
/// negative TimeColumnIndex, and when the selection cannot be converted to row indices.
class TALMESHPLOT_EXPORT vtkCombinedFilterOrSelectedRows : public vtkCombinedRowFilter
{
public:
  static vtkCombinedFilterOrSelectedRows* New();
  TALMESH_VTK_TYPE(vtkCombinedFilterOrSelectedRows, vtkCombinedRowFilter);

protected:
  vtkCombinedFilterOrSelectedRows() = default;
  ~vtkCombinedFilterOrSelectedRows() override = default;

  bool CheckInputs(bool hasSelectionSource) override;
  void ReportFailedConversion() override;
  void DivideRows(vtkTable* table, const Talmesh::SelectedRows& selected,
                  vtkTable* const outputs[2]) override;

private:
  vtkCombinedFilterOrSelectedRows(const vtkCombinedFilterOrSelectedRows&) = delete;
  void operator=(const vtkCombinedFilterOrSelectedRows&) = delete;
};

#endif
