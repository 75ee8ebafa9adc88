#ifndef vtkPlotLineSet_h
#define vtkPlotLineSet_h

#include "../export/TalmeshPlotExport.h"
#include "../vtk/CachedPoints.h"
#include "../vtk/HighlightColor.h"
#include "../vtk/VtkCompat.h"

#include <memory>
#include <vector>

class vtkIdTypeArray;

namespace Talmesh
{
class AggregateTarget;
class PictureStore;
class RunLines;
} // namespace Talmesh

/// Many runs in one plot item. The rows of the input table are runs of Stride rows, one after
/// another; every whole run is drawn as a polyline of its own and the selected runs are drawn
/// again on top in the highlight pen.
///
/// Which runs are highlighted comes from the input column "vtkRemainderSelection" (non-zero
/// marks a row, see vtkCombinedFilterAndSelectedRows) or, if that was never there or is empty,
/// from the point ids of the item's own selection. A run is highlighted once per marked row; ids
/// outside the points and runs that are not whole are passed over. Runs of a single point have no
/// line.
///
/// A device that takes pictures of many shapes, as the screen does (vtk/AggregateDevice.h), gets
/// one for the runs and one for the highlighted ones, which shows what drawing them one by one
/// would add up to. They are made again only if points, pen, place or highlighted runs change.
/// Dashed lines are drawn one by one everywhere.
class TALMESHPLOT_EXPORT vtkPlotLineSet : public Talmesh::CachedPoints
{
public:
  static vtkPlotLineSet* New();
  TALMESH_VTK_TYPE(vtkPlotLineSet, Talmesh::CachedPoints);
  void PrintSelf(ostream& os, vtkIndent indent) override;

  /// Updates the cached points and the copy of the marker column where their columns have changed,
  /// and marks the item modified. Does nothing when the item is invisible or has no input table.
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

  ///@{
  /// Whether a line ends before a bad point, or one whose logarithm is no number, and begins again
  /// behind it, run by run, with a round marker for a point between two gaps and for a run of one
  /// point. If 0, the line behind the last bad point leads on into the next run, and with fewer
  /// than two points behind the last bad one no run is drawn. Default 0.
  vtkSetMacro(BreakAtGaps, int);
  vtkGetMacro(BreakAtGaps, int);
  vtkBooleanMacro(BreakAtGaps, int);
  ///@}

  /// How the selected runs are drawn; at first as everywhere in the library.
  void SetHighlight(const Talmesh::Highlight& highlight);

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

  struct Layers;

  const std::vector<double>& ContentOf(const Talmesh::RunLines& runs);
  void PaintRuns(vtkContext2D* painter, const Talmesh::AggregateTarget* target,
                 Talmesh::RunLines& runs);
  /// @param always also where the column seems to be the one copied last
  void ReadMarkers(vtkTable* table, bool always);
  void FindMarkedRuns();
  void FindSelectedRuns();
  void CountHighlights(bool marked);
  void PaintHighlights(vtkContext2D* painter, Talmesh::RunLines& runs);
  void PaintHighlights(vtkContext2D* painter, const Talmesh::AggregateTarget& target,
                       Talmesh::RunLines& runs);
  void PaintSums(vtkContext2D* painter, Talmesh::RunLines& runs);

  int BreakAtGaps = 0;
  Talmesh::Highlight SelectedLook;
  std::vector<double> CopiedMarkers; ///< tells the marker column that was copied
  double MarkerCopies = 0.0;         ///< tells one copy of it from another
  vtkIdType CopiedMarks = 0;         ///< non-zero values of that copy
  std::unique_ptr<Layers> Painted;   ///< the runs and the highlighted ones
};

#endif
