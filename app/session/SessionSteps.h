#ifndef SessionSteps_h
#define SessionSteps_h

#include <QJsonObject>

#include <string>
#include <vector>

namespace Talmesh::app
{

/// What a session keeps of the steps that led to the selection: what they say, to be read, but not
/// what was selected then. Texts are UTF-8.
struct SessionSteps
{
  /// The last ones, in their order.
  std::vector<std::string> texts;
  /// How many came before them.
  int forgotten = 0;
};

/// At most `mostSessionSteps`, and no longer ones than `mostCharactersOfSteps` together: those
/// before are forgotten.
QJsonObject objectOf(const SessionSteps& steps);

constexpr std::size_t mostSessionSteps = 100;
constexpr int mostCharactersOfSteps = 100'000;

/// What is missing or mistyped is empty.
SessionSteps readSteps(const QJsonObject& object);

} // namespace Talmesh::app

#endif
