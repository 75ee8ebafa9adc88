#ifndef Hdf5File_h
#define Hdf5File_h

#include "app/formats/FileFormats.h"

namespace Talmesh::app
{

bool isHdf5(const FileStart& start);

/// Reads the arrays of a group, a data set, or runs that have a group each, as docs/file-formats.md
/// says. Without a part that is asked for, groups are gone down until there is a choice. One thread
/// reads at a time, as the library wants.
Result<FileContent> readHdf5(const QString& path, const FormatRequest& request,
                             const ImportProgress& progress);

} // namespace Talmesh::app

#endif
