#ifndef DrawingSteps_h
#define DrawingSteps_h

#include <QPointer>

#include <functional>
#include <memory>
#include <vector>

namespace Talmesh::plot
{

struct PlotState;

/// When a step runs: before the style's builder, or after all that a redraw does to its chart.
enum class DrawingMoment
{
  before,
  after
};

/// One thing that a client does in every redraw.
struct DrawingStep
{
  /// The step is dropped with it.
  QPointer<const QObject> owner;
  DrawingMoment moment = DrawingMoment::after;
  std::function<void()> run;
};

/// What clients do in every redraw of a container, and whether they are doing it now. What they
/// may rely on stands at PlotContainer::addCompletion.
struct DrawingSteps
{
  /// In order of registration. Shared, as a step may drop any, itself too, while they run.
  std::vector<std::shared_ptr<DrawingStep>> list;
  bool running = false;
  /// A redraw was asked for while steps ran.
  bool again = false;
};

/// @param owner not null
void addStep(PlotState& state, DrawingMoment moment, const QObject* owner,
             std::function<void()> run);

/// Drops all steps of an owner at once, those not yet run in the present drawing too.
void removeSteps(PlotState& state, const QObject* owner);

/// Runs the steps of one moment.
/// @throws what a step throws, which ends those after it
void runSteps(PlotState& state, DrawingMoment moment);

} // namespace Talmesh::plot

#endif
