#ifndef StudyFile_h
#define StudyFile_h

#include "app/import/ImportProgress.h"
#include "app/import/ImportReport.h"
#include "app/import/ImportRequest.h"
#include "app/import/Result.h"
#include "app/import/Study.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Talmesh::app
{

struct RestoredSession;

/// A study with what its file says beside. Texts are UTF-8, one line each.
struct OpenedStudy
{
  Study study;
  /// What else a session file holds; null for a table.
  std::shared_ptr<const RestoredSession> session;
  /// What the user should know although the study could be opened.
  std::vector<std::string> notes;
};

/// Opens a study; may run in another thread and must look at the progress it is given.
using StudyJob = std::function<Result<OpenedStudy>(const ImportProgress&)>;

/// Reads a table or a session from a regular file, or the tables of a folder as openStudyFiles()
/// does. Errors begin with the file's name. May run in
/// any thread.
/// @param request what the user has said of the table
/// @param report gets what was understood of it, also when it cannot be opened
Result<OpenedStudy> openStudyFile(const QString& path, const ImportProgress& progress = {},
                                  const ImportRequest& request = {},
                                  ImportReport* report = nullptr);

/// The same of files that belong together: a run or an item each (see joinFiles()). A folder stands
/// for the tables in it, a name with * for the files that fit it, also if it is the only one.
/// @param paths at least one
Result<OpenedStudy> openStudyFiles(const QStringList& paths, const ImportProgress& progress = {},
                                   const ImportRequest& request = {},
                                   ImportReport* report = nullptr);

/// The files that the command line names, as the system knows them.
QStringList studyPaths(const std::string& file, const std::vector<std::string>& moreFiles);

} // namespace Talmesh::app

#endif
