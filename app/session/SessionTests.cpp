#include "app/session/SessionTests.h"

#include <algorithm>
#include <cmath>

namespace Talmesh::app
{

namespace
{

/// Of those below, a double has each.
constexpr double largestWholeNumber = 9007199254740992.0;

} // namespace

QJsonObject objectOf(const SessionTests& tests)
{
  QJsonObject object{{"compare", tests.comparedBy},
                     {"adjust", tests.adjustment},
                     {"halves", tests.halves},
                     {"seed", tests.seed},
                     {"compared", QString::fromStdString(tests.compared)},
                     {"looked", tests.looked},
                     {"comparedWith", QString::fromStdString(tests.comparedWith)}};
  if (!tests.design.isEmpty())
  {
    object["design"] = tests.design;
    object["designedParameters"] = tests.designedParameters;
  }
  return object;
}

SessionTests readTests(const QJsonObject& object)
{
  SessionTests tests;
  tests.comparedBy = object["compare"].toString();
  tests.adjustment = object["adjust"].toString();
  tests.halves = object["halves"].toBool();
  const double seed = object["seed"].toDouble();
  if (seed >= 1.0 && seed <= largestWholeNumber)
    tests.seed = std::floor(seed);
  tests.design = object["design"].toString();
  tests.designedParameters = std::max(0, object["designedParameters"].toInt());
  tests.looked = std::max(0, object["looked"].toInt());
  tests.compared = object["compared"].toString().toStdString();
  tests.comparedWith = object["comparedWith"].toString().toStdString();
  return tests;
}

} // namespace Talmesh::app
