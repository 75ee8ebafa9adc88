#ifndef vtkPrepareKMeansTable_h
#define vtkPrepareKMeansTable_h

#include "../export/TalmeshPlotExport.h"

#include <vtkTableAlgorithm.h>

/// Regroups one column of a run-stacked table by run, so that each row is one whole trajectory.
///
/// Input port 0 takes the table, input array 0 names the value column (row association); Stride is
/// the number of consecutive rows of one run. The output has Stride columns of doubles, one per
/// position within a run, and one row per whole run, in the order of the table; rows behind the
/// last whole run are left out. The columns are named by their 0-based position, padded with zeros
/// to equal length ("00" ... "99"), so that the order of the names is the order of the positions.
///
/// Of an array with several components the first is used. The output has neither rows nor columns
/// when there is no such column or it is not numeric, when Stride is below 1, and when the table
/// holds no whole run.
class TALMESHPLOT_EXPORT vtkPrepareKMeansTable : public vtkTableAlgorithm
{
public:
  static vtkPrepareKMeansTable* New();
  vtkTypeMacro(vtkPrepareKMeansTable, vtkTableAlgorithm)
  void PrintSelf(ostream& os, vtkIndent indent) override;

  /// Rows per run; 1 at first.
  vtkSetMacro(Stride, int);
  vtkGetMacro(Stride, int);

protected:
  vtkPrepareKMeansTable() = default;
  ~vtkPrepareKMeansTable() override = default;

  int RequestData(vtkInformation* request, vtkInformationVector** inputVector,
                  vtkInformationVector* outputVector) override;

private:
  vtkPrepareKMeansTable(const vtkPrepareKMeansTable&) = delete;
  void operator=(const vtkPrepareKMeansTable&) = delete;

  int Stride = 1;
};

#endif
