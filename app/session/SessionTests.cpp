#include "app/session/SessionTests.h"

#include <QStringList>

#include <algorithm>

namespace Talmesh::app
{

namespace
{

QStringList comparedByNames()
{
  return {QStringLiteral("distributions"), QStringLiteral("ranks"), QStringLiteral("counts")};
}

QStringList adjustmentNames()
{
  return {QStringLiteral("benjaminiHochberg"), QStringLiteral("holm"), QStringLiteral("maxT")};
}

int positionOf(const QJsonValue& name, const QStringList& names)
{
  return std::max(0, static_cast<int>(names.indexOf(name.toString())));
}

} // namespace

QJsonObject objectOf(const SessionTests& tests)
{
  return {{"compare", comparedByNames().value(tests.comparedBy)},
          {"adjust", adjustmentNames().value(tests.adjustment)},
          {"halves", tests.halves}};
}

SessionTests readTests(const QJsonObject& object)
{
  SessionTests tests;
  tests.comparedBy = positionOf(object["compare"], comparedByNames());
  tests.adjustment = positionOf(object["adjust"], adjustmentNames());
  tests.halves = object["halves"].toBool();
  return tests;
}

} // namespace Talmesh::app
