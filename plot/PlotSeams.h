#ifndef PlotSeams_h
#define PlotSeams_h

#include "../export/TalmeshPlotExport.h"
#include "../plot/DistributionGroup.h"
#include "../plot/KsStatistics.h"
#include "../plot/PlotContainerTypes.h"
#include "../plot/SummaryTable.h"
#include "../vtk/SelectionGesture.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QObject;

/// What a program may have a PlotContainer do otherwise than it does by itself: every container has
/// these members. A client that calls none of them gets the library's own behaviour; a copy of a
/// container does too.
class TALMESHPLOT_EXPORT PlotSeams
{
public:
  PlotSeams(const PlotSeams&) = delete;
  PlotSeams& operator=(const PlotSeams&) = delete;

  /// Has all charts of the x, y and z columns (as points), the scatter-plot matrix and parallel
  /// coordinates draw another table from the next redraw on, of which each row stands for several
  /// rows of the plot table. What is selected in it becomes the container's selection, with all the
  /// rows that it stands for, and is selected there when any of them is. The settings keep speaking
  /// of the plot table, which is what other charts draw, what is exported, and what a copied
  /// container draws. Until the plot table is replaced; a summary without a table ends it.
  void setSummary(const SummaryTable& summary);
  const SummaryTable& getSummary() const;
  /// Whether the present style draws it.
  bool showsSummary() const;

  /// What takes a gesture with the select button in any of the charts, and whether it has: rows are
  /// selected where it has not. It may change selection and charts, but not end the container.
  /// Null, as at first, takes none: charts then select the points that a rectangle covers, or one
  /// point, and the 3-D chart none. A chart in which plots of several tables or along several pairs
  /// of axes can be selected is not for it.
  void setGestureHandler(std::function<bool(const Talmesh::SelectionGesture&)> take);
  /// What says what is at the place of the mouse, which it gets as a click there; empty for
  /// nothing, none for what the charts say by themselves. Null, as at first, for the latter
  /// everywhere.
  void setHoverText(
      std::function<std::optional<std::string>(const Talmesh::SelectionGesture&)> describe);
  /// What the select button draws where a gesture handler is set; a rectangle at first.
  void setSelectionTool(Talmesh::SelectionTool tool);
  Talmesh::SelectionTool getSelectionTool() const;

  /// Has the selection page choose, order and title its charts by tests of the client's own, one
  /// per parameter of the settings' list, from the next drawing on. Charts of parameters that meet
  /// the settings' thresholds come first; these and the rest stand in the order of rising p, equal
  /// p in that of falling statistics. What lacks an entry is not tested and has no title. The
  /// results of the container's own tests stay what they are; without a list, as at first, the page
  /// follows those.
  ///
  /// A client that sets them in a preparation of every drawing, see addPreparation(), has its own
  /// numbers from the first drawing of a selection on.
  void setParameterTests(std::optional<std::vector<ParameterTest>> tests);
  /// Has the selection page draw, from the next drawing on, how the parameters are distributed over
  /// these groups of runs, in their order and colours, in place of the plot table's runs and the
  /// further data sets. Every value counts: the curves of two groups are as far apart as the
  /// two-sample Kolmogorov-Smirnov statistic of their values, also where many of them are equal.
  /// What lacks an entry has no curve. Without a list, as at first, the page draws the data sets,
  /// the further ones with each value once.
  void setDistributionGroups(std::optional<std::vector<DistributionGroup>> groups);

  /// Has every redraw(), whoever asks for it, end with `complete`: when the chart is built, dressed
  /// with point size, marker, decorations and logarithmic x axis, is getItem() and stands in its
  /// scene, but before the settings speak again. There the client adds what the library does not
  /// know of, such as further plots. Redraws that draw nothing, for want of a scene, have no steps;
  /// of a drawing within a drawing the steps run once for the page that is shown.
  ///
  /// Steps run in order of registration, with silent settings, and must not end the container. They
  /// live until the container or `owner`, which is not null, dies, or until removeDrawingSteps(),
  /// which a step may call; one registered by a step runs from the next drawing on. An exception
  /// from a step ends the drawing like one from the style's builder: the steps after it do not run,
  /// and the settings speak again. A redraw that completions ask for, directly or by a change of
  /// settings or selection, follows once all are done; what those of that one ask for is ignored.
  void addCompletion(const QObject* owner, std::function<void()> complete);
  /// As above, but `prepare` runs before the style's builder. A redraw that it asks for is this
  /// one.
  void addPreparation(const QObject* owner, std::function<void()> prepare);
  /// As above, but `allows` is asked before anything is done for a drawing, also before the runs
  /// are divided and tested because others are selected. With false the page stays as it is; what
  /// was selected meanwhile is made up for by the next drawing that is allowed.
  void addCondition(const QObject* owner, std::function<bool()> allows);
  /// Drops all completions, preparations and conditions of `owner`.
  void removeDrawingSteps(const QObject* owner);

  /// Runs a change of the container during which no redraw() draws, neither those that the change
  /// asks for nor the container's own: of a client that draws when it is through with all of it.
  /// The change must not end the container.
  void withoutDrawing(const std::function<void()>& change);

protected:
  explicit PlotSeams(std::unique_ptr<Talmesh::plot::PlotState> state);
  ~PlotSeams();

  std::unique_ptr<Talmesh::plot::PlotState> d;
};

#endif
