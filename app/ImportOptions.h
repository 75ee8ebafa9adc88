#ifndef ImportOptions_h
#define ImportOptions_h

#include "app/import/ImportRequest.h"

#include <array>
#include <string>

namespace Talmesh::app
{

/// An option that says how a table is to be read.
struct ImportOption
{
  const char* name;
  /// Takes the option's value, in UTF-8.
  /// @return why it cannot, in one line; empty on success
  std::string (*read)(const std::string& value, ImportRequest& request);
};

/// In the order of the help.
const std::array<ImportOption, 18>& importOptions();

/// What the help says of them.
std::string importHelp();

} // namespace Talmesh::app

#endif
