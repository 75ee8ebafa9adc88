#ifndef vtkGuardedAxis_h
#define vtkGuardedAxis_h

#include "vtk/VtkCompat.h"

#include <vtkAxis.h>

#include <string>

/// An axis that VTK finishes painting whatever the data are.
///
/// - Ends that are not finite are ignored. Ends so far apart that their distance overflows, and
///   decades of which a double has no power of ten, are cut.
/// - Ticks are found without VTK's stepping where a step is lost to rounding or the last one
///   overflows, and a logarithmic axis over many decades is ticked at powers of ten only.
/// - Whether the axis is to be logarithmic and whether the data allow it are two things:
///   GetLogScale() tells the first, GetLogScaleActive() whether both hold. VTK's own axis goes by
///   its present range alone, which is not that of data that have just come.
class vtkGuardedAxis : public vtkAxis
{
public:
  static vtkGuardedAxis* New();
  TALMESH_VTK_TYPE(vtkGuardedAxis, vtkAxis);

  using vtkAxis::SetRange;
  bool Paint(vtkContext2D* painter) override;
  void SetRange(double minimum, double maximum) override;
  void SetMinimum(double minimum) override;
  void SetMaximum(double maximum) override;

  bool GetLogScale() override { return LogScaleWanted; }
  void SetLogScale(bool logScale) override;
  /// Whether the data along the axis have logarithms; they have until somebody denies it.
  void SetLogScaleAllowed(bool allowed);
  bool GetLogScaleAllowed() const { return LogScaleAllowed; }

  /// Whether the ticks of a linear axis lie at multiples of 1, 2 or 5 times a power of ten, as many
  /// as their labels have room for beside each other; not where their number, notation or labels
  /// are set. False at first: as VTK's.
  void SetTicksFollowText(bool follow);
  bool GetTicksFollowText() const { return TicksFollowText; }

  void RecalculateTickSpacing() override;

protected:
  vtkGuardedAxis() = default;
  ~vtkGuardedAxis() override = default;

  using vtkAxis::GenerateTickLabels;
  void GenerateTickLabels(double min, double max) override;

private:
  vtkGuardedAxis(const vtkGuardedAxis&) = delete;
  void operator=(const vtkGuardedAxis&) = delete;

  /// What was painted of a title that is wider than the axis.
  struct CutTitle
  {
    std::string title;
    float width = 0.0F; ///< of the whole title, in pixels as `room`
    float room = 0.0F;
    std::string shown;
  };

  /// Measures the title once, and cuts it anew only where that tells of a change.
  std::string FittingTitle(vtkContext2D* painter);
  bool Walkable() const;
  bool SpansManyDecades() const;
  void TickDecades();
  void TickEnds();
  bool TicksAsText() const;
  float TextScale() const;
  void TickRoundNumbers();

  bool LogScaleWanted = false;
  bool LogScaleAllowed = true;
  bool TicksFollowText = false;
  CutTitle LastCut;
};

#endif
