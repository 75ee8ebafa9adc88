#include "app/runs/FilterBinding.h"

#include "app/import/TranslatedText.h"
#include "app/runs/ComparedText.h"
#include "app/runs/RunFilter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

namespace Talmesh::app
{

namespace
{

using Kind = FilterNode::Kind;

/// How a function is called.
struct Signature
{
  const char* name;
  FilterFunction function;
  bool isCondition;
  bool takesItem;
  /// Of its numbers; an even number of them if it takes points.
  std::size_t fewest;
  std::size_t most;
  bool takesPoints;
  /// Whether it may end in "logx", "logy" or "logxy".
  bool takesScale;
};

constexpr std::size_t anyNumber = std::numeric_limits<std::size_t>::max();

constexpr std::array<Signature, 20> signatures = {{
    {"min", FilterFunction::Min, false, true, 0, 0, false, false},
    {"max", FilterFunction::Max, false, true, 0, 0, false, false},
    {"mean", FilterFunction::Mean, false, true, 0, 0, false, false},
    {"first", FilterFunction::First, false, true, 0, 0, false, false},
    {"final", FilterFunction::Final, false, true, 0, 0, false, false},
    {"at", FilterFunction::At, false, true, 1, 1, false, false},
    {"peaks", FilterFunction::Peaks, false, true, 0, 1, false, false},
    {"period", FilterFunction::Period, false, true, 0, 1, false, false},
    {"through", FilterFunction::Through, true, true, 4, 4, false, true},
    {"inside", FilterFunction::Inside, true, true, 4, 4, false, true},
    {"crosses", FilterFunction::Crosses, true, true, 4, 4, false, true},
    {"lasso", FilterFunction::Lasso, true, true, 6, anyNumber, true, true},
    {"dot", FilterFunction::Dot, true, true, 4, 4, false, true},
    {"dotlasso", FilterFunction::DotLasso, true, true, 6, anyNumber, true, true},
    {"runs", FilterFunction::Runs, true, false, 1, anyNumber, false, false},
    {"abs", FilterFunction::Abs, false, false, 1, 1, false, false},
    {"sqrt", FilterFunction::Sqrt, false, false, 1, 1, false, false},
    {"exp", FilterFunction::Exp, false, false, 1, 1, false, false},
    {"ln", FilterFunction::Ln, false, false, 1, 1, false, false},
    {"log10", FilterFunction::Log10, false, false, 1, 1, false, false},
}};

std::string allFunctions()
{
  std::string names;
  for (const Signature& signature : signatures)
    names += (names.empty() ? "" : ", ") + std::string(signature.name);
  return names;
}

/// Looks names up; the first fault ends it.
class Binder
{
public:
  explicit Binder(const FilteredRuns& filtered)
      : runs(filtered)
  {
  }

  /// @param condition whether a condition is wanted, or else a number
  BoundTerm term(const FilterNode& node, bool condition);

  FilterFault fault;

private:
  void blame(const FilterNode& node, const std::string& what)
  {
    if (fault.text.empty())
      fault = {node.position, what};
  }

  void bindName(const FilterNode& node, BoundTerm& bound);
  void bindCall(const FilterNode& node, BoundTerm& bound);
  void bindItem(const FilterNode& node, BoundTerm& bound);
  int columnOf(const FilterNode& node);
  void checkNumbers(const FilterNode& node, const Signature& signature, std::size_t count);

