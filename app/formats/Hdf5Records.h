#ifndef Hdf5Records_h
#define Hdf5Records_h

#include "app/formats/Hdf5Object.h"
#include "app/import/ImportProgress.h"
#include "app/import/NamedColumn.h"

#include <string>
#include <vector>

namespace Talmesh::app
{

/// Reads a data set of records with named fields, of one axis. A field of several numbers gives a
/// column for each of them; fields that are neither numbers nor text are left out.
/// @return why it cannot be read, in one line; empty on success, and when it is cancelled, which
/// leaves no column behind
std::string readHdf5Records(hid_t dataSet, std::size_t rows, std::vector<NamedColumn>& columns,
                            const ImportProgress& progress);

} // namespace Talmesh::app

#endif
