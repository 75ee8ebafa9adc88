#ifndef SelectionHistory_h
#define SelectionHistory_h

#include "app/document/SelectionWords.h"

#include <QString>

#include <memory>
#include <string>
#include <utility>
#include <vector>

class PlotContainer;
class QUndoStack;

namespace Talmesh::app
{

struct FollowedContainer;

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

  /// For as long as it lives, changes of the selection are recorded under a text of their own, as
  /// of `QUndoCommand::setText`, and with the words that they stand for.
  class Step
  {
  public:
    Step(SelectionHistory& recorded, const QString& text, SelectionStep step = {})
        : history(recorded)
    {
      history.stepText = text;
      history.stepInWords = std::move(step);
    }
    ~Step()
    {
      history.stepText.clear();
      history.stepInWords = {};
    }
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
  void restart(const std::string& words = {});

  /// The condition in words that what is now selected stands for: that of the steps that led there.
  /// Empty without a selection, and where nobody has said it.
  /// Knows those of a change, too, that its observers are still to be told of.
  std::string words() const;
  /// All conditions by which runs have come or gone since the selection was last replaced, also
  /// where the selection as a whole stands for none.
  std::vector<std::string> conditions() const;

private:
  std::string wordsWith(const std::shared_ptr<const std::vector<bool>>& rows) const;
  std::vector<std::string>
  conditionsWith(const std::shared_ptr<const std::vector<bool>>& rows) const;
  void record();
  void stopObserving();

  QUndoStack& stack;
  std::shared_ptr<FollowedContainer> followed;
  unsigned long observerTag = 0;
  QString stepText;
  SelectionStep stepInWords;
};

} // namespace Talmesh::app

#endif
