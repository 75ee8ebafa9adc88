#ifndef vtkPlotErrorPoints_h
#define vtkPlotErrorPoints_h

#include "../export/TalmeshPlotExport.h"
#include "../vtk/CachedPoints.h"
#include "../vtk/VtkCompat.h"

#include <vtkStdString.h>
#include <vtkWeakPointer.h>

class vtkFloatArray;

/// A point series with a vertical error bar at every point. The half-length of each bar comes
/// from a vtkFloatArray column of the input table, row by row.
///
/// Ownership: the item takes no reference on the error column, yet its destructor calls Delete()
/// on it once, provided the column still exists then. Whoever uses the item directly must
/// therefore donate one reference to the column that the item holds when it dies, which is the
/// one found by its last Update():
///
///     points->SelectErrorArray("error");
///     points->Update();
///     errorColumn->Register(nullptr); // released by the item's destructor
///
/// A derived class can do so for its users by registering ErrorArray in its own destructor.
class TALMESHPLOT_EXPORT vtkPlotErrorPoints : public Talmesh::CachedPoints
{
public:
  static vtkPlotErrorPoints* New();
  TALMESH_VTK_TYPE(vtkPlotErrorPoints, Talmesh::CachedPoints);
  void PrintSelf(ostream& os, vtkIndent indent) override;

  /// Finds the error column again, then updates as vtkPlotPoints does. Does nothing when the item
  /// is invisible or has no input table.
  void Update() override;

  /// Draws the bars, then the markers of vtkPlotPoints. Points without an error value get no
  /// bar; no bar is drawn if any point has a NaN or infinite coordinate.
  bool Paint(vtkContext2D* painter) override;

  /// Sets ErrorArray to the selected column of @p table, or to null if that is missing or no
  /// vtkFloatArray; with no name selected ErrorArray stays. Always true.
  bool UpdateErrorCache(vtkTable* table);

  ///@{
  /// Selects the error column by name or by position. Without an input table nothing happens. A
  /// name that no column has deselects; a position that holds no named vtkDataArray does nothing.
  void SelectErrorArray(const vtkStdString& name);
  void SelectErrorArray(vtkIdType column);
  ///@}

  /// Name of the selected error column, empty if there is none.
  vtkStdString GetErrorArrayName();

  /// Finds the extent of the good points as (xmin, xmax, ymin, ymax). A value either lowers the
  /// minimum or raises the maximum, not both, the maxima start at the smallest positive float, and
  /// the bars are left out: charts use GetBounds(). Does nothing without bad points or ErrorArray.
  void CalculateBounds(double bounds[4]);

  /// Reports that logarithmic scales are not supported for the bars. Charts do not call it.
  void CalculateLogSeries();

protected:
  vtkPlotErrorPoints() = default;
  ~vtkPlotErrorPoints() override;

  vtkStdString ErrorArrayName;              ///< the selected column, empty if there is none
  vtkWeakPointer<vtkFloatArray> ErrorArray; ///< half-lengths of the bars in units of y, not owned

private:
  vtkPlotErrorPoints(const vtkPlotErrorPoints&) = delete;
  void operator=(const vtkPlotErrorPoints&) = delete;

  bool HasBadPoints() const;
  void PaintErrorBars(vtkContext2D* painter);
};

#endif
