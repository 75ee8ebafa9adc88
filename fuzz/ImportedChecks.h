#ifndef ImportedChecks_h
#define ImportedChecks_h

#include "app/import/RunTableImport.h"
#include "app/session/StudyFile.h"

/// Ends the program unless the condition holds.
void require(bool condition);

/// What holds of whatever was read: either there is a sound table, or a refusal in
/// one line.
void checkImported(const Talmesh::app::Result<Talmesh::app::ImportedTable>& read);
void checkOpened(const Talmesh::app::Result<Talmesh::app::OpenedStudy>& opened);
void checkReport(const Talmesh::app::ImportReport& report);

#endif
