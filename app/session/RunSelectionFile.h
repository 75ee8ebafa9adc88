#ifndef RunSelectionFile_h
#define RunSelectionFile_h

#include "app/import/Result.h"
#include "external/ParameterSelection.h"

#include <QString>

#include <string>

namespace Talmesh::app
{

/// Writes a selection of runs as a small JSON file, which takes the place of an older one only when
/// it is complete.
///
/// The file is one object: "format" is "talmesh-runs", "version" is 1, "runs" lists the run indices
/// in ascending order, and "source", "sourceId" and "label" hold the record's other members.
/// @return why the file could not be written, in one line of UTF-8; empty on success
std::string saveRunSelection(const QString& path, const ParameterSelection& selection);

/// Reads what saveRunSelection() writes. Only "format", "version" and "runs" must be there; run
/// indices may come in any order and repeatedly. Errors begin with the file's name.
Result<ParameterSelection> loadRunSelection(const QString& path);

} // namespace Talmesh::app

#endif
