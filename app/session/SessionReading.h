#ifndef SessionReading_h
#define SessionReading_h

#include "app/import/ImportRequest.h"

#include <QJsonObject>

namespace Talmesh::app
{

/// How a table was read, under the names of the options that say it. The path of a table of
/// parameters is not kept: a file from anywhere does not tell which files are opened.
QJsonObject objectOf(const ImportRequest& reading);

/// What is unknown or mistyped is left open.
ImportRequest readReading(const QJsonObject& object);

} // namespace Talmesh::app

#endif
