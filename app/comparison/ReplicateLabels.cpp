#include "app/comparison/ReplicateLabels.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <limits>
#include <set>
#include <string>

namespace Talmesh::app
{

namespace
{

/// In place of a missing value, which would not be equal to another one.
constexpr double missingOfSets = -std::numeric_limits<double>::infinity();

/// The words of a name in small letters: "sim", "seed" of "simSeed", "sim_seed" and "Sim. seed 2".
std::vector<std::string> wordsOf(const std::string& name)
{
  std::vector<std::string> words;
  bool isBegun = false;
  bool wasSmall = false;
  for (const char character : name)
  {
    const auto letter = static_cast<unsigned char>(character);
    const bool isCapital = std::isupper(letter) != 0;
    if (!std::isalpha(letter))
      isBegun = false;
    else
    {
      if (!isBegun || (isCapital && wasSmall))
        words.emplace_back();
      words.back() += static_cast<char>(std::tolower(letter));
      isBegun = true;
    }
    wasSmall = isBegun && !isCapital;
  }
  return words;
}

/// Whether tables number the runs of one set of parameters under this name.
bool numbersReplicates(const std::string& name)
{
  static const std::set<std::string> names{
      "seed",  "rep",         "replica",     "replicate", "replication", "repeat", "repetition",
      "trial", "realization", "realisation", "rng",       "randomseed",  "rngseed"};
  static const std::set<std::string> additions{"random", "rand", "sim", "simulation", "run",
                                               "id",     "no",   "nr",  "num",        "number",
                                               "index",  "idx",  "of"};
  const std::vector<std::string> words = wordsOf(name);
  const auto isName = [](const std::string& word) { return names.count(word) > 0; };
  return std::any_of(words.begin(), words.end(), isName) &&
         std::all_of(words.begin(), words.end(),
                     [&isName](const std::string& word)
                     { return isName(word) || additions.count(word) > 0; });
}

bool areWholeNumbers(const std::vector<double>& values)
{
  return std::all_of(values.begin(), values.end(),
                     [](double value) { return std::isnan(value) || value == std::floor(value); });
}

bool isAmong(const std::vector<std::size_t>& positions, std::size_t position)
{
  return std::find(positions.begin(), positions.end(), position) != positions.end();
}

/// Whether there are parameters but these, and runs that are equal in all of them.
bool repeatWithout(const std::vector<std::size_t>& labels, const ComparedStudy& study)
{
  std::vector<const std::vector<double>*> kept;
  for (std::size_t k = 0; k < study.columns.size(); ++k)
    if (!isAmong(labels, k) && !isAmong(study.changing, k))
      kept.push_back(&study.columns[k]);
  std::set<std::vector<double>> seen;
  for (std::size_t run = 0; run < study.selected.size() && !kept.empty(); ++run)
  {
    std::vector<double> values;
    for (const std::vector<double>* column : kept)
      values.push_back(std::isnan((*column)[run]) ? missingOfSets : (*column)[run]);
    if (!seen.insert(values).second)
      return true;
  }
  return false;
}

} // namespace

std::vector<std::size_t> replicateLabels(const ComparedStudy& study)
{
  std::vector<std::size_t> named;
  for (std::size_t k = 0; k < study.names.size(); ++k)
    if (numbersReplicates(study.names[k]) && !isAmong(study.changing, k) &&
        areWholeNumbers(study.columns[k]))
      named.push_back(k);
  if (named.empty() || !repeatWithout(named, study))
    return {};
  return named;
}

} // namespace Talmesh::app
