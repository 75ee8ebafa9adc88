#ifndef SessionTests_h
#define SessionTests_h

#include <QJsonObject>
#include <QString>

namespace Talmesh::app
{

/// What a session keeps of how selected runs are tested, beside the thresholds: keys of what the
/// user chooses from.
struct SessionTests
{
  QString comparedBy;
  QString adjustment;
  bool halves = false;
};

QJsonObject objectOf(const SessionTests& tests);

/// What is missing or mistyped is empty.
SessionTests readTests(const QJsonObject& object);

} // namespace Talmesh::app

#endif
