#ifndef vtkSelectableChartXY_h
#define vtkSelectableChartXY_h

#include "vtk/LostColumns.h"
#include "vtk/PlotScales.h"
#include "vtk/VtkCompat.h"

#include <vtkChartXY.h>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class vtkChartMatrix;
class vtkContextTransform;
class vtkTable;

namespace Talmesh
{
struct GestureHandling;
struct SelectionGesture;
} // namespace Talmesh

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
/// A program that takes gestures (SetGestures) is asked first. Then a drag may begin a little
/// beside the axes, at which it ends, one of a few pixels is a click, and a narrow rectangle is one
/// too. A lasso hits the points in it; a line hits none.
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
  bool Hit(const vtkContextMouseEvent& mouse) override;
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
  /// Takes away what the mouse is drawing to select.
  /// @return whether there was anything
  bool CancelDrag();

  /// What is asked before rows are selected, and what the select button draws; null for none and a
  /// rectangle.
  void SetGestures(std::shared_ptr<const Talmesh::GestureHandling> gestures);

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

  using Pixels = std::vector<vtkVector2f>;
  using PointFinder = std::function<void(vtkContextTransform*, vtkPlot*)>;

  Talmesh::LostColumns Lost;
  Talmesh::PlotScales Scales; ///< with which the plots were updated last
  bool Cancelled = false;     ///< the button is still down
  std::shared_ptr<const Talmesh::GestureHandling> Gestures;
  Pixels Trail; ///< of the lasso or line that the mouse is drawing

  bool SelectsRows(const vtkContextMouseEvent& mouse);
  bool SelectRows(const Hits& hits, const vtkContextMouseEvent& mouse);
  void EndDrag();
  Hits HitsOf(const PointFinder& find) const;
  Hits HitsBetween(const vtkVector2f& from, const vtkVector2f& to) const;
  Hits HitsWithin(const Pixels& corners) const;
  Hits HitsAt(const vtkVector2f& position) const;

  bool AsksFirst() const;
  bool BeginsBeside(const vtkContextMouseEvent& mouse);
  vtkVector2f WithinAxes(const vtkVector2f& pixel) const;
  void BeginTrail(const vtkVector2f& pixel);
  void LeaveTrail(const vtkVector2f& pixel);
  void PaintTrail(vtkContext2D* painter) const;
  bool EndGesture(const vtkContextMouseEvent& mouse);
  bool Describe(const vtkContextMouseEvent& mouse);
  /// None where no plots can be selected in, or several tables or pairs of axes are in the chart.
  std::optional<Talmesh::SelectionGesture> GestureOf(const Pixels& pixels) const;
};

#endif
