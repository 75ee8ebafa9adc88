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

  friend bool operator==(const KeptSelection& left, const KeptSelection& right)
  {
    return left.name == right.name && left.colour == right.colour && left.runs == right.runs &&
           left.words == right.words;
  }
};

/// Words as a session keeps them: none that are too long, as words of which the end is missing
/// would be others.
QString wholeWords(const std::string& words);

/// How many selections of so many runs can be kept, so that a session has room for them.
std::size_t mostKeptSelections(std::size_t runs);

QJsonArray arrayOf(const std::vector<KeptSelection>& kept);

/// Leaves out what is damaged, and what is more than can be kept.
std::vector<KeptSelection> readKeptSelections(const QJsonArray& array);

} // namespace Talmesh::app

#endif