  const FilteredRuns& runs;
};

bool isLogic(Kind kind)
{
  return kind == Kind::Not || kind == Kind::And || kind == Kind::Xor || kind == Kind::Or;
}

const Signature* signatureOf(const std::string& name)
{
  const auto* found = std::find_if(signatures.begin(), signatures.end(),
                                   [&name](const Signature& one) { return name == one.name; });
  return found == signatures.end() ? nullptr : found;
}

bool isCondition(const FilterNode& node)
{
  if (node.kind != Kind::Call)
    return isLogic(node.kind) || node.kind == Kind::Comparison;
  const Signature* signature = signatureOf(node.name);
  return signature && signature->isCondition;
}

/// Words that stand alone for a condition. Where a number is wanted they may be names of columns.
bool isConstant(const FilterNode& node)
{
  return node.kind == Kind::Name && (node.name == "all" || node.name == "none");
}

bool isKnown(const FilterNode& node)
{
  return node.kind != Kind::Call || signatureOf(node.name);
}

BoundTerm Binder::term(const FilterNode& node, bool condition)
{
  BoundTerm bound;
  bound.kind = node.kind;
  bound.number = node.number;
  bound.marks = node.marks;
  // All of no conditions are met, and not any of them.
  if (condition && isConstant(node))
    bound.kind = node.name == "all" ? Kind::And : Kind::Or;
  else if (isKnown(node) && isCondition(node) != condition)
    blame(node, condition
                    ? translated("RunFilter", "a condition is wanted here, such as \"max(A) > 1\"")
                    : translated("RunFilter", "a number is wanted here, not a condition"));
  else if (node.kind == Kind::Number && std::isinf(node.number))
    blame(node, translated("RunFilter", "this number is too large"));
  else if (node.kind == Kind::Name)
    bindName(node, bound);
  else if (node.kind == Kind::Call)
    bindCall(node, bound);
  else if (node.kind == Kind::Over)
    blame(node, translated(
                    "RunFilter",
                    "\"over\" joins two items of a line, as in \"through(B over A, 0, 1, 2, 3)\""));
  else
  {
    for (std::size_t i = 0; i < node.children.size(); ++i)
      if (const auto number = textBesideColumn(node, i, runs))
      {
        bound.children.emplace_back();
        bound.children.back().number = *number;
      }
      else
        bound.children.push_back(term(node.children[i], isLogic(node.kind)));
  }
  return bound;
}

int Binder::columnOf(const FilterNode& node)
{
  if (node.kind != Kind::Name)
  {
    blame(node, translated("RunFilter", "the name of an item is wanted here"));
    return -1;
  }
  const Result<int> found = runs.column(node.name);
  if (found.hasValue())
    return found.value();
  blame(node, found.error());
  return -1;
}

void Binder::bindName(const FilterNode& node, BoundTerm& bound)
{
  if (node.name == "run" && !runs.column(node.name).hasValue())
  {
    bound.isRunNumber = true;
    return;
  }
  bound.column = columnOf(node);
  if (bound.column >= 0 && !runs.isOfWholeRun(bound.column))
    blame(node,
          withValues(
              translated("RunFilter",
                         "%1 changes during a run: say max(%1), final(%1) or another number of it"),
              {filterName(node.name)}));
}

void Binder::bindItem(const FilterNode& node, BoundTerm& bound)
{
  if (node.kind != Kind::Over)
  {
    bound.column = columnOf(node);
    return;
  }
  bound.column = columnOf(node.children[0]);
  bound.over = columnOf(node.children[1]);
}

void Binder::checkNumbers(const FilterNode& node, const Signature& signature, std::size_t count)
{
  if (count >= signature.fewest && count <= signature.most &&
      (!signature.takesPoints || count % 2 == 0))
    return;
  const std::string name = signature.name;
  if (signature.takesPoints)
    blame(
        node,
        withValues(translated("RunFilter",
                              "%1 takes an item and three or more points, each a time and a value"),
                   {name}));
  else if (signature.most == anyNumber)
    blame(node, withValues(translated("RunFilter", "%1 takes one or more numbers"), {name}));
  else if (!signature.takesItem)
    blame(node, withValues(translated("RunFilter", "%1 takes one number"), {name}));
  else if (signature.most == 0)
    blame(node, withValues(translated("RunFilter", "%1 takes one item and nothing else"), {name}));
  else if (signature.fewest == 1 && signature.most == 1)
    blame(node, withValues(translated("RunFilter", "%1 takes an item and one number"), {name}));
  else if (signature.fewest == signature.most)
    blame(node, withValues(translated("RunFilter", "%1 takes an item and %2 numbers"),
                           {name, std::to_string(signature.most)}));
  else
    blame(node,
          withValues(translated("RunFilter", "%1 takes an item and at most one number"), {name}));
}

/// Lists of very many runs are looked up, not gone through.
void sortNumbers(BoundTerm& list)
{
  const auto isNumber = [](const BoundTerm& term) { return term.kind == Kind::Number; };
  if (!std::all_of(list.children.begin(), list.children.end(), isNumber))
    return;
  for (const BoundTerm& term : list.children)
    list.sorted.push_back(term.number);
  std::sort(list.sorted.begin(), list.sorted.end());
  list.children.clear();
}

void Binder::bindCall(const FilterNode& node, BoundTerm& bound)
{
  const Signature* signature = signatureOf(node.name);
  if (!signature)
  {
    blame(node, withValues(translated("RunFilter", "there is no function %1; there are %2"),
                           {node.name, allFunctions()}));
    return;
  }
  bound.function = signature->function;
  std::size_t next = 0;
  std::size_t end = node.children.size();
  if (signature->takesScale && end > 0 && node.children[end - 1].kind == Kind::Name)
  {
    const std::string& scale = node.children[end - 1].name;
    bound.logX = scale == "logx" || scale == "logxy";
    bound.logY = scale == "logy" || scale == "logxy";
    end -= bound.logX || bound.logY ? 1 : 0;
  }
  if (signature->takesItem && end > 0)
    bindItem(node.children[next++], bound);
  if (signature->takesItem && node.children.empty())
    blame(node, withValues(translated("RunFilter", "%1 takes an item: the name of a column"),
                           {signature->name}));
  if (bound.over >= 0 && !signature->takesScale)
    blame(node,
          withValues(translated("RunFilter", "%1 looks at one item over time"), {signature->name}));
  checkNumbers(node, *signature, end - next);
  for (; next < end; ++next)
    bound.children.push_back(term(node.children[next], false));
  if (bound.function == FilterFunction::Runs)
    sortNumbers(bound);
}

} // namespace

FilterFault bindFilter(const FilterNode& filter, const FilteredRuns& runs, BoundTerm& condition)
{
  Binder binder(runs);
  condition = binder.term(filter, true);
  return binder.fault;
}

} // namespace Talmesh::app
