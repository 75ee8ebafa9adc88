#ifndef CategoryColumns_h
#define CategoryColumns_h

#include "app/import/ImportReport.h"
#include "app/import/TableText.h"

#include <string>
#include <vector>

namespace Talmesh::app
{

/// The texts of a column that holds their numbers.
struct ColumnLevels
{
  std::size_t column = 0;
  std::vector<std::string> levels;
};

/// Makes categories of the columns of text: each text becomes a number, in the order in which they
/// appear. Columns of one text are left out, and said so.
std::vector<ColumnLevels> makeCategories(TableText& text, ImportReport& report);

} // namespace Talmesh::app

#endif
