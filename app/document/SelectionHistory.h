#ifndef SelectionHistory_h
#define SelectionHistory_h

#include "app/document/SelectionWords.h"

#include <QString>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class PlotContainer;
class QUndoStack;

namespace Talmesh::app
{

struct FollowedContainer;

/// What a step of the history is called, as of `QUndoCommand::setText`, and does.
struct NamedStep
{
  QString text;
  SelectionStep step;
};

/// Makes the selections of a container undoable.
///
/// Every announced change of what is selected becomes one command on the undo stack, whoever made
/// it; changes that leave the same table rows selected, however they name them, and changes made by
/// undo and redo, become none.
/// The commands keep which rows were selected, a bit per row, so nobody who changes a selection in
/// place changes the history, and no plots. They may outlive the history and the container; without
/// the container they do nothing.
class SelectionHistory
{
public:
  /// @param stack outlives the history
  explicit SelectionHistory(QUndoStack& stack);
  ~SelectionHistory();
  SelectionHistory(const SelectionHistory&) = delete;
  SelectionHistory& operator=(const SelectionHistory&) = delete;

  /// Names steps to what is now selected in a container by whoever does not say what he does.
  using Naming = std::function<NamedStep(PlotContainer&)>;
  /// Without one they are called after whether anything is selected.
  void setNaming(Naming names) { naming = std::move(names); }

  /// For as long as it lives, changes of the selection are recorded under a text of their own and
  /// with the words that they stand for.
  class Step
  {
  public:
    Step(SelectionHistory& recorded, const QString& text, SelectionStep step = {})
        : history(recorded)
    {
      history.said = {text, std::move(step)};
    }
    ~Step() { history.said = {}; }
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;

  private:
    SelectionHistory& history;
  };

  /// Records the changes of `container`, not owned, from now on instead of those of the one
  /// followed so far. Null follows none.
  void follow(PlotContainer* container);

  /// Takes what is selected now as the state to start from and clears the stack: for a table that
  /// has been replaced, whose old rows mean nothing.
  /// @param words the condition in words that this state stands for, empty where it is not known
  /// @param asked conditions by which runs came to be selected that the words do not tell of
  void restart(const std::string& words = {}, const std::vector<std::string>& asked = {});

  /// The condition in words that what is now selected stands for: that of the steps that led there.
  /// Empty without a selection, and where nobody has said it.
  /// Knows those of a change, too, that its observers are still to be told of.
  std::string words() const;
  /// All conditions by which runs have come or gone since the selection was last replaced, also
  /// where the selection as a whole stands for none.
  std::vector<std::string> conditions() const;
  /// That of what was selected when it began.
  const std::string& wordsAtFirst() const { return first; }
  /// How many steps it has forgotten for later ones.
  int forgotten() const { return dropped; }
  /// Keeps what a step says that changes nothing from nothing selected: the steps after it go on
  /// from there.
  void note(const SelectionStep& step);

private:
  std::string wordsWith(const NamedStep& named) const;
  std::vector<std::string> conditionsWith(const std::shared_ptr<const std::vector<bool>>& rows,
                                          const SelectionStep& step) const;
  NamedStep stepNow() const;
  void record();
  void stopObserving();

  QUndoStack& stack;
  std::shared_ptr<FollowedContainer> followed;
  unsigned long observerTag = 0;
  std::string first;
  int dropped = 0;
  Naming naming;
  NamedStep said;
};

} // namespace Talmesh::app

#endif
