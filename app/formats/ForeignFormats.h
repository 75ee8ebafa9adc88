#ifndef ForeignFormats_h
#define ForeignFormats_h

#include "app/formats/FileFormats.h"

namespace Talmesh::app
{

/// Kinds of files that users take for tables and that are not read, with what to do instead.
const std::vector<FileFormat>& foreignFormats();

} // namespace Talmesh::app

#endif
