#ifndef vtkSelectableParallelCoordinates_h
#define vtkSelectableParallelCoordinates_h

#include "vtk/SelectionGesture.h"
#include "vtk/VtkCompat.h"

#include <vtkChartParallelCoordinates.h>
#include <vtkNew.h>
#include <vtkStringArray.h>
#include <vtkTimeStamp.h>
#include <vtkTooltipItem.h>
#include <vtkVector.h>

#include <memory>
#include <string>
#include <vector>

namespace Talmesh
{
struct GestureHandling;
}

/// A parallel-coordinates chart in which brushing an axis selects table rows as a rectangle in an
/// XY chart does: control adds the rows brushed to those selected, shift subtracts and both toggle
/// them, and the annotation link gets one new selection. VTK's own chart reads no modifiers. Each
/// brush stands alone, and what is highlighted are the rows that the link's selection names.
///
/// Where a program takes gestures (SetGestures), brushes of several axes are kept and drawn, and
/// mean together the rows within all of them, as long as these are selected. A brush with one of
/// those keys stands alone and is not kept. A click means the row whose line is nearest, and beside
/// the mouse stands what the program says of that row.
///
/// Items that a program puts into it are painted on top.
///
/// Where the button of the action PAN moves an axis, the axes stand at equal distances again when
/// it is released, in their new order, and the chart invokes vtkCommand::InteractionEvent.
class vtkSelectableParallelCoordinates : public vtkChartParallelCoordinates
{
public:
  static vtkSelectableParallelCoordinates* New();
  TALMESH_VTK_TYPE(vtkSelectableParallelCoordinates, vtkChartParallelCoordinates);

  /// Paints nothing any more once a column of an axis has gone from the table: VTK reads it.
  /// So it does without a scene of its own, as vtkSelectableChartXY.
  bool Paint(vtkContext2D* painter) override;
  bool Hit(const vtkContextMouseEvent& mouse) override { return Scene && Superclass::Hit(mouse); }
  bool MouseButtonPressEvent(const vtkContextMouseEvent& mouse) override;
  bool MouseMoveEvent(const vtkContextMouseEvent& mouse) override;
  bool MouseLeaveEvent(const vtkContextMouseEvent& mouse) override;
  /// Does nothing once the chart has lost its place in the scene since the button was pressed, or
  /// after CancelDrag().
  bool MouseButtonReleaseEvent(const vtkContextMouseEvent& mouse) override;
  /// Takes the brush away that the mouse is drawing, or an axis back that it is moving; while it
  /// does neither, all brushes.
  /// @return whether the mouse was doing either
  bool CancelDrag();

  /// Whether the names of axes make room for each other, see Talmesh::placeNames(). Otherwise, as
  /// at first, VTK writes them, over each other where they are long.
  void SetPlacesNames(bool places);

  /// What is asked before rows are selected, and what to say beside the mouse; null for none.
  void SetGestures(std::shared_ptr<const Talmesh::GestureHandling> gestures);

  /// What stands beside the mouse.
  vtkTooltipItem* GetTooltip() { return Tooltip; }

  /// Ends a move of an axis: the lines may be others, of other columns, and brushes that do not
  /// tell what is selected of these are dropped.
  void SetPlot(vtkPlotParallelCoordinates* plot) override;

  /// Highlights the rows that the link's selection names.
  void ShowSelection();

protected:
  // A new tooltip is visible, and has a frame without a text.
  vtkSelectableParallelCoordinates() { Tooltip->SetVisible(false); }
  ~vtkSelectableParallelCoordinates() override = default;

private:
  vtkSelectableParallelCoordinates(const vtkSelectableParallelCoordinates&) = delete;
  void operator=(const vtkSelectableParallelCoordinates&) = delete;

  bool HasColumns();
  vtkIdType RowsNow();
  /// The index of the axis that a press there brushes; -1 for none.
  int AxisUnder(const vtkContextMouseEvent& mouse);
  float HeightOnAxis(const vtkContextMouseEvent& mouse);
  void MoveAxis(const vtkContextMouseEvent& mouse);
  void PlaceAxes();
  bool AsksFirst() const;
  void BeginGesture(const vtkContextMouseEvent& mouse);
  void FollowMouse(const vtkContextMouseEvent& mouse);
  bool EndGesture(const vtkContextMouseEvent& mouse);
  void Take(const Talmesh::SelectionGesture& gesture);
  Talmesh::SelectionGesture PointedAt(const vtkVector2f& place);
  void Describe(const vtkContextMouseEvent& mouse);
  void Say(const std::string& text);
  void DropOtherBrushes();
  void PaintBrush(vtkContext2D* painter, int axis, const Talmesh::SelectionGesture::Brush& brush);
  void PaintGestures(vtkContext2D* painter);
  void PaintNames(vtkContext2D* painter);
#if TALMESH_VTK_KEEPS_RESET_BRUSHES
  void BrushAlone(float to);
#endif

  vtkTimeStamp Shown;
  vtkIdType ShownRows = 0; ///< of the table at that time
  int BrushedAxis = -1;    ///< while the button is down; -1 for none
  float BrushedFrom = 0.0; ///< height on the axis
  float BrushedTo = 0.0;   ///< the same, where a program takes gestures
  vtkVector2f Pressed;     ///< where, in the scene
  /// Of several axes, where a program takes gestures.
  std::vector<Talmesh::SelectionGesture::Brush> Brushes;
  /// Whether they still tell what is selected is to be seen.
  bool BrushesUnsure = false;
  vtkNew<vtkTooltipItem> Tooltip;
  int MovedAxis = -1;     ///< while its button is down; -1 for none
  bool Cancelled = false; ///< the button is still down
  /// The brush still to be seen is that of the selection to be shown next.
  bool KeepsBrush = false;
  bool PlacesNames = false;
  std::shared_ptr<const Talmesh::GestureHandling> Gestures;
  vtkNew<vtkStringArray> ColumnsBefore; ///< the axis was moved
};

#endif
