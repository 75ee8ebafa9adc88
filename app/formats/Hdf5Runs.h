#ifndef Hdf5Runs_h
#define Hdf5Runs_h

#include "app/formats/FileContent.h"
#include "app/formats/Hdf5Object.h"
#include "app/import/ImportProgress.h"
#include "app/import/Result.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Talmesh::app
{

/// Whether groups are runs: at least two, of which the first two hold arrays of the same names.
bool areRunGroups(hid_t parent, const std::vector<std::string>& groups, std::uint64_t fileBytes);

/// Reads a group per run: its arrays of one axis, and arrays of times and items, are its points;
/// single numbers and texts, as data sets or as attributes of it or of a group in it called
/// parameters, are its parameters and conditions. Runs may have different lengths. Times that lie
/// beside the groups are those of all runs.
Result<FileContent> readRunGroups(hid_t parent, const std::vector<std::string>& groups,
                                  std::uint64_t fileBytes, const ImportProgress& progress);

} // namespace Talmesh::app

#endif
