#ifndef vtkSelectableChartXY_h
#define vtkSelectableChartXY_h

#include "vtk/LostColumns.h"
#include "vtk/PlotScales.h"
#include "vtk/VtkCompat.h"

#include <vtkChartXY.h>

#include <vector>

class vtkChartMatrix;
class vtkTable;

/// An XY chart in which the select button selects table rows.
///
/// A rectangle hits the points in it, a click the topmost point near it, both in every plot that is
/// visible and selectable; selectable plots must be fed from one table. Control adds the rows hit
/// to those selected, shift subtracts and both toggle them. The annotation link gets one new
/// selection, which it announces; then the chart invokes SelectionChangedEvent. A click beside all
/// points changes nothing. VTK's own chart writes a click into the link's current selection
/// without telling anybody, rewrites row lists that others hold, knows the rows selected so far in
/// its first corner only and toggles wrongly with several plots.
///
/// A chart without a link takes no selection, and other selection methods than by rows are VTK's.
///
/// Every plot shows those of the link's rows that its own table has, also while the container has
/// another table that is not drawn yet. VTK's chart hands the ids of the first list on unchecked,
/// whatever they stand for. While a handler runs or the chart paints, a HandlerScope is open.
///
/// Its axes are vtkGuardedAxis. Those that are to be logarithmic are so exactly when the data allow
/// it, which is settled whenever plots have changed.
class vtkSelectableChartXY : public vtkChartXY
{
public:
  static vtkSelectableChartXY* New();
  TALMESH_VTK_TYPE(vtkSelectableChartXY, vtkChartXY);

  /// Hides plots whose columns have gone, then settles the scales and updates the other plots.
  void Update() override;
  /// Hides plots whose columns have gone, then makes those of the axes logarithmic that are to be
  /// and may be.
  void SettleScales();
  /// Paints nothing, and is nowhere, without a scene of its own: another one that lists it still
  /// may ask, after the one that it was put into last has let it go.
  bool Paint(vtkContext2D* painter) override;
  bool Hit(const vtkContextMouseEvent& mouse) override { return Scene && Superclass::Hit(mouse); }
  bool PaintChildren(vtkContext2D* painter) override;
  bool MouseEnterEvent(const vtkContextMouseEvent& mouse) override;
  bool MouseMoveEvent(const vtkContextMouseEvent& mouse) override;
  bool MouseLeaveEvent(const vtkContextMouseEvent& mouse) override;
  bool MouseDoubleClickEvent(const vtkContextMouseEvent& mouse) override;
  bool MouseWheelEvent(const vtkContextMouseEvent& mouse, int delta) override;
  bool KeyPressEvent(const vtkContextKeyEvent& key) override;
  bool MouseButtonPressEvent(const vtkContextMouseEvent& mouse) override;
  /// Does nothing once the chart has lost its place in the scene since the button was pressed, or
  /// after CancelDrag().
  bool MouseButtonReleaseEvent(const vtkContextMouseEvent& mouse) override;
  /// Takes the rectangle away that the mouse is drawing.
  /// @return whether there was one
  bool CancelDrag();

  using vtkChartXY::AddPlot;
  /// Lines are vtkPlotSafeLine, points Talmesh::PointCloud, which draws very many of them faster
  /// than VTK's own.
  vtkPlot* AddPlot(int type, unsigned int blockIndex) override;

  /// Puts a new chart of this kind into the cell of `matrix` at `position` instead of the one
  /// there.
  /// @return the chart, which the matrix owns
  static vtkSelectableChartXY* PlaceIn(vtkChartMatrix* matrix, const vtkVector2i& position);

protected:
  vtkSelectableChartXY();
  ~vtkSelectableChartXY() override = default;

private:
  vtkSelectableChartXY(const vtkSelectableChartXY&) = delete;
  void operator=(const vtkSelectableChartXY&) = delete;

  /// Rows of a table; no table where nothing could be hit.
  struct Hits
  {
    vtkSmartPointer<vtkTable> table;
    std::vector<bool> rows;

    void Add(vtkTable* of, vtkIdType row);
  };

  Talmesh::LostColumns Lost;
  Talmesh::PlotScales Scales; ///< with which the plots were updated last
  bool Cancelled = false;     ///< the button is still down

  bool SelectsRows(const vtkContextMouseEvent& mouse);
  void EndDrag();
  Hits HitsBetween(const vtkVector2f& from, const vtkVector2f& to) const;
  Hits HitsAt(const vtkVector2f& position) const;
};

#endif
