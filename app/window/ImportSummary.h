#ifndef ImportSummary_h
#define ImportSummary_h

#include "app/import/ImportReport.h"

#include <QString>

#include <cstddef>

namespace Talmesh::app
{

/// How much a table holds, in one line: "300 runs of 200 points, 3 parameters, 2 items".
QString sizeOf(const ImportReport& report);

/// The line of the table that a note tells of first; 0 where it tells of none.
std::size_t lineIn(const QString& note);

} // namespace Talmesh::app

#endif
