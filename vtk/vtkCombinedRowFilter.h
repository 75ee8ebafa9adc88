#ifndef vtkCombinedRowFilter_h
#define vtkCombinedRowFilter_h

#include "../export/TalmeshPlotExport.h"
#include "../vtk/VtkCompat.h"

#include <vtkTableAlgorithm.h>

#include <vector>

class vtkAbstractArray;

namespace Talmesh
{
struct RowBlock;
struct SelectedRows;

inline constexpr char NoSelectionMessage[] =
    "No vtkSelection or vtkAnnotationLayers provided as input.";
inline constexpr char NoTimeColumnMessage[] = "TimeColumnIndex not set.";
inline constexpr char NoParaCountMessage[] = "ParaCount not set.";
inline constexpr char ConversionFailedMessage[] = "Selection conversion to INDICES failed.";
} // namespace Talmesh

/// Base of the filters that split a table by the rows that are selected in it: the ports, the
/// properties that all have, and the way from selections and annotations to marked rows. A subclass
/// says which rows go where and, since each has messages of its own, what is wrong with its inputs.
///
/// Input 0 is the table, input 1 an optional vtkSelection, input 2 optional vtkAnnotationLayers;
/// the selection and the annotations that are enabled and not hidden are united. With annotations
/// alone and none of them contributing, output 0 is a shallow copy of the input and output 1 empty.
class TALMESHPLOT_EXPORT vtkCombinedRowFilter : public vtkTableAlgorithm
{
public:
  TALMESH_VTK_ABSTRACT_TYPE(vtkCombinedRowFilter, vtkTableAlgorithm);
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
  vtkCombinedRowFilter();
  ~vtkCombinedRowFilter() override = default;

  /// Reports the first input or property that is missing.
  /// @return false if there was one; the outputs stay as they are then
  virtual bool CheckInputs(bool hasSelectionSource) = 0;
  virtual void ReportFailedConversion() = 0;
  /// Fills both outputs and writes the marker columns of the input table.
  virtual void DivideRows(vtkTable* table, const Talmesh::SelectedRows& selected,
                          vtkTable* const outputs[2]) = 0;

  /// The column that holds the times; null if the table has none of that number.
  vtkAbstractArray* FindTimeColumn(vtkTable* table) const;
  /// Gives an empty output the columns of the table and the given rows.
  void FillOutput(vtkTable* table, const std::vector<Talmesh::RowBlock>& rows,
                  vtkTable* output) const;

  bool AddOriginalRowIdsArray = false;
  vtkIdType TimeColumnIndex = -1;

private:
  vtkCombinedRowFilter(const vtkCombinedRowFilter&) = delete;
  void operator=(const vtkCombinedRowFilter&) = delete;
};

#endif
