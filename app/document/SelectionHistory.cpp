#include "app/document/SelectionHistory.h"

#include "plot/PlotContainer.h"
#include "plot/SelectionFlags.h"
#include "vtk/RowSelections.h"

#include <vtkAnnotationLink.h>
#include <vtkCommand.h>
#include <vtkSelection.h>
#include <vtkSmartPointer.h>
#include <vtkTable.h>
#include <vtkWeakPointer.h>

#include <QCoreApplication>
#include <QPointer>
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

/// Whether each row is selected. A bit per row, so that a long history of large selections takes
/// less room than the table; neighbouring commands share the one between them.
using Snapshot = std::shared_ptr<const std::vector<bool>>;

struct Selected
{
  Snapshot rows;
  /// The condition that it stands for, if known.
  std::string words;
  /// All that was asked on the way there.
  std::vector<std::string> conditions;
};

bool isAny(const Snapshot& rows)
{
  return std::find(rows->begin(), rows->end(), true) != rows->end();
}

vtkSmartPointer<vtkSelection> selectionOf(const std::vector<bool>& rows)
{
  std::vector<vtkIdType> list;
  for (std::size_t row = 0; row < rows.size(); ++row)
  {
    if (rows[row])
      list.push_back(static_cast<vtkIdType>(row));
  }
  return makeRowSelection(list);
}

} // namespace

/// What commands write to, shared by all of them.
struct FollowedContainer
{
  QPointer<PlotContainer> container;
  /// The container's; a chart may keep it alive longer.
  vtkWeakPointer<vtkAnnotationLink> link;
  Selected current;
  bool restoring = false;

  Snapshot selected() const
  {
    if (!container || !link)
      return std::make_shared<const std::vector<bool>>();
    return std::make_shared<const std::vector<bool>>(
        markedRows(link->GetCurrentSelection(), container->getTable()));
  }

  /// Selects `rows` without recording that.
  void restore(const Selected& wanted)
  {
    if (!container || !link)
      return;
    // Those who answer the change ask for its words.
    const Selected restored = wanted;
    current = restored;
    restoring = true;
    link->SetCurrentSelection(selectionOf(*current.rows));
    restoring = false;
    current = {selected(), restored.words, restored.conditions};
  }
};

namespace
{

class SelectCommand : public QUndoCommand
{
public:
  SelectCommand(std::shared_ptr<FollowedContainer> ofContainer, Selected oldSelection,
                Selected newSelection, const QString& text)
      : followed(std::move(ofContainer))
      , before(std::move(oldSelection))
      , after(std::move(newSelection))
  {
    setText(text);
  }

  void undo() override { followed->restore(before); }

  void redo() override
  {
    // The stack redoes a command when it is pushed, but the selection is already made.
    if (pushed)
      followed->restore(after);
    pushed = true;
  }

private:
  std::shared_ptr<FollowedContainer> followed;
  Selected before;
  Selected after;
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

void SelectionHistory::follow(PlotContainer* container)
{
  stopObserving();
  followed = std::make_shared<FollowedContainer>();
  followed->container = container;
  followed->link = container ? container->getAnnotationLink() : nullptr;
  if (followed->link)
    observerTag = followed->link->AddObserver(vtkCommand::AnnotationChangedEvent, this,
                                              &SelectionHistory::record, afterAllOthers);
  restart();
}

void SelectionHistory::restart(const std::string& words, const std::vector<std::string>& asked)
{
  if (followed)
  {
    const Snapshot rows = followed->selected();
    followed->current = {rows, {}, {}};
    if (isAny(rows))
    {
      followed->current.words = words.empty() && naming && followed->container
                                    ? wordsAfter({}, false, naming(*followed->container).step)
                                    : words;
      followed->current.conditions = asked;
      if (!followed->current.words.empty())
        followed->current.conditions.push_back(followed->current.words);
    }
  }
  first = followed ? followed->current.words : std::string();
  dropped = 0;
  // Those who hear of it ask for the words.
  stack.clear();
}

std::string SelectionHistory::words() const
{
  // None yet while the history of a container is about to begin.
  if (!followed || !followed->current.rows)
    return {};
  const Snapshot rows = followed->selected();
  if (!isAny(rows))
    return {};
  return *rows == *followed->current.rows ? followed->current.words : wordsWith(stepNow());
}

void SelectionHistory::note(const SelectionStep& step)
{
  if (followed && followed->current.rows && !isAny(followed->current.rows))
    followed->current.words = wordsAfter(followed->current.words, false, step);
}

/// Those of a change that is yet to be recorded.
std::string SelectionHistory::wordsWith(const NamedStep& named) const
{
  const Selected& before = followed->current;
  std::string words = wordsAfter(before.words, isAny(before.rows), named.step);
  // Where the way there has no words, or too many, what is selected may have some.
  if (words.empty() && naming && followed->container && isAny(followed->selected()))
    words = wordsAfter({}, false, naming(*followed->container).step);
  return words;
}

/// To what is now selected.
NamedStep SelectionHistory::stepNow() const
{
  return said.text.isEmpty() && naming && followed->container ? naming(*followed->container) : said;
}

std::vector<std::string> SelectionHistory::conditions() const
{
  if (!followed || !followed->current.rows)
    return {};
  const Snapshot rows = followed->selected();
  return *rows == *followed->current.rows ? followed->current.conditions
                                          : conditionsWith(rows, stepNow().step);
}

std::vector<std::string> SelectionHistory::conditionsWith(const Snapshot& rows,
                                                          const SelectionStep& step) const
{
  std::vector<std::string> asked;
  if (!isAny(rows))
    return asked;
  if (step.goesOn || step.how != RunCombination::Replace)
    asked = followed->current.conditions;
  const auto add = [&asked](const std::string& condition)
  {
    if (!condition.empty() && std::find(asked.begin(), asked.end(), condition) == asked.end())
      asked.push_back(condition);
  };
  add(step.words);
  std::for_each(step.asked.begin(), step.asked.end(), add);
  return asked;
}

void SelectionHistory::record()
{
  if (followed->restoring || !followed->container)
    return;
  const Selected before = followed->current;
  const Snapshot rows = followed->selected();
  if (*before.rows == *rows)
    return;
  const bool clears = !isAny(rows);
  NamedStep named = stepNow();
  followed->current = {rows, wordsWith(named), conditionsWith(rows, named.step)};
  if (named.text.isEmpty())
    named.text = clears ? QCoreApplication::translate("SelectionHistory", "Clear Selection")
                        : QCoreApplication::translate("SelectionHistory", "Select");
  dropped += stack.undoLimit() > 0 && stack.index() == stack.undoLimit() ? 1 : 0;
  stack.push(new SelectCommand(followed, before, followed->current, named.text));
}

void SelectionHistory::stopObserving()
{
  if (followed && followed->link)
    followed->link->RemoveObserver(observerTag);
}

} // namespace Talmesh::app
