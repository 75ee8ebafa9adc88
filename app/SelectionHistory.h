#ifndef SelectionHistory_h
#define SelectionHistory_h

#include <memory>

class QUndoStack;
class vtkAnnotationLink;

namespace Talmesh::app
{

struct FollowedLink;

/// Makes the selections of an annotation link undoable.
///
/// Every announced change of what is selected becomes one command on the undo stack, whoever made
/// it; changes that leave the same rows selected, and changes made by undo and redo, become none.
/// The commands keep copies, so nobody who changes a selection in place changes the history, and no
/// plots. They may outlive the history and the link; without the link they do nothing.
class SelectionHistory
{
public:
  /// @param stack outlives the history
  explicit SelectionHistory(QUndoStack& stack);
  ~SelectionHistory();
  SelectionHistory(const SelectionHistory&) = delete;
  SelectionHistory& operator=(const SelectionHistory&) = delete;

  /// Records the changes of `link` from now on instead of those of the link followed so far. Null
  /// follows none.
  void follow(vtkAnnotationLink* link);

  /// Takes what is selected now as the state to start from and clears the stack: for a table that
  /// has been replaced, whose old rows mean nothing.
  void restart();

private:
  void record();
  void stopObserving();

  QUndoStack& stack;
  std::shared_ptr<FollowedLink> followed;
  unsigned long observerTag = 0;
};

} // namespace Talmesh::app

#endif
