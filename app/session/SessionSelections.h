#ifndef SessionSelections_h
#define SessionSelections_h

#include <QJsonArray>
#include <QString>

#include <cstddef>
#include <string>
#include <vector>

namespace Talmesh::app
{

/// A selection of runs that the user has given a name. Texts are UTF-8.
struct KeptSelection
{
  std::string name;
  /// 0xRRGGBB
  unsigned colour = 0;
  /// Which of the table's runs it has.
  std::vector<bool> runs;
  /// The condition that only these runs meet, see docs/selecting-runs.md; empty where nobody has
  /// said it.
  std::string words;
  /// The parameters that they were chosen by, beside those that the words name.
  std::vector<std::string> asked = {};

  friend bool operator==(const KeptSelection& left, const KeptSelection& right)
  {
    return left.name == right.name && left.colour == right.colour && left.runs == right.runs &&
           left.words == right.words && left.asked == right.asked;
  }
};

/// Words as a session keeps them: none that are too long, as words of which the end is missing
/// would be others.
QString wholeWords(const std::string& words);

/// The name of a kept selection as a session keeps it: its beginning, where it is long.
/// @param spare characters to be left for what follows
std::string shortName(const std::string& name, std::size_t spare = 0);

/// Names of parameters, none of them longer than a session keeps, and not too many.
QJsonArray arrayOfNames(const std::vector<std::string>& names);
std::vector<std::string> readNames(const QJsonArray& array);

/// How many selections of so many runs can be kept, so that a session has room for them.
std::size_t mostKeptSelections(std::size_t runs);

QJsonArray arrayOf(const std::vector<KeptSelection>& kept);

/// Leaves out what is damaged, and what is more than can be kept.
std::vector<KeptSelection> readKeptSelections(const QJsonArray& array);

} // namespace Talmesh::app

#endif
