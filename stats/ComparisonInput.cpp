#include "stats/ComparisonInput.h"

#include "stats/ExchangeUnits.h"
#include "stats/LevelCounts.h"
#include "stats/ParameterSets.h"
#include "stats/RunComparison.h"
#include "stats/TiedKolmogorovSmirnov.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace Talmesh::stats
{
namespace
{
TieBlocks blocksOf(const std::vector<double>& column, const std::vector<char>& selected,
                   const std::vector<char>& leftOut)
{
  std::vector<double> ofSelected;
  std::vector<double> ofOthers;
  for (std::size_t run = 0; run < column.size(); ++run)
    if (!std::isnan(column[run]) && (leftOut.empty() || leftOut[run] == 0))
      (selected[run] != 0 ? ofSelected : ofOthers).push_back(column[run]);
  return tieBlocks(std::move(ofSelected), std::move(ofOthers));
}
} // namespace

void checkComparedRuns(const ParameterColumns& columns, const std::vector<char>& selected,
                       const std::vector<char>& leftOut)
{
  if (!columns.empty() && runsIn(columns) != selected.size())
    throw std::invalid_argument("a selection of another number of runs");
  if (!leftOut.empty() && leftOut.size() != selected.size())
    throw std::invalid_argument("runs left out of another number of runs");
}

bool takesTimeToCompare(const ParameterColumns& columns, const std::vector<char>& selected,
                        const ComparisonPlan& plan)
{
  /// Steps of the exact test's recursion, some 0.2 s on one core.
  constexpr double manySteps = 5e7;
  checkComparedRuns(columns, selected, plan.leftOut);
  if (plan.adjustment == Adjustment::maxT ||
      exchangeUnits(columns, plan.design).kind != IndependentUnit::run)
    return true;
  const auto isUnordered = [&names = plan.unordered](std::size_t parameter)
  { return std::find(names.begin(), names.end(), parameter) != names.end(); };
  for (std::size_t parameter = 0; parameter < columns.size(); ++parameter)
    if ((plan.comparedBy == ComparedBy::counts || isUnordered(parameter)) &&
        isPoorlyApproximated(blocksOf(columns[parameter], selected, plan.leftOut)))
      return true;
  double first = 0.0;
  double second = 0.0;
  for (std::size_t run = 0; run < selected.size(); ++run)
    if (plan.leftOut.empty() || plan.leftOut[run] == 0)
      (selected[run] != 0 ? first : second) += 1.0;
  const double steps = first * second;
  return plan.comparedBy == ComparedBy::distribution &&
         steps <= static_cast<double>(largestExactKs) &&
         steps * static_cast<double>(columns.size()) > manySteps;
}
} // namespace Talmesh::stats
