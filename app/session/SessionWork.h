#ifndef SessionWork_h
#define SessionWork_h

#include "app/session/SessionOrigin.h"
#include "app/session/SessionSelections.h"

#include <QByteArray>

#include <optional>
#include <vector>

namespace Talmesh::app
{

struct SessionSource;

/// What a session keeps of a user's work on a study, which part of the plane is shown aside.
struct SessionWork
{
  /// Per row; empty when none is selected.
  std::vector<bool> selected;
  std::vector<int> groupOfRun;
  std::vector<int> normalised;
  std::vector<KeptSelection> selections;
  /// The settings of plot and panels.
  QByteArray view;
};

SessionWork workOf(const SessionSource& source);

/// What of the work would be lost.
struct UnsavedParts
{
  bool selection = false;
  bool groups = false;
  bool normalised = false;
  bool selections = false;
  bool view = false;

  bool any() const { return selection || groups || normalised || selections || view; }
};

/// Knows which state of the work on a study is in a file, and in which.
///
/// How a plot is shown counts as work where a session file keeps it, but not in a table that the
/// user only looks at.
class SessionRecord
{
public:
  /// Work that was never saved has been brought back, and belongs to the origin's file if any.
  void broughtBack(const SessionOrigin& origin);
  /// The work is as the origin's session has it or, without one, as a table was opened.
  void saved(const SessionWork& work, const SessionOrigin& origin);
  /// The selection alone is in a file of its own.
  void selectionSaved(const SessionWork& work);

  UnsavedParts unsaved(const SessionWork& work) const;
  const SessionOrigin& origin() const { return file; }

private:
  /// Nothing when no file has any state of the work.
  std::optional<SessionWork> kept;
  SessionOrigin file;
};

} // namespace Talmesh::app

#endif
