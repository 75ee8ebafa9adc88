#ifndef Session_h
#define Session_h

#include "app/ImportProgress.h"
#include "app/SessionSettings.h"
#include "app/SessionTable.h"

#include <QString>

#include <string>

class PlotContainer;

namespace Talmesh::app
{

class RunNormaliser;

/// What a session restores beside its study.
struct RestoredSession
{
  SessionSettings settings;
  vtkSmartPointer<vtkTable> further;
  vtkSmartPointer<vtkIntArray> selected;
};

/// A session's study and the rest, or why there is none.
struct OpenedSession
{
  Study study;
  /// Null on failure.
  std::shared_ptr<const RestoredSession> session;
  /// One line of UTF-8 without the file's name; empty on success.
  std::string error;
  bool cancelled = false;
};

/// Writes what a container shows of a study.
/// @param normaliser what has normalised runs of the container, whose values are written as they
/// were before; null for nothing
/// @return why it could not be written, in one line of UTF-8; empty on success
std::string saveSession(const QString& path, const Study& study, PlotContainer& container,
                        const RunNormaliser* normaliser = nullptr);

/// Reads a session. May run in any thread.
/// @param progress told while the bytes are read, and after each further step
OpenedSession openSession(const QString& path, const ImportProgress& progress = {});

/// Restores further columns and settings in a container that shows the session's study. Does not
/// draw, and normalises nothing: that is for who keeps the values.
void restoreSettings(const RestoredSession& session, PlotContainer& container);

/// Selects what was selected, which the container's annotation link announces.
void restoreSelection(const RestoredSession& session, PlotContainer& container);

} // namespace Talmesh::app

#endif
