#ifndef GroupedRuns_h
#define GroupedRuns_h

#include "app/document/GroupedPlots.h"
#include "app/document/RunNormaliser.h"
#include "app/session/SessionGroups.h"
#include "plot/RunClustering.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

class PlotContainer;
class QUndoStack;

namespace Talmesh::app
{

/// What makes two runs alike: the modes of the container's clustering.
enum ClusteringMode : int
{
  byCourse = 0,
  byPhases = 2,
  byMagnitudes = 3
};

/// The groups of the runs that a container shows, how they are drawn, and which columns are
/// normalised. Completes every drawing of the container by what the look asks for.
class GroupedRuns : public QObject
{
  Q_OBJECT

public:
  /// @param stack gets the normalising of runs as steps; outlives the groups
  explicit GroupedRuns(QUndoStack& stack, QObject* parent = nullptr);

  /// Turns to the container of another study of so many runs over time, not owned, without groups.
  /// What makes runs alike stays chosen.
  void follow(PlotContainer* container, int runs);
  /// Gives back the values of the study now shown, which is about to be left.
  void leave();

  /// How many runs there are to group; 0 for data without runs over time.
  int runs() const { return runCount; }
  /// Into how many groups they can be sorted; at least 1.
  int mostPossible() const;
  const RunGroups& groups() const { return named; }
  /// The groups that colour the runs now: those of kept selections, if the look asks for them and
  /// there are any, or the groups found; none where the look asks for neither.
  RunGroups colouring() const;
  /// Those of kept selections, if the look asks for them.
  RunGroups keptColouring() const;
  /// Says what groups kept selections are, see `groupsOfKept`.
  void setKept(std::function<RunGroups()> groups) { keptGroups = std::move(groups); }
  /// What a session keeps of all this.
  const SessionGroups& state() const { return kept; }
  /// Brings back what a session kept of the same runs, as far as it fits them. Emits and draws
  /// nothing.
  void restore(const SessionGroups& groups);
  /// Normalises columns that were normalised when their session was saved. Emits and draws nothing,
  /// and the user's history does not have it.
  void restoreNormalised(const std::vector<int>& columns);

  /// How runs are sorted next. Sorts nothing.
  void setGrouping(int count, int mode);
  /// What sorts the runs now shown into groups by the first y column, for whoever computes it; null
  /// without runs over time.
  std::shared_ptr<RunClustering> clustering() const;
  /// Takes the groups that it has found, and has them coloured. Draws nothing.
  void take(const RunClustering& found);
  /// The labels of the columns of texts that runs have one of each.
  std::vector<std::string> categories() const;
  /// Makes a group of the runs of each text of such a column, in the order of the texts, and one of
  /// the runs without any, and has them coloured. Draws nothing.
  /// @return why that cannot be, in one line; nothing has changed then. Empty on success
  std::string takeCategory(const std::string& label);
  /// Draws nothing.
  void setLook(const RunLook& look);
  /// Selects the runs of a group.
  void select(int group);
  /// Normalises what is shown over x, or loads it again, as a step that can be undone.
  void normalise(bool on);
  /// Whether all that can be normalised of what is shown over x is.
  bool showsNormalised() const;
  const RunNormaliser& runNormaliser() const { return normaliser; }

signals:
  /// Values of the runs are others; they are not yet drawn.
  void valuesChanged();

private:
  std::vector<int> shownColumns() const;
  void complete();

  QUndoStack& stack;
  RunNormaliser normaliser;
  QPointer<PlotContainer> container;
  int runCount = 0;
  SessionGroups kept;
  RunGroups named;
  std::function<RunGroups()> keptGroups;
};

} // namespace Talmesh::app

#endif
