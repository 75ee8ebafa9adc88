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

/// Whether tables number the runs of one set of parameters under this name.
bool numbersReplicates(const std::string& name)
{
  static const std::set<std::string> names{
      "seed",        "randomseed", "rngseed",    "rng",   "rep",         "replica",    "replicate",
      "replication", "repeat",     "repetition", "trial", "realization", "realisation"};
  std::string letters;
  for (const char letter : name)
    if (std::isalpha(static_cast<unsigned char>(letter)))
      letters += static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
  return names.count(letters) > 0;
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
