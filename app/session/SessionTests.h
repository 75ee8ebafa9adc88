#ifndef SessionTests_h
#define SessionTests_h

#include <QJsonObject>

namespace Talmesh::app
{

/// What a session keeps of how selected runs are tested, beside the thresholds: positions in the
/// lists that the user chooses from.
struct SessionTests
{
  int comparedBy = 0;
  int adjustment = 0;
  bool halves = false;
};

QJsonObject objectOf(const SessionTests& tests);

/// What is missing, mistyped or unknown keeps its first value.
SessionTests readTests(const QJsonObject& object);

} // namespace Talmesh::app

#endif
