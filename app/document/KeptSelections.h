#ifndef KeptSelections_h
#define KeptSelections_h

#include "app/session/SessionSelections.h"

#include <QObject>

#include <string>
#include <vector>

class QUndoStack;

namespace Talmesh::app
{

/// The selections of runs that the user has given names: "oscillating", "silent". Every change is a
/// step that can be undone; a name that is given at once belongs to the step before.
class KeptSelections : public QObject
{
  Q_OBJECT

public:
  /// @param stack gets the steps; outlives the selections
  explicit KeptSelections(QUndoStack& stack, QObject* parent = nullptr);

  /// Turns to another table of so many runs, for which nothing is kept. Emits nothing.
  void follow(std::size_t runs);
  /// Brings back what a session kept, as far as it is of as many runs. Emits nothing.
  void restore(const std::vector<KeptSelection>& kept);

  const std::vector<KeptSelection>& list() const { return kept; }
  /// Of the table.
  std::size_t numberOfRuns() const { return runCount; }
  /// Whether there is room for another one.
  bool hasRoom() const { return runCount > 0 && kept.size() < mostKeptSelections(runCount); }

  /// The colour of the next one: of the colours of groups, the first that is least used.
  unsigned freeColour() const;
  /// Keeps runs, in a colour that no other one has, if there is room.
  /// @param name made different from those of the others
  /// @param runs for each run of the table whether it is one of them
  /// @param words the condition that they meet, if known
  /// @param asked the parameters that they were chosen by, beside those that the words name
  void keep(const std::string& name, const std::vector<bool>& runs, const std::string& words,
            const std::vector<std::string>& asked = {});
  /// Renames one, to a name that no other one has. An empty one changes nothing.
  void rename(std::size_t index, const std::string& name);
  void recolour(std::size_t index, unsigned colour);
  void remove(std::size_t index);

  /// A table of them as comma-separated text: the number of each run, and a column for each
  /// selection that is 1 for its runs, 0 for the others.
  /// @param numbers of all runs
  std::string commaText(const std::vector<double>& numbers) const;

signals:
  /// One of them is called otherwise from now on. Before `changed`.
  void renamed(const std::string& before, const std::string& now);
  /// Others are kept, or under other names or colours.
  void changed();

private:
  friend class KeepCommand;
  std::string freeName(const std::string& wished, std::size_t own) const;
  void change(std::vector<KeptSelection> next, const QString& text, std::size_t named);
  void take(const std::vector<KeptSelection>& next);

  QUndoStack& stack;
  std::size_t runCount = 0;
  std::vector<KeptSelection> kept;
};

} // namespace Talmesh::app

#endif
