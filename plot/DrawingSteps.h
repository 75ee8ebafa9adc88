#ifndef DrawingSteps_h
#define DrawingSteps_h

#include <QPointer>

#include <functional>
#include <memory>
#include <vector>

namespace Talmesh::plot
{

struct PlotState;

/// When a step runs: before anything is made for a drawing, which it may refuse; before the style's
/// builder; or after all that a redraw does to its chart.
enum class DrawingMoment
{
  question,
  before,
  after
};

/// One thing that a client does in every redraw.
struct DrawingStep
{
  /// The step is dropped with it.
  QPointer<const QObject> owner;
  DrawingMoment moment = DrawingMoment::after;
  /// Whether the steps after it may run, too.
  std::function<bool()> run;
};

/// What clients do in every redraw of a container, and whether they are doing it now. What they
/// may rely on stands at PlotSeams::addCompletion.
struct DrawingSteps
{
  /// In order of registration. Shared, as a step may drop any, itself too, while they run.
  std::vector<std::shared_ptr<DrawingStep>> list;
  bool running = false;
  /// A redraw was asked for while steps ran.
  bool again = false;
  /// The reaction to a selection was refused; the next drawing makes up for it.
  bool reactionOwed = false;
};

/// @param owner not null
void addStep(PlotState& state, DrawingMoment moment, const QObject* owner,
             std::function<bool()> run);

/// Drops all steps of an owner at once, those not yet run in the present drawing too.
void removeSteps(PlotState& state, const QObject* owner);

/// Runs the steps of one moment, up to one that says no.
/// @return whether none did
/// @throws what a step throws, which ends those after it
bool runSteps(PlotState& state, DrawingMoment moment);

} // namespace Talmesh::plot

#endif
