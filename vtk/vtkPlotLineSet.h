#ifndef vtkPlotLineSet_h
#define vtkPlotLineSet_h

#include "vtk/VtkCompat.h"

#include <vtkPlotPoints.h>

class vtkIdTypeArray;

/// Many runs in one plot item. The rows of the input table are runs of Stride rows, one after
/// another; every whole run is drawn as a polyline of its own and the selected runs are drawn
/// again on top in the highlight pen.
///
/// Which runs are highlighted comes from the input column "vtkRemainderSelection" (non-zero
/// marks a row, see vtkCombinedFilterAndSelectedRows) or, if that was never there or is empty,
/// from the point ids of the item's own selection. A run is highlighted once per marked row; ids
/// outside the points and runs that are not whole are passed over. Runs of a single point have no
/// line.
class vtkPlotLineSet : public vtkPlotPoints
{
public:
  static vtkPlotLineSet* New();
  TALMESH_VTK_TYPE(vtkPlotLineSet, vtkPlotPoints);
  void PrintSelf(ostream& os, vtkIndent indent) override;

  /// Updates the cached points and the copy of the marker column, and marks the item modified.
  /// Does nothing when the item is invisible or has no input table.
  void Update() override;

  /// @return false if the item is invisible, has no cached points or a stride below 1.
  bool Paint(vtkContext2D* painter) override;

  /// Draws a level line, then the marker of the base; @p legendIndex is ignored.
  bool PaintLegend(vtkContext2D* painter, const vtkRectf& rect, int legendIndex) override;

  /// Copies the marker column of @p table. If the table has none, the rows count as unmarked but
  /// an earlier copy stays in place of the item's own selection. Always true.
  bool UpdateSelectionCache(vtkTable* table);

  ///@{
  /// Rows per run. Default 1.
  vtkSetMacro(Stride, int);
  vtkGetMacro(Stride, int);
  ///@}

  ///@{
  /// Stored for the item's user; painting does not consult it. Default 1.
  vtkSetMacro(UseExternalSelection, int);
  vtkGetMacro(UseExternalSelection, int);
  vtkBooleanMacro(UseExternalSelection, int);
  ///@}

  ///@{
  /// Whether the runs themselves are left out and only the highlighted ones drawn. Default 1.
  vtkSetMacro(OnlyShowSelected, int);
  vtkGetMacro(OnlyShowSelected, int);
  vtkBooleanMacro(OnlyShowSelected, int);
  ///@}

protected:
  vtkPlotLineSet();
  ~vtkPlotLineSet() override;

  vtkIdTypeArray* SelectedLineIds;    ///< runs to highlight, rebuilt when painting
  vtkIdTypeArray* RemainderSelection; ///< copy of the marker column
  int Stride = 1;
  int UseExternalSelection = 1;
  int OnlyShowSelected = 1;
  vtkIdType NumberOfRemainderRows = 0; ///< non-zero entries of RemainderSelection

private:
  vtkPlotLineSet(const vtkPlotLineSet&) = delete;
  void operator=(const vtkPlotLineSet&) = delete;

  void PaintPolyLine(vtkContext2D* painter, vtkIdType first, vtkIdType count);
  void PaintRuns(vtkContext2D* painter);
  void PaintHighlights(vtkContext2D* painter);
  void FindMarkedRuns();
  void FindSelectedRuns();
};

#endif
