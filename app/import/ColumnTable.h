#ifndef ColumnTable_h
#define ColumnTable_h

#include "app/import/ImportRequest.h"
#include "app/import/NamedColumn.h"
#include "app/import/TableText.h"

#include <vector>

namespace Talmesh::app
{

/// A table of columns, whose names say what they are as headers do.
/// @param columns of equal length, at least one
TableText tableOf(std::vector<NamedColumn> columns, const ImportRequest& request);

/// The columns of a table that was read as text, with their headers as names.
std::vector<NamedColumn> columnsOf(TableText table);

} // namespace Talmesh::app

#endif
