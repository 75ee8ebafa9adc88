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

/// Texts have no order.
bool asksForEqual(char mark)
{
  return mark == '=' || mark == '!';
}

} // namespace

std::optional<double> textBesideColumn(const FilterNode& comparison, std::size_t at,
                                       const FilteredRuns& runs)
{
  const FilterNode& text = comparison.children[at];
  if (comparison.kind != Kind::Comparison || text.kind != Kind::Name || columnOf(text, runs) >= 0)
    return std::nullopt;
  const auto numberBeside = [&](std::size_t beside) -> std::optional<double>
  {
    const int column = columnOf(comparison.children[beside], runs);
    return column >= 0 ? runs.numberOf(column, text.name) : std::nullopt;
  };
  std::optional<double> number;
  if (at > 0 && asksForEqual(comparison.marks[at]))
    number = numberBeside(at - 1);
  if (!number && at + 1 < comparison.children.size() && asksForEqual(comparison.marks[at + 1]))
    number = numberBeside(at + 1);
  return number;
}

} // namespace Talmesh::app
