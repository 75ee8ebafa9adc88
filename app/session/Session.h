#ifndef Session_h
#define Session_h

#include "app/import/ImportProgress.h"
#include "app/import/Result.h"
#include "app/import/Study.h"
#include "app/session/SessionFile.h"
#include "app/session/SessionSettings.h"

#include <vtkIntArray.h>
#include <vtkSmartPointer.h>
#include <vtkTable.h>

#include <QString>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

class PlotContainer;

namespace Talmesh::app
{

/// What a session is made of.
struct SessionSource
{
  const Study& study;
  /// What shows the study.
  PlotContainer& container;
  /// What the user chose, which only an XY chart would know.
  bool legend = false;
  bool logY = false;
  SessionGroups groups;
  std::vector<KeptSelection> kept;
  /// The condition in words that the selection stands for, if known.
  std::string words;
  /// Written only with work that is kept until the user saves it.
  SessionOrigin origin;
  /// The columns of the container whose runs are normalised, ascending.
  std::vector<int> normalised;
  /// The container's table with the values that these had before; none for the table as it is.
  std::function<vtkSmartPointer<vtkTable>()> original;
  SessionTests tests;
  SessionColumns shown = {};
  /// Parameters that it was chosen by beside the words, by name.
  std::vector<std::string> asked = {};
  SessionSteps steps = {};
  SessionViews views = {};
};

/// What a session restores beside its study.
struct RestoredSession
{
  SessionSettings settings;
  /// How the session's file ended, as of `endOfSession`.
  QByteArray end;
  vtkSmartPointer<vtkTable> further;
  vtkSmartPointer<vtkIntArray> selected;
};

/// A session's study and the rest.
struct OpenedSession
{
  Study study;
  /// Never null.
  std::shared_ptr<const RestoredSession> session;
};

/// All that a session keeps beside its table, as it is now.
SessionSettings settingsOf(const SessionSource& source);

/// What a session's file would hold. Takes the memory of the table once more.
SessionParts sessionParts(const SessionSource& source);

/// Writes what a container shows of a study.
/// @param end gets what the file ends with, as of `endOfSession`, unless it is null
/// @return why it could not be written, in one line of UTF-8; empty on success
std::string saveSession(const QString& path, const SessionSource& source,
                        QByteArray* end = nullptr);

/// Reads a session. Errors do not name the file. May run in any thread.
/// @param progress told while the bytes are read, and after each further step
Result<OpenedSession> openSession(const QString& path, const ImportProgress& progress = {});

/// Charts of one page that a session brings back; a page of more opens as an XY plot.
inline constexpr std::size_t mostRestoredCharts = 60 * 60;

/// Restores further columns and settings in a container that shows the session's study. The
/// parameters are those that the container has found, or as many of them as the session names. Does
/// not draw, and normalises nothing: that is for who keeps the values.
void restoreSettings(const RestoredSession& session, PlotContainer& container);

/// Restores the part of the plane that was shown, in a container whose settings are restored. Comes
/// after normalising, which forgets it.
void restoreWindow(const RestoredSession& session, PlotContainer& container);

/// Selects what was selected, which the container's annotation link announces.
void restoreSelection(const RestoredSession& session, PlotContainer& container);

} // namespace Talmesh::app

#endif
