#include "vtk/vtkGuardedAxis.h"

#include "stats/RoundTicks.h"
#include "vtk/ShortenedText.h"

#include <vtkContext2D.h>
#include <vtkContextScene.h>
#include <vtkDoubleArray.h>
#include <vtkFloatArray.h>
#include <vtkNew.h>
#include <vtkObjectFactory.h>
#include <vtkRenderWindow.h>
#include <vtkRenderer.h>
#include <vtkStringArray.h>
#include <vtkTextProperty.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string>
#include <utility>
#include <vector>

vtkStandardNewMacro(vtkGuardedAxis);

namespace
{

constexpr double largest = std::numeric_limits<double>::max();
/// The decades of the normal doubles; the product of a logarithmic axis' ends in plain units must
/// not underflow either, or VTK takes the axis for one that reaches zero.
constexpr double lowestDecade = -307.0;
constexpr double highestDecade = 308.0;
/// Beyond this a step past the end of a linear axis may overflow.
constexpr double largestWalked = 4e307;
/// Spans smaller than these parts (linear: of the ends, logarithmic: of a decade) are stepped
/// through in steps that rounding swallows.
constexpr double narrowestSpan = 1e-12;
constexpr double narrowestLogSpan = 1e-8;
/// VTK labels every decade, and nine ticks each are a grey bar.
constexpr double mostDecadesTickedByVtk = 20.0;
constexpr int mostDecadeTicks = 10;
/// Pixels, on both sides together: as far apart are charts above each other at least.
constexpr float besideUprightTitle = 20.0F;
/// Of a number's digits in all common sans-serif fonts at most, in parts of the font's size.
constexpr double digitWidth = 0.64;
/// From one label to the next along an axis: between them, and from line to line; in the same unit.
constexpr double lettersBetween = 1.2;
constexpr double lettersUpright = 3.0;
/// As VTK takes the size of a font.
constexpr float pointsPerInch = 72.0F;

using Ends = std::pair<double, double>;

Ends cutLinear(double minimum, double maximum)
{
  if (std::isfinite(maximum - minimum))
    return {minimum, maximum};
  const double half = largest / 2;
  return {std::clamp(minimum, -half, half), std::clamp(maximum, -half, half)};
}

Ends cutDecades(double minimum, double maximum)
{
  const double high = std::clamp(maximum, lowestDecade, highestDecade);
  const double lowest = std::max(lowestDecade, lowestDecade - high);
  return {std::clamp(minimum, std::min(lowest, high), highestDecade), high};
}

/// 1, 2, 5, 10, 20, 50, ...: the smallest of these in which `span` has few enough steps.
int decadeStep(double span)
{
  int step = 1;
  for (int factor = 1;; factor *= 10)
  {
    for (const int digit : {1, 2, 5})
    {
      step = digit * factor;
      if (span / step <= mostDecadeTicks)
        return step;
    }
  }
}

/// Gives a text back what it was, however the scope is left.
template <typename Text>
class GivenBack
{
public:
  explicit GivenBack(Text& lent)
      : text(lent)
      , before(lent)
  {
  }
  ~GivenBack() { text.swap(before); }
  GivenBack(const GivenBack&) = delete;
  GivenBack& operator=(const GivenBack&) = delete;

private:
  Text& text;
  Text before;
};

} // namespace

void vtkGuardedAxis::SetRange(double minimum, double maximum)
{
  if (!std::isfinite(minimum) || !std::isfinite(maximum))
    return;
  const Ends ends = LogScaleActive ? cutDecades(minimum, maximum) : cutLinear(minimum, maximum);
  // A window below what the product of its ends can tell from zero.
  if (minimum < maximum && !(ends.first < ends.second))
    return;
  Superclass::SetRange(ends.first, ends.second);
}

void vtkGuardedAxis::SetMinimum(double minimum)
{
  if (std::isfinite(minimum))
    Superclass::SetMinimum(LogScaleActive ? cutDecades(minimum, Maximum).first
                                          : cutLinear(minimum, Maximum).first);
}

void vtkGuardedAxis::SetMaximum(double maximum)
{
  if (std::isfinite(maximum))
    Superclass::SetMaximum(LogScaleActive ? cutDecades(Minimum, maximum).second
                                          : cutLinear(Minimum, maximum).second);
}

void vtkGuardedAxis::SetLogScale(bool logScale)
{
  if (LogScaleWanted != logScale)
    Modified();
  LogScaleWanted = logScale;
  Superclass::SetLogScale(LogScaleWanted && LogScaleAllowed);
}

void vtkGuardedAxis::SetLogScaleAllowed(bool allowed)
{
  LogScaleAllowed = allowed;
  SetLogScale(LogScaleWanted);
}

bool vtkGuardedAxis::Paint(vtkContext2D* painter)
{
  // VTK reads a label for every place of the last update, also where ticks have changed since.
  if (TickScenePositions->GetNumberOfTuples() != TickLabels->GetNumberOfValues())
  {
    Modified();
    Update();
    TickScenePositions->SetNumberOfTuples(
        std::min(TickScenePositions->GetNumberOfTuples(), TickLabels->GetNumberOfValues()));
  }
  // Assigned, not set: what is painted is no change of the axis.
  const GivenBack guard(Title);
  if (Visible)
    Title = FittingTitle(painter);
  return Superclass::Paint(painter);
}

