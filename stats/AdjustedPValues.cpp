#include "stats/AdjustedPValues.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace Talmesh::stats
{

namespace
{

/// The positions of what is a number, from the smallest on.
std::vector<std::size_t> ascendingOrder(const std::vector<double>& pValues)
{
  std::vector<std::size_t> order;
  for (std::size_t i = 0; i < pValues.size(); ++i)
  {
    if (!std::isnan(pValues[i]))
      order.push_back(i);
  }
  std::sort(order.begin(), order.end(),
            [&pValues](std::size_t a, std::size_t b) { return pValues[a] < pValues[b]; });
  return order;
}

} // namespace

std::vector<double> benjaminiHochberg(const std::vector<double>& pValues)
{
  const std::vector<std::size_t> order = ascendingOrder(pValues);
  std::vector<double> adjusted(pValues);
  const auto tests = static_cast<double>(order.size());
  double smallest = 1.0;
  for (std::size_t rank = order.size(); rank > 0; --rank)
  {
    const std::size_t position = order[rank - 1];
    smallest = std::min(smallest, tests / static_cast<double>(rank) * pValues[position]);
    adjusted[position] = smallest;
  }
  return adjusted;
}

std::vector<double> holm(const std::vector<double>& pValues)
{
  const std::vector<std::size_t> order = ascendingOrder(pValues);
  std::vector<double> adjusted(pValues);
  double largest = 0.0;
  for (std::size_t rank = 0; rank < order.size(); ++rank)
  {
    const double p = static_cast<double>(order.size() - rank) * pValues[order[rank]];
    largest = std::max(largest, std::min(p, 1.0));
    adjusted[order[rank]] = largest;
  }
  return adjusted;
}

} // namespace Talmesh::stats
