#ifndef vtkSelectableChartXYZ_h
#define vtkSelectableChartXYZ_h

#include "vtk/SelectionGesture.h"
#include "vtk/VtkCompat.h"

#include <vtkAnnotationLink.h>
#include <vtkChartXYZ.h>
#include <vtkNew.h>
#include <vtkSmartPointer.h>
#include <vtkTable.h>
#include <vtkTooltipItem.h>
#include <vtkVector.h>

#include <memory>
#include <optional>
#include <vector>

namespace Talmesh
{
struct GestureHandling;
}

/// A 3-D chart that writes the numbers of its axes legibly. Where a program takes gestures
/// (SetGestures), the right button selects: the points in a rectangle of the screen, or the one
/// that is nearest to a click, in front or behind. Otherwise it zooms, as the wheel always does.
class vtkSelectableChartXYZ : public vtkChartXYZ
{
public:
  static vtkSelectableChartXYZ* New();
  TALMESH_VTK_TYPE(vtkSelectableChartXYZ, vtkChartXYZ);

  bool Paint(vtkContext2D* painter) override;
  // Without a scene of its own it is nowhere, as vtkSelectableChartXY.
  bool Hit(const vtkContextMouseEvent& mouse) override { return Scene && Superclass::Hit(mouse); }
  bool MouseButtonPressEvent(const vtkContextMouseEvent& mouse) override;
  bool MouseMoveEvent(const vtkContextMouseEvent& mouse) override;
  bool MouseButtonReleaseEvent(const vtkContextMouseEvent& mouse) override;
  bool MouseLeaveEvent(const vtkContextMouseEvent& mouse) override;
  /// Keys with control are shortcuts of the program: without it z, for instance, turns the chart.
  bool KeyPressEvent(const vtkContextKeyEvent& key) override;
  /// Gives the rectangle up that the mouse is drawing.
  /// @return whether there was one
  bool CancelDrag();

  /// What is asked before rows are selected, and what to say beside the mouse; null for none.
  void SetGestures(std::shared_ptr<const Talmesh::GestureHandling> gestures);

  /// What stands beside the mouse.
  vtkTooltipItem* GetTooltip() { return Tooltip; }

  /// What can be selected: of each row of a table where it is drawn, in units of the axes, and the
  /// link that keeps what is selected. A row with a number that is not finite is not drawn.
  void SetPoints(vtkTable* table, std::vector<vtkVector3f> points, vtkAnnotationLink* link);

protected:
  // A new tooltip is visible, and has a frame without a text.
  vtkSelectableChartXYZ() { Tooltip->SetVisible(false); }
  ~vtkSelectableChartXYZ() override = default;

  void CalculateTransforms() override;

private:
  vtkSelectableChartXYZ(const vtkSelectableChartXYZ&) = delete;
  void operator=(const vtkSelectableChartXYZ&) = delete;

  bool AsksFirst() const;
  vtkVector2f PixelOf(const vtkVector3f& point);
  std::vector<vtkIdType> RowsBetween(const vtkVector2f& a, const vtkVector2f& b);
  std::vector<vtkIdType> NearestRow(const vtkVector2f& place);
  void Take(const Talmesh::SelectionGesture& gesture);
  void Describe(const vtkContextMouseEvent& mouse);
  void Say(const std::string& text);

  std::shared_ptr<const Talmesh::GestureHandling> Gestures;
  vtkSmartPointer<vtkTable> Table;
  std::vector<vtkVector3f> Places;
  vtkSmartPointer<vtkAnnotationLink> RowLink;
  /// While the button is down.
  std::optional<vtkVector2f> Pressed;
  vtkVector2f Reached;
  vtkNew<vtkTooltipItem> Tooltip;
};

#endif
