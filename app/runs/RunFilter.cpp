#include "app/runs/RunFilter.h"

#include "app/runs/DrawnCourse.h"
#include "app/runs/FilterBinding.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace Talmesh::app
{

namespace
{

using Kind = FilterNode::Kind;

/// One run as filters see it.
struct FilteredRun
{
  const NumberedRuns& runs;
  std::size_t run;
};

double numberOf(const BoundTerm& term, const FilteredRun& run);
bool isMet(const BoundTerm& term, const FilteredRun& run);

RunCourse courseOf(const BoundTerm& call, const FilteredRun& run)
{
  return run.runs.course(run.run, call.column, call.over);
}

std::vector<double> numbersOf(const BoundTerm& call, const FilteredRun& run)
{
  std::vector<double> numbers;
  for (const BoundTerm& child : call.children)
    numbers.push_back(numberOf(child, run));
  return numbers;
}

bool areThere(const std::vector<double>& numbers)
{
  return std::none_of(numbers.begin(), numbers.end(), [](double one) { return std::isnan(one); });
}

/// A prominence that was asked for but is missing makes the feature missing; NaN stands for one not
/// asked for.
template <typename Feature>
double ofPeaks(const BoundTerm& call, const FilteredRun& run, Feature feature)
{
  const std::vector<double> numbers = numbersOf(call, run);
  if (!areThere(numbers))
    return std::numeric_limits<double>::quiet_NaN();
  return feature(courseOf(call, run),
                 numbers.empty() ? std::numeric_limits<double>::quiet_NaN() : numbers.front());
}

double numberOfCall(const BoundTerm& call, const FilteredRun& run)
{
  const auto argument = [&] { return numberOf(call.children.front(), run); };
  switch (call.function)
  {
  case FilterFunction::Min:
    return smallestOf(courseOf(call, run));
  case FilterFunction::Max:
    return largestOf(courseOf(call, run));
  case FilterFunction::Mean:
    return meanOf(courseOf(call, run));
  case FilterFunction::First:
    return firstOf(courseOf(call, run));
  case FilterFunction::Final:
    return finalOf(courseOf(call, run));
  case FilterFunction::At:
    return valueAt(courseOf(call, run), argument());
  case FilterFunction::Peaks:
    return ofPeaks(call, run,
                   [](const RunCourse& course, double prominence)
                   { return static_cast<double>(peaksOf(course, prominence).size()); });
  case FilterFunction::Period:
    return ofPeaks(call, run, periodOf);
  case FilterFunction::Abs:
    return std::abs(argument());
  case FilterFunction::Sqrt:
    return std::sqrt(argument());
  case FilterFunction::Exp:
    return std::exp(argument());
  case FilterFunction::Ln:
    return std::log(argument());
  case FilterFunction::Log10:
    return std::log10(argument());
  default:
    return std::numeric_limits<double>::quiet_NaN();
  }
}

bool isAmong(const BoundTerm& list, const FilteredRun& run)
{
  const double own = run.runs.runNumber(run.run);
  return std::binary_search(list.sorted.begin(), list.sorted.end(), own) ||
         std::any_of(list.children.begin(), list.children.end(),
                     [&](const BoundTerm& number) { return numberOf(number, run) == own; });
}

bool isCallMet(const BoundTerm& call, const FilteredRun& run)
{
  if (call.function == FilterFunction::Runs)
    return isAmong(call, run);
  const std::vector<double> n = numbersOf(call, run);
  if (!areThere(n))
    return false;
  const RunCourse course = courseOf(call, run);
  const DrawnScale scale{call.logX, call.logY};
  if (call.function == FilterFunction::Through)
    return passesThrough(course, {n[0], n[1], n[2], n[3]}, scale);
  if (call.function == FilterFunction::Inside)
    return staysInside(course, {n[0], n[1], n[2], n[3]}, scale);
  if (call.function == FilterFunction::Crosses)
    return crossesLine(course, {n[0], n[1]}, {n[2], n[3]}, scale);
  if (call.function == FilterFunction::Dot)
    return hasPointIn(course, DrawnWindow{n[0], n[1], n[2], n[3]}, scale);
  std::vector<DrawnPoint> corners;
  for (std::size_t i = 0; i + 1 < n.size(); i += 2)
    corners.push_back({n[i], n[i + 1]});
  return call.function == FilterFunction::Lasso ? entersPolygon(course, corners, scale)
                                                : hasPointIn(course, corners, scale);
}

/// From the right: 2^3^2 is 2^9.
double power(const BoundTerm& term, const FilteredRun& run)
{
  double value = 1;
  for (std::size_t i = term.children.size(); i-- > 0;)
  {
    const double base = numberOf(term.children[i], run);
    value = i + 1 == term.children.size() ? base : std::pow(base, value);
    value = term.marks[i] == '-' ? -value : value;
  }
  return value;
}

double numberOf(const BoundTerm& term, const FilteredRun& run)
{
  double value = 0;
  switch (term.kind)
  {
  case Kind::Number:
    return term.number;
  case Kind::Name:
    return term.isRunNumber ? run.runs.runNumber(run.run) : firstOf(courseOf(term, run));
  case Kind::Call:
    return numberOfCall(term, run);
  case Kind::Power:
    return power(term, run);
  case Kind::Product:
    value = 1;
    for (std::size_t i = 0; i < term.children.size(); ++i)
    {
      const double factor = numberOf(term.children[i], run);
      value = term.marks[i] == '/' ? value / factor : value * factor;
    }
    return value;
  default:
    for (std::size_t i = 0; i < term.children.size(); ++i)
    {
      const double part = numberOf(term.children[i], run);
      value = term.marks[i] == '-' ? value - part : value + part;
    }
    return value;
  }
}

bool compare(double left, char mark, double right)
{
  if (std::isnan(left) || std::isnan(right))
    return false;
  switch (mark)
  {
  case '<':
    return left < right;
  case '>':
    return left > right;
  case 'l':
    return left <= right;
  case 'g':
    return left >= right;
  case '=':
    return left == right;
  default:
    return left != right;
  }
}

bool isComparisonMet(const BoundTerm& term, const FilteredRun& run)
{
  double left = numberOf(term.children.front(), run);
  for (std::size_t i = 1; i < term.children.size(); ++i)
  {
    const double right = numberOf(term.children[i], run);
    if (!compare(left, term.marks[i], right))
      return false;
    left = right;
  }
  return true;
}

bool isMet(const BoundTerm& term, const FilteredRun& run)
{
  const auto met = [&run](const BoundTerm& child) { return isMet(child, run); };
  switch (term.kind)
  {
  case Kind::And:
    return std::all_of(term.children.begin(), term.children.end(), met);
  case Kind::Xor:
    return std::count_if(term.children.begin(), term.children.end(), met) % 2 == 1;
  case Kind::Or:
    return std::any_of(term.children.begin(), term.children.end(), met);
  case Kind::Not:
    return !met(term.children.front());
  case Kind::Comparison:
    return isComparisonMet(term, run);
  default:
    return isCallMet(term, run);
  }
}

void addColumns(const BoundTerm& term, std::vector<int>& named)
{
  for (const int column : {term.column, term.over})
    if (column >= 0)
      named.push_back(column);
  for (const BoundTerm& child : term.children)
    addColumns(child, named);
}

bool namesRunNumbers(const BoundTerm& term)
{
  const bool lists = term.kind == FilterNode::Kind::Call && term.function == FilterFunction::Runs;
  return lists || term.isRunNumber ||
         std::any_of(term.children.begin(), term.children.end(), namesRunNumbers);
}

} // namespace

std::optional<double> FilteredRuns::numberOf(int, const std::string&) const
{
  return std::nullopt;
}

RunFilter::RunFilter() = default;
RunFilter::~RunFilter() = default;
RunFilter::RunFilter(RunFilter&&) noexcept = default;
RunFilter& RunFilter::operator=(RunFilter&&) noexcept = default;

RunFilter RunFilter::read(std::string_view text, const FilteredRuns& runs, FilterFault& fault)
{
  FilterNode syntax;
  auto bound = std::make_unique<BoundTerm>();
  fault = parseFilter(text, syntax);
  if (fault.text.empty())
    fault = bindFilter(syntax, runs, *bound);
  RunFilter filter;
  if (fault.text.empty())
    filter.condition = std::move(bound);
  return filter;
}

std::vector<int> RunFilter::columns() const
{
  std::vector<int> named;
  if (condition)
    addColumns(*condition, named);
  return named;
}

bool RunFilter::listsRuns() const
{
  return condition && namesRunNumbers(*condition);
}

bool RunFilter::selects(const NumberedRuns& runs, std::size_t run) const
{
  return condition && isMet(*condition, {runs, run});
}

Result<std::vector<bool>> RunFilter::select(const NumberedRuns& runs,
                                            const ImportProgress& progress) const
{
  std::vector<bool> selected(runs.numberOfRuns(), false);
  for (std::size_t run = 0; run < selected.size(); ++run)
  {
    const double done = static_cast<double>(run) / static_cast<double>(selected.size());
    if (progress && !progress(done))
      return Result<std::vector<bool>>::cancelled();
    selected[run] = selects(runs, run);
  }
  return selected;
}

} // namespace Talmesh::app
