#include "app/SelectionHistory.h"

#include <vtkAnnotationLink.h>
#include <vtkCommand.h>
#include <vtkIdTypeArray.h>
#include <vtkInformation.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>
#include <vtkSmartPointer.h>
#include <vtkWeakPointer.h>

#include <QCoreApplication>
#include <QUndoCommand>
#include <QUndoStack>

#include <algorithm>
#include <utility>
#include <vector>

namespace Talmesh::app
{

namespace
{

/// Priority of the history's observer: others may still replace the selection in reaction to it.
constexpr float afterAllOthers = -1.0F;

using Snapshot = vtkSmartPointer<vtkSelection>;

/// What a node selects, without order and repetition.
struct NodeRows
{
  int contentType = 0;
  bool inverse = false;
  std::vector<vtkIdType> ids;

  bool operator==(const NodeRows& other) const
  {
    return contentType == other.contentType && inverse == other.inverse && ids == other.ids;
  }
};

Snapshot copyOf(vtkSelection* selection)
{
  auto copy = Snapshot::New();
  if (selection)
    copy->DeepCopy(selection);
  // The copies share the plot in which the selection was made, and with it the plotted table.
  for (unsigned int i = 0; i < copy->GetNumberOfNodes(); ++i)
    copy->GetNode(i)->GetProperties()->Remove(vtkSelectionNode::PROP());
  return copy;
}

std::vector<vtkIdType> sortedIds(vtkIdTypeArray* list)
{
  std::vector<vtkIdType> ids;
  if (list)
    ids.assign(list->GetPointer(0), list->GetPointer(0) + list->GetNumberOfValues());
  std::sort(ids.begin(), ids.end());
  ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
  return ids;
}

/// Nodes that select something. The field type does not count: charts say points, tables rows.
std::vector<NodeRows> rowsOf(vtkSelection* selection)
{
  std::vector<NodeRows> nodes;
  for (unsigned int i = 0; i < selection->GetNumberOfNodes(); ++i)
  {
    vtkSelectionNode* node = selection->GetNode(i);
    auto* list = vtkIdTypeArray::SafeDownCast(node->GetSelectionList());
    const bool inverse = node->GetProperties()->Get(vtkSelectionNode::INVERSE()) != 0;
    if (inverse || !list || list->GetNumberOfValues() > 0)
      nodes.push_back({node->GetContentType(), inverse, sortedIds(list)});
  }
  return nodes;
}

} // namespace

/// The link that commands write to, shared by all of them.
struct FollowedLink
{
  vtkWeakPointer<vtkAnnotationLink> link;
  Snapshot current;
  bool restoring = false;

  Snapshot selected() const { return copyOf(link ? link->GetCurrentSelection() : nullptr); }

  /// Makes a copy of `selection` current without recording that.
  void restore(vtkSelection* selection)
  {
    if (!link)
      return;
    restoring = true;
    link->SetCurrentSelection(copyOf(selection));
    restoring = false;
    current = selected();
  }
};

namespace
{

class SelectCommand : public QUndoCommand
{
public:
  SelectCommand(std::shared_ptr<FollowedLink> ofLink, Snapshot oldSelection, Snapshot newSelection)
      : link(std::move(ofLink))
      , before(std::move(oldSelection))
      , after(std::move(newSelection))
  {
    setText(QCoreApplication::translate("SelectionHistory",
                                        rowsOf(after).empty() ? "Clear Selection" : "Select"));
  }

  void undo() override { link->restore(before); }

  void redo() override
  {
    // The stack redoes a command when it is pushed, but the selection is already made.
    if (pushed)
      link->restore(after);
    pushed = true;
  }

private:
  std::shared_ptr<FollowedLink> link;
  Snapshot before;
  Snapshot after;
  bool pushed = false;
};

} // namespace

SelectionHistory::SelectionHistory(QUndoStack& undoStack)
    : stack(undoStack)
{
}

SelectionHistory::~SelectionHistory()
{
  stopObserving();
}

void SelectionHistory::follow(vtkAnnotationLink* link)
{
  stopObserving();
  followed = std::make_shared<FollowedLink>();
  followed->link = link;
  if (link)
    observerTag = link->AddObserver(vtkCommand::AnnotationChangedEvent, this,
                                    &SelectionHistory::record, afterAllOthers);
  restart();
}

void SelectionHistory::restart()
{
  stack.clear();
  if (followed)
    followed->current = followed->selected();
}

void SelectionHistory::record()
{
  if (followed->restoring)
    return;
  const Snapshot before = followed->current;
  const Snapshot after = followed->selected();
  if (rowsOf(before) == rowsOf(after))
    return;
  followed->current = after;
  stack.push(new SelectCommand(followed, before, after));
}

void SelectionHistory::stopObserving()
{
  if (followed && followed->link)
    followed->link->RemoveObserver(observerTag);
}

} // namespace Talmesh::app
