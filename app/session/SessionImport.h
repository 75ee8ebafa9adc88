#ifndef SessionImport_h
#define SessionImport_h

#include "app/import/ImportRequest.h"
#include "app/import/Study.h"

#include <QJsonObject>

#include <memory>
#include <vector>

namespace Talmesh::app
{

/// What a session keeps of how its study was read.
struct SessionImport
{
  std::vector<Category> categories;
  std::shared_ptr<const MeasuredTimes> measured;
  /// Without the path of a table of parameters; null where nobody knows how the table was read.
  std::shared_ptr<const ImportRequest> reading;
};

/// Texts, times and a reading that take more than a megabyte each are left out.
QJsonObject objectOf(const SessionImport& import);

/// What is damaged is left out.
SessionImport readImport(const QJsonObject& object);

} // namespace Talmesh::app

#endif
