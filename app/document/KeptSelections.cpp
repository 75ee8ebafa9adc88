#include "app/document/KeptSelections.h"

#include "app/document/GroupedPlots.h"
#include "app/runs/RunTable.h"

#include <QPointer>
#include <QUndoCommand>
#include <QUndoStack>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Talmesh::app
{

/// A change of what is kept.
class KeepCommand : public QUndoCommand
{
public:
  KeepCommand(KeptSelections& changed, std::vector<KeptSelection> next, const QString& text,
              std::size_t namedPlace)
      : QUndoCommand(text)
      , selections(&changed)
      , before(changed.kept)
      , after(std::move(next))
      , named(namedPlace)
  {
  }

  void undo() override { take(before); }
  void redo() override { take(after); }
  int id() const override { return named == nowhere ? -1 : 1; }

  /// What is kept gets its name at once, and so in one step.
  bool mergeWith(const QUndoCommand* next) override
  {
    const auto& other = static_cast<const KeepCommand&>(*next);
    if (named != other.named || after.size() != other.after.size() || after.size() == before.size())
      return false;
    after = other.after;
    setText(KeptSelections::tr("Keep %1").arg(QString::fromStdString(after[named].name)));
    return true;
  }

  static constexpr std::size_t nowhere = static_cast<std::size_t>(-1);

private:
  void take(const std::vector<KeptSelection>& list)
  {
    if (selections)
      selections->take(list);
  }

  QPointer<KeptSelections> selections;
  std::vector<KeptSelection> before;
  std::vector<KeptSelection> after;
  /// The selection that gets a name.
  std::size_t named;
};

namespace
{

unsigned colourOfPlace(int place)
{
  constexpr unsigned opaque = 0xFF000000;
  return groupColour(place % mostGroups).rgb() & ~opaque;
}

} // namespace

KeptSelections::KeptSelections(QUndoStack& undoStack, QObject* parent)
    : QObject(parent)
    , stack(undoStack)
{
}

void KeptSelections::follow(std::size_t runs)
{
  runCount = runs;
  kept.clear();
}

void KeptSelections::restore(const std::vector<KeptSelection>& restored)
{
  kept.clear();
  for (const KeptSelection& selection : restored)
  {
    if (selection.runs.size() != runCount || !hasRoom())
      continue;
    kept.push_back(selection);
    kept.back().name = freeName(selection.name, kept.size() - 1);
  }
}

std::string KeptSelections::freeName(const std::string& wished, std::size_t own) const
{
  const std::string base =
      wished.empty() ? tr("Selection").toStdString()
                     : shortName(QString::fromStdString(wished).simplified().toStdString());
  const auto isTaken = [this, own](const std::string& name)
  {
    for (std::size_t i = 0; i < kept.size(); ++i)
      if (i != own && kept[i].name == name)
        return true;
    return false;
  };
  std::string name = base;
  for (int number = 2; isTaken(name); ++number)
  {
    const std::string end = ' ' + std::to_string(number);
    name = shortName(base, end.size()) + end;
  }
  return name;
}

unsigned KeptSelections::freeColour() const
{
  const auto uses = [this](unsigned colour)
  {
    return std::count_if(kept.begin(), kept.end(),
                         [colour](const KeptSelection& selection)
                         { return selection.colour == colour; });
  };
  unsigned best = colourOfPlace(0);
  for (int place = 1; place < mostGroups; ++place)
    if (uses(colourOfPlace(place)) < uses(best))
      best = colourOfPlace(place);
  return best;
}

void KeptSelections::keep(const std::string& name, const std::vector<bool>& runs,
                          const std::string& words, const std::vector<std::string>& asked)
{
  if (!hasRoom() || runs.size() != runCount)
    return;
  std::vector<KeptSelection> next = kept;
  next.push_back({freeName(name, KeepCommand::nowhere), freeColour(), runs, words, asked});
  change(next, tr("Keep %1").arg(QString::fromStdString(next.back().name)), kept.size());
}

void KeptSelections::rename(std::size_t index, const std::string& name)
{
  if (index >= kept.size() || QString::fromStdString(name).simplified().isEmpty())
    return;
  std::vector<KeptSelection> next = kept;
  next[index].name = freeName(name, index);
  if (next[index].name != kept[index].name)
    change(next, tr("Rename %1").arg(QString::fromStdString(kept[index].name)), index);
}

void KeptSelections::recolour(std::size_t index, unsigned colour)
{
  if (index >= kept.size() || kept[index].colour == colour)
    return;
  std::vector<KeptSelection> next = kept;
  next[index].colour = colour;
  change(next, tr("Colour %1").arg(QString::fromStdString(kept[index].name)), KeepCommand::nowhere);
}

void KeptSelections::remove(std::size_t index)
{
  if (index >= kept.size())
    return;
  std::vector<KeptSelection> next = kept;
  next.erase(next.begin() + static_cast<std::ptrdiff_t>(index));
  change(next, tr("Remove %1").arg(QString::fromStdString(kept[index].name)), KeepCommand::nowhere);
}

std::string KeptSelections::commaText(const std::vector<double>& numbers) const
{
  std::string text = "run";
  for (const KeptSelection& selection : kept)
    text += ',' + commaCell(selection.name);
  text += '\n';
  for (std::size_t run = 0; run < numbers.size(); ++run)
  {
    text += fullNumber(numbers[run]);
    for (const KeptSelection& selection : kept)
      text += selection.runs[run] ? ",1" : ",0";
    text += '\n';
  }
  return text;
}

void KeptSelections::change(std::vector<KeptSelection> next, const QString& text, std::size_t named)
{
  stack.push(new KeepCommand(*this, std::move(next), text, named));
}

void KeptSelections::take(const std::vector<KeptSelection>& next)
{
  const std::vector<KeptSelection> before = std::exchange(kept, next);
  if (before.size() == kept.size())
    for (std::size_t i = 0; i < kept.size(); ++i)
      if (before[i].name != kept[i].name)
        emit renamed(before[i].name, kept[i].name);
  emit changed();
}

} // namespace Talmesh::app
