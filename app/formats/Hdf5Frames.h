#ifndef Hdf5Frames_h
#define Hdf5Frames_h

#include "app/formats/FileContent.h"
#include "app/formats/Hdf5Object.h"
#include "app/import/ImportProgress.h"
#include "app/import/Result.h"

#include <cstdint>

namespace Talmesh::app
{

/// Whether a group is a table as pandas writes it.
bool isPandasFrame(hid_t group);

/// Reads such a table, with its index as the first column.
Result<FileContent> readPandasFrame(hid_t group, std::uint64_t fileBytes,
                                    const ImportProgress& progress);

} // namespace Talmesh::app

#endif
