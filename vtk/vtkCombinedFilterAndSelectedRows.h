#ifndef vtkCombinedFilterAndSelectedRows_h
#define vtkCombinedFilterAndSelectedRows_h

#include "../export/TalmeshPlotExport.h"
#include "../vtk/vtkCombinedRowFilter.h"

#include <vector>

/// Splits a table of stacked runs by the runs that are selected at every selected time.
///
/// A run occupies Stride consecutive rows. It is accepted if, at every distinct time at which
/// any row is selected, a row of the run is selected. Output 0 holds the selected rows of the
/// accepted runs; output 1 holds, in row order, the selected rows of all other runs and the
/// unselected rows whose time equals a selected one exactly.
///
/// Input 0 is the table, input 1 an optional vtkSelection, input 2 optional vtkAnnotationLayers;
/// the selection and the annotations that are enabled and not hidden are united. With annotations
/// alone and none of them contributing, output 0 is a shallow copy of the input and output 1 empty.
///
/// The filter writes three vtkIdTypeArray columns of 0 and 1 to its input table, one value per
/// row: "vtkComplementSelection" (unselected row of output 1), "vtkReducedSelection" (selected row
/// of output 1) and "vtkRemainderSelection" (row of output 0). They replace columns of the same
/// name. Nothing is written and both outputs have no rows when no selected row has a time, as when
/// the time column is missing or not a vtkDoubleArray; NaN counts as no time.
///
/// Update() fails, with a VTK error and untouched outputs, without any selection input, with a
/// negative TimeColumnIndex or ParaCount, and when the selection cannot be converted to row
/// indices.
class TALMESHPLOT_EXPORT vtkCombinedFilterAndSelectedRows : public vtkCombinedRowFilter
{
public:
  static vtkCombinedFilterAndSelectedRows* New();
  TALMESH_VTK_TYPE(vtkCombinedFilterAndSelectedRows, vtkCombinedRowFilter);

  ///@{
  /// Number of parameter columns. Default -1, which must be replaced.
  vtkSetMacro(ParaCount, vtkIdType);
  vtkGetMacro(ParaCount, vtkIdType);
  ///@}

  ///@{
  /// Rows per run; values below 1 count as 1. Default 1.
  vtkSetMacro(Stride, vtkIdType);
  vtkGetMacro(Stride, vtkIdType);
  ///@}

  /// Indices of the parameter columns; carried for the filter's user, not read by the filter.
  std::vector<int> ParameterColumns;

protected:
  vtkCombinedFilterAndSelectedRows() = default;
  ~vtkCombinedFilterAndSelectedRows() override = default;

  bool CheckInputs(bool hasSelectionSource) override;
  void ReportFailedConversion() override;
  void DivideRows(vtkTable* table, const Talmesh::SelectedRows& selected,
                  vtkTable* const outputs[2]) override;

  vtkIdType ParaCount = -1;
  vtkIdType Stride = 1;

private:
  vtkCombinedFilterAndSelectedRows(const vtkCombinedFilterAndSelectedRows&) = delete;
  void operator=(const vtkCombinedFilterAndSelectedRows&) = delete;
};

#endif
