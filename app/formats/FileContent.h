#ifndef FileContent_h
#define FileContent_h

#include "app/import/NamedColumn.h"

#include <string>
#include <vector>

namespace Talmesh::app
{

/// What a file holds once it is unpacked: the text of a delimited table, or columns.
struct FileContent
{
  /// In whatever encoding the file has; empty where there are columns.
  std::string text;
  /// Of equal length.
  std::vector<NamedColumn> columns;
  /// What the user should know although the file could be read, one line of UTF-8 each.
  std::vector<std::string> notes;

  bool isText() const { return columns.empty(); }
};

/// What the user has said of a file that may hold several tables.
struct FormatRequest
{
  /// The sheet of a workbook, the array of an archive, or the group or data set of an HDF5 file, by
  /// its name in UTF-8; empty for the first one that is a table.
  std::string part;
};

} // namespace Talmesh::app

#endif
