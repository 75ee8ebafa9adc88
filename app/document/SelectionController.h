#ifndef SelectionController_h
#define SelectionController_h

#include "app/document/LaterCall.h"
#include "app/document/RunGestures.h"
#include "app/document/RunSearch.h"
#include "app/document/SelectionHistory.h"
#include "app/document/TableRuns.h"
#include "app/session/SessionSteps.h"

#include <vtkAnnotationLink.h>
#include <vtkWeakPointer.h>

#include <QObject>
#include <QPointer>
#include <QString>
#include <QUndoGroup>
#include <QUndoStack>

#include <string>
#include <vector>

class PlotContainer;

namespace Talmesh::app
{

/// What is known of a selection that is there when its history begins.
struct SelectionStart
{
  /// The condition that it stands for, empty where it is not known.
  std::string words;
  /// Conditions that it was made by beside the words.
  std::vector<std::string> asked;
  /// The steps that led there, to be read.
  SessionSteps steps;
};

/// The selection of the plot now shown: what the mouse and the menus do with it, its history and
/// its size.
///
/// Of a table with runs, all rows of a run are selected or none, so that everybody counts the same
/// runs: whoever selects some rows of a run selects all of them, as one step.
class SelectionController : public QObject
{
  Q_OBJECT

public:
  explicit SelectionController(QObject* parent = nullptr);
  ~SelectionController() override;

  /// Turns to the selection of another container, not owned; its history starts anew. Null turns to
  /// none.
  void follow(PlotContainer* container, const SelectionStart& start = {});
  /// Turns to the selection of another container, not owned, until `endVisit` returns to the one
  /// followed last and to its history.
  void visit(PlotContainer* container);
  void endVisit();

  /// Selects all runs, or all rows of a table without runs.
  void selectAll();
  /// Selects nothing.
  void clear();
  /// Selects the others.
  void invert();
  /// Selects the runs that meet a condition in words, as one step of the history that says so;
  /// later where that takes long, see `RunSearch`.
  /// @return what is wrong with the words, if anything is; nothing is changed then
  FilterFault selectWhere(const std::string& words, RunCombination how);
  /// Where such work is done; without one all is done at once.
  void setBackground(const RunSearch::Background& elsewhere) { search.setBackground(elsewhere); }
  void setPatience(std::chrono::milliseconds most) { search.setPatience(most); }
  /// Gives up what takes too long to wait for.
  ImportProgress impatience() const { return search.impatience(); }
  bool isSearching() const { return search.isUnderWay(); }
  /// Leaves what is selected as it is, whatever is still being looked for.
  /// @return whether anything was
  bool giveUp() { return search.giveUp(); }
  /// Selects runs that are known already, as one step of the history.
  /// @param hit for each run of the table whether it is one of them
  /// @param words the condition that they meet, by which the step is named
  /// @param asked further conditions by which they were chosen
  void selectRuns(const std::vector<bool>& hit, const std::string& words, RunCombination how,
                  const std::vector<std::string>& asked = {});
  /// Which runs of the plot now shown are selected.
  std::vector<bool> selectedRuns() const;
  /// The condition in words that only the selected runs meet: that of the steps that led there.
  /// Empty where nobody has said it.
  std::string words() const;
  /// What was asked for on the way there, see `SelectionHistory::conditions`.
  std::vector<std::string> conditions() const;
  /// That of what was selected as the steps began, and how many of them are forgotten.
  std::string wordsAtFirst() const;
  int forgottenSteps() const;
  /// The steps that led to what was selected at first; none while another container is visited.
  SessionSteps earlierSteps() const;
  /// All steps that led to what is selected in the container that is followed.
  SessionSteps followedSteps() const;
  /// The same of the container that is followed, while another one is visited.
  std::string followedWords() const { return history.words(); }
  std::vector<std::string> followedConditions() const { return history.conditions(); }
  /// Writes the indices of the selected runs to a small JSON file.
  /// @return why that failed, in one line of UTF-8; empty on success
  std::string save(const QString& path) const;
  /// Selects the runs that such a file lists, as far as they are whole runs of the table. Keeps the
  /// selection if none is.
  /// @return what went wrong, in one line of UTF-8: why nothing could be selected, or which runs
  /// the
  ///   table does not have; empty if all are selected
  std::string load(const QString& path);

  /// What is selected, in one line: "12 of 400 runs selected", or rows for a table without runs. A
  /// partial last run does not count.
  QString summary() const;
  /// Undo and redo of selections in the container that is followed, not in one visited.
  QUndoStack& undoStack() { return stack; }
  /// Undo and redo of what is selected in the plot now shown, for menus.
  QUndoGroup& undoGroup() { return group; }
  /// What the mouse draws in the charts, and which runs that means.
  RunGestures& gestures() { return pointing; }

signals:
  /// The steps begin anew, with another container.
  void restarted();
  /// Another selection is announced, which nobody has answered yet.
  void changing();
  /// The selection is another one. Emitted from the event loop, after the chart's own handler, once
  /// for changes that come together.
  void changed();
  /// What was being looked for is not selected any more: the user or another selection ended that.
  void gaveUp();

private:
  bool select(const PointedAt& meant, RunCombination how);
  SelectionHistory& shownHistory();
  bool hasRuns() const;
  static std::string noRuns();
  static NamedStep stepToSelected(PlotContainer& changed);
  bool makeWhole();
  bool announce(vtkObject*, unsigned long, void*);
  void announceLater();
  void observe(PlotContainer* observed, QUndoStack& itsStack);
  void stopObserving();

  /// The container now shown.
  QPointer<PlotContainer> container;
  QPointer<PlotContainer> followed;
  vtkWeakPointer<vtkAnnotationLink> link;
  unsigned long observerTag = 0;
  unsigned long firstObserverTag = 0;
  QUndoGroup group;
  QUndoStack stack;
  QUndoStack visitStack;
  SelectionHistory history;
  SelectionHistory visitHistory;
  SessionSteps earlier;
  RunGestures pointing;
  RunSearch search;
  LaterCall telling;
};

} // namespace Talmesh::app

#endif
