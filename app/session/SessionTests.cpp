#include "app/session/SessionTests.h"

namespace Talmesh::app
{

QJsonObject objectOf(const SessionTests& tests)
{
  return {{"compare", tests.comparedBy}, {"adjust", tests.adjustment}, {"halves", tests.halves}};
}

SessionTests readTests(const QJsonObject& object)
{
  SessionTests tests;
  tests.comparedBy = object["compare"].toString();
  tests.adjustment = object["adjust"].toString();
  tests.halves = object["halves"].toBool();
  return tests;
}

} // namespace Talmesh::app
