#ifndef SessionTests_h
#define SessionTests_h

#include <QJsonObject>
#include <QString>

#include <string>

namespace Talmesh::app
{

/// What a session keeps of how selected runs are tested, beside the thresholds: keys of what the
/// user chooses from.
struct SessionTests
{
  QString comparedBy;
  QString adjustment;
  bool halves = false;
  /// Of all that is drawn at random, a whole number above 0.
  double seed = 1.0;
  /// The kept selections that are compared, by name; empty for the present one, and for the others.
  std::string compared{};
  std::string comparedWith{};
  /// The design that the parameter sets are said to be, and of how many parameters; 0 for as many
  /// as vary.
  QString design{};
  int designedParameters = 0;
  /// How many selections have been compared.
  int looked = 0;
};

QJsonObject objectOf(const SessionTests& tests);

/// What is missing or mistyped is empty.
SessionTests readTests(const QJsonObject& object);

} // namespace Talmesh::app

#endif
