#ifndef vtkCombinedFilterOrSelectedRows_h
#define vtkCombinedFilterOrSelectedRows_h

#include "vtk/VtkCompat.h"

#include <vtkTableAlgorithm.h>

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
class vtkCombinedFilterOrSelectedRows : public vtkTableAlgorithm
{
public:
  static vtkCombinedFilterOrSelectedRows* New();
  TALMESH_VTK_TYPE(vtkCombinedFilterOrSelectedRows, vtkTableAlgorithm);
  void PrintSelf(ostream& os, vtkIndent indent) override;

  /// Connects the vtkSelection (input port 1).
  void SetSelectionConnection(vtkAlgorithmOutput* in);
  /// Connects the vtkAnnotationLayers (input port 2).
  void SetAnnotationLayersConnection(vtkAlgorithmOutput* in);

  int FillInputPortInformation(int port, vtkInformation* info) override;
  int RequestData(vtkInformation* request, vtkInformationVector** inputVector,
                  vtkInformationVector* outputVector) override;

  ///@{
  /// Whether both outputs get a column "vtkOriginalRowIds" of input row numbers. Default false.
  vtkSetMacro(AddOriginalRowIdsArray, bool);
  vtkGetMacro(AddOriginalRowIdsArray, bool);
  vtkBooleanMacro(AddOriginalRowIdsArray, bool);
  ///@}

  ///@{
  /// Input column that holds the time of each row. Default -1, which must be replaced.
  vtkSetMacro(TimeColumnIndex, vtkIdType);
  vtkGetMacro(TimeColumnIndex, vtkIdType);
  ///@}

protected:
  vtkCombinedFilterOrSelectedRows();
  ~vtkCombinedFilterOrSelectedRows() override = default;

  bool AddOriginalRowIdsArray = false;
  vtkIdType TimeColumnIndex = -1;

private:
  vtkCombinedFilterOrSelectedRows(const vtkCombinedFilterOrSelectedRows&) = delete;
  void operator=(const vtkCombinedFilterOrSelectedRows&) = delete;

  bool CheckInputs(bool hasSelectionSource);
  void ReportFailedConversion();
};

#endif