std::string vtkGuardedAxis::FittingTitle(vtkContext2D* painter)
{
  const bool upright = Position == LEFT || Position == RIGHT;
  const float room = upright ? std::fabs(Point2[1] - Point1[1]) + besideUprightTitle
                             : std::fabs(Point2[0] - Point1[0]);
  if (Title.empty() || !(room > (upright ? besideUprightTitle : 0.0F)))
    return Title;
  // Devices differ in what they take for the width of a text that is turned.
  vtkNew<vtkTextProperty> level;
  level->ShallowCopy(TitleProperties);
  level->SetOrientation(0.0);
  painter->ApplyTextProp(level);
  // This width tells fonts, resolutions and painting devices apart.
  const float width = Talmesh::widthOf(painter, Title);
  if (width <= room)
    return Title;
  if (LastCut.title != Title || LastCut.width != width || LastCut.room != room)
    LastCut = {Title, width, room, Talmesh::shortened(painter, Title, room)};
  return LastCut.shown;
}

bool vtkGuardedAxis::Walkable() const
{
  const double span = std::fabs(Maximum - Minimum);
  if (LogScaleActive)
    return span >= narrowestLogSpan;
  const double size = std::max(std::fabs(Minimum), std::fabs(Maximum));
  return size <= largestWalked && (span == 0.0 || span >= narrowestSpan * size);
}

bool vtkGuardedAxis::SpansManyDecades() const
{
  return LogScaleActive && std::fabs(Maximum - Minimum) > mostDecadesTickedByVtk;
}

void vtkGuardedAxis::SetTicksFollowText(bool follow)
{
  if (TicksFollowText == follow)
    return;
  TicksFollowText = follow;
  TickMarksDirty = true;
  Modified();
}

bool vtkGuardedAxis::TicksAsText() const
{
  return TicksFollowText && !LogScaleActive && NumberOfTicks <= 0 &&
         Notation == STANDARD_NOTATION && Maximum != Minimum &&
         (Position2[0] != Position1[0] || Position2[1] != Position1[1]);
}

void vtkGuardedAxis::RecalculateTickSpacing()
{
  if (Behavior == CUSTOM)
    return;
  if (Walkable() && !SpansManyDecades())
    Superclass::RecalculateTickSpacing();
  else
    GenerateTickLabels(Minimum, Maximum);
}

void vtkGuardedAxis::GenerateTickLabels(double min, double max)
{
  if (CustomTickLabels)
    return;
  if (SpansManyDecades())
    TickDecades();
  else if (!Walkable())
    TickEnds();
  else if (TicksAsText())
    TickRoundNumbers();
  else
    Superclass::GenerateTickLabels(min, max);
}

void vtkGuardedAxis::TickDecades()
{
  TickPositions->SetNumberOfTuples(0);
  TickLabels->SetNumberOfTuples(0);
  const auto [low, high] = std::minmax(Minimum, Maximum);
  const int step = decadeStep(high - low);
  TickInterval = step;
  const int last = static_cast<int>(std::floor(high / step));
  for (int tick = static_cast<int>(std::ceil(low / step)); tick <= last; ++tick)
  {
    TickPositions->InsertNextValue(tick * step);
    TickLabels->InsertNextValue(GenerateSimpleLabel(std::pow(10.0, tick * step)));
  }
  TickMarksDirty = false;
}

void vtkGuardedAxis::TickEnds()
{
  TickPositions->SetNumberOfTuples(0);
  TickLabels->SetNumberOfTuples(0);
  TickInterval = Maximum - Minimum;
  for (const double end : {Minimum, Maximum})
  {
    TickPositions->InsertNextValue(end);
    TickLabels->InsertNextValue(GenerateSimpleLabel(LogScaleActive ? std::pow(10.0, end) : end));
  }
  TickMarksDirty = false;
}

float vtkGuardedAxis::TextScale() const
{
  vtkRenderer* renderer = Scene ? Scene->GetRenderer() : nullptr;
  vtkRenderWindow* window = renderer ? renderer->GetRenderWindow() : nullptr;
  return window ? static_cast<float>(window->GetDPI()) / pointsPerInch : 1.0F;
}

void vtkGuardedAxis::TickRoundNumbers()
{
  const bool upright = Position == LEFT || Position == RIGHT || Position == PARALLEL;
  const double length =
      upright ? std::fabs(Position2[1] - Position1[1]) : std::fabs(Position2[0] - Position1[0]);
  const double letter = LabelProperties->GetFontSize() * TextScale();
  const auto [low, high] = std::minmax(Minimum, Maximum);
  const double span = high - low;
  Talmesh::stats::RoundTicks ticks(low, high);
  ticks.take(span * std::min(letter / length, 1.0));
  const auto room = [&]
  {
    return letter *
           (upright ? lettersUpright : lettersBetween + digitWidth * double(ticks.longestLabel()));
  };
  while (ticks.step() < span && ticks.step() / span * length < room())
    ticks.take(1.5 * ticks.step());
  TickPositions->SetNumberOfTuples(0);
  TickLabels->SetNumberOfTuples(0);
  for (const double position : ticks.positions())
  {
    TickPositions->InsertNextValue(position);
    TickLabels->InsertNextValue(ticks.label(position));
  }
  TickInterval = ticks.step();
  TickMarksDirty = false;
}
