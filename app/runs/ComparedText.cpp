#include "app/runs/ComparedText.h"

#include "app/runs/RunFilter.h"

namespace Talmesh::app
{

namespace
{

using Kind = FilterNode::Kind;

/// The column that a name stands for; -1 without one.
int columnOf(const FilterNode& node, const FilteredRuns& runs)
{
  if (node.kind != Kind::Name)
    return -1;
  const Result<int> column = runs.column(node.name);
  return column.hasValue() ? column.value() : -1;
}

} // namespace

std::optional<double> FilteredRuns::numberOf(int, const std::string&) const
{
  return std::nullopt;
}

std::optional<double> textBesideColumn(const FilterNode& comparison, std::size_t at,
                                       const FilteredRuns& runs)
{
  const FilterNode& text = comparison.children[at];
  if (comparison.kind != Kind::Comparison || text.kind != Kind::Name || columnOf(text, runs) >= 0)
    return std::nullopt;
  for (const std::size_t beside : {at - 1, at + 1})
  {
    const int column =
        beside < comparison.children.size() ? columnOf(comparison.children[beside], runs) : -1;
    if (const auto number = column >= 0 ? runs.numberOf(column, text.name) : std::nullopt)
      return number;
  }
  return std::nullopt;
}

} // namespace Talmesh::app
