#ifndef RunSearch_h
#define RunSearch_h

#include "app/document/SelectionWords.h"
#include "app/runs/RunFilter.h"

#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Talmesh::app
{

class TableRuns;

/// Finds the runs that meet conditions in words, and has them selected.
///
/// What takes a moment is done at once. What takes longer goes on in the background, with the
/// values as they are when it is asked for, and what is selected stays as it is meanwhile. There
/// one condition waits for the other, as each changes what those before have selected; one that
/// replaces the selection does not wait but gives those up.
class RunSearch
{
public:
  using Runs = std::vector<bool>;
  using Work = std::function<Result<Runs>(const ImportProgress& progress)>;
  /// Does long work elsewhere: `start` takes work, in place of the one before, and delivers its
  /// result in the GUI thread, from the event loop; nothing if it was given up.
  struct Background
  {
    std::function<void(const Work&, const std::function<void(const Runs&)>&)> start;
    std::function<void()> cancel;
  };
  /// Selects what was found.
  using Select = std::function<void(const Runs& hit, const std::string& words, RunCombination how)>;

  /// @param toldOfEnd called when something was given up, by whomever
  RunSearch(Select selectRuns, std::function<void()> toldOfEnd);

  /// Without one, all is done at once.
  void setBackground(const Background& elsewhere) { background = elsewhere; }
  /// How long a condition may keep the caller waiting.
  void setPatience(std::chrono::milliseconds most) { patience = most; }

  /// @return what is wrong with the words, if anything is; nothing is done then
  FilterFault search(const TableRuns& runs, const std::string& words, RunCombination how);
  /// Has runs selected that are known, after those that are still looked for.
  void take(const TableRuns& runs, const Runs& hit, const std::string& words, RunCombination how);
  /// Gives up what takes longer than a caller may wait from now on.
  ImportProgress impatience() const;
  bool isUnderWay() const { return !waiting.empty(); }
  /// Selects nothing more of what is under way.
  /// @return whether anything was
  bool giveUp();
  /// Gives it up where others than those that it began with are now selected, by somebody else.
  void giveUpUnless(const Runs& selected);

private:
  struct Wish
  {
    Work work;
    std::string words;
    RunCombination how;
  };

  bool selectsAtOnce(const RunFilter& condition, const TableRuns& runs, const std::string& words,
                     RunCombination how);
  void append(const TableRuns& runs, const Wish& wish);
  void begin();
  void finish(const Runs& hit);
  void drop();

  Select select;
  std::function<void()> tellOfEnd;
  Background background;
  std::chrono::milliseconds patience;
  std::deque<Wish> waiting;
  /// What was selected when the search began or has selected last.
  Runs selectedBefore;
  bool selecting = false;
};

} // namespace Talmesh::app

#endif
