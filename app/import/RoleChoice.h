#ifndef RoleChoice_h
#define RoleChoice_h

#include "app/import/ImportReport.h"
#include "app/import/ImportRequest.h"
#include "app/import/TableText.h"

#include <string>
#include <vector>

namespace Talmesh::app
{

/// The columns whose cells are names, also where they are numbers: those that name runs, items and
/// conditions, by their own names or as the user says.
std::vector<int> columnsOfNames(const ColumnRoles& roles, const ImportRequest& request);

/// Makes the values of all columns but those that by their names hold nothing but names, of runs
/// and items.
void completeQuantities(TableText& text);

/// Gives the columns that the user names the roles that they shall have.
/// @return why that cannot be, in one line; empty on success
std::string applyRequest(TableText& text, const ImportRequest& request);

/// Sets row numbers, marks of former selections and columns of nothing but texts that differ in
/// every row aside, unless they were asked for, and makes times of dates.
void settleColumns(TableText& text, ImportReport& report);

/// Finds the time and the names of runs where names of columns alone say too little (`year`, `ID`):
/// numbers that rise from row to row of each run count its times, and where the time falls back,
/// or several rows have the same, what parts the rows into runs names these.
void findOrder(TableText& text, const ImportRequest& request, ImportReport& report);

/// Numbers the runs by the columns that name them, several together; without any, time will tell.
/// @return why that cannot be, in one line; empty on success
std::string nameRuns(TableText& text);

/// Numbers the runs by some columns together, which stay what they are.
/// @return why that cannot be, in one line; empty on success
std::string nameRunsBy(TableText& text, std::vector<int> columns);

/// Whether a column's texts are numbers or dates as people, but not programs, write them: 1 000,5,
/// 5%, 01.03.2024.
bool isStrangeNumber(const ColumnValues& column);

/// A text among the numbers of a column, as a message; empty without one.
std::string mistypedCell(const TableText& text, std::size_t column);

} // namespace Talmesh::app

#endif
